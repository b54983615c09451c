// SPDX-License-Identifier: MIT
#include "overlay/hinttext.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QUrl>

namespace {

constexpr qint64 kLargestFile = 64 * 1024 * 1024; // bytes

QString filePath(const QUrl& name)
{
    if (name.isLocalFile())
        return name.toLocalFile();
    return name.scheme() == QLatin1String("qrc") ? QLatin1Char(':') + name.path() : name.toString();
}

// What a file holds, or a "data:" address; nothing when it cannot be read, has
// no end or is too large.
QByteArray contentsOf(const QUrl& name)
{
    if (name.scheme() == QLatin1String("data")) {
        // Of such an address Qt's documents hand out the bytes, when these are
        // not asked for as a picture.
        return QTextDocument().resource(QTextDocument::StyleSheetResource, name).toByteArray();
    }
    const QFileInfo info(filePath(name));
    QFile file(info.filePath());
    if (info.isFile() && info.size() <= kLargestFile && file.open(QIODevice::ReadOnly))
        return file.readAll();
    return {};
}

} // namespace

QVariant HintText::loadResource(int type, const QUrl& name)
{
    const QByteArray contents = contentsOf(name);
    // With a null answer Qt would try to read the file by itself.
    if (type != QTextDocument::ImageResource)
        return contents.isNull() ? QByteArray("") : contents;
    if (takePicture(contents))
        return contents;
    return QImage(QStringLiteral(":/qt-project.org/styles/commonstyle/images/file-16.png"));
}

void HintText::setHint(const QString& text)
{
    mPixels = 0;
    setText(text);
}

bool HintText::takePicture(const QByteArray& file)
{
    // A small file may unfold to any number of pixels: its head tells how many.
    QBuffer buffer;
    buffer.setData(file);
    const QSize size = QImageReader(&buffer).size();
    const qint64 pixels = qint64(size.width()) * size.height();
    if (size.isEmpty() || pixels > kMostPixels - mPixels)
        return false;
    mPixels += pixels;
    return true;
}
