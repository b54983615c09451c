// SPDX-License-Identifier: MIT
#include "overlay/hinttext.h"

#include <QFileInfo>
#include <QImage>
#include <QUrl>

namespace {

constexpr qint64 kLargestFile = 64 * 1024 * 1024; // bytes

QString filePath(const QUrl& name)
{
    if (name.isLocalFile())
        return name.toLocalFile();
    return name.scheme() == QLatin1String("qrc") ? QLatin1Char(':') + name.path() : name.toString();
}

} // namespace

QVariant HintText::loadResource(int type, const QUrl& name)
{
    if (name.scheme() == QLatin1String("data"))
        return QTextEdit::loadResource(type, name);
    const QFileInfo info(filePath(name));
    QFile file(info.filePath());
    if (info.isFile() && info.size() <= kLargestFile && file.open(QIODevice::ReadOnly))
        return file.readAll();
    // With nothing Qt would try to read the file by itself.
    if (type == QTextDocument::ImageResource)
        return QImage(QStringLiteral(":/qt-project.org/styles/commonstyle/images/file-16.png"));
    return QByteArray("");
}
