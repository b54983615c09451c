// SPDX-License-Identifier: MIT
#include "overlay/hinttext.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFileInfo>
#include <QFontInfo>
#include <QImage>
#include <QImageReader>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QUrl>

#include <algorithm>
#include <utility>

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
    if (std::exchange(mSmaller, false))
        document()->setDefaultFont(font());
    mTooLong = text.size() > kMostLetters;
    if (!mTooLong) {
        setText(text);
        mPlainHint = toPlainText();
        return;
    }
    // A document without a layout takes any text at once.
    QTextDocument whole;
    if (Qt::mightBeRichText(text))
        whole.setHtml(text);
    else
        whole.setPlainText(text);
    mPlainHint = whole.toPlainText();
    mTooLong = whole.characterCount() > kMostLetters;
    if (!mTooLong) {
        setText(text);
        return;
    }
    QTextCursor shown(&whole);
    shown.setPosition(kMostLetters, QTextCursor::KeepAnchor);
    clear();
    QTextCursor(document()).insertFragment(QTextDocumentFragment(shown));
}

HintText::Fit HintText::fitInto(int room)
{
    if (!mTooLong && textHeight() <= room)
        return mSmaller ? Fit::Smaller : Fit::Whole;
    QFont font = document()->defaultFont();
    for (int points = QFontInfo(font).pointSize() - 1; points >= kSmallestPoints; --points) {
        font.setPointSize(points);
        document()->setDefaultFont(font);
        mSmaller = true;
        if (!mTooLong && textHeight() <= room)
            return Fit::Smaller;
    }
    // What the room ends at is near to where it is to be cut; the ellipsis may
    // need a line of its own, or a picture be higher than its line.
    int position =
        document()->documentLayout()->hitTest(QPointF(document()->textWidth(), room), Qt::FuzzyHit);
    position = std::clamp(position, 0, document()->characterCount() - 1);
    cutAt(position);
    for (int step = 1; textHeight() > room && position > 0; step *= 2) {
        position = std::max(0, position - step);
        cutAt(position);
    }
    mTooLong = false;
    return Fit::Cut;
}

HintText::Fit HintText::fitOf(const QString& text, int width, int room)
{
    HintText box;
    box.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box.resize(width, room);
    // A box that is not on the screen takes its size when it is painted.
    box.grab(QRect(0, 0, 1, 1));
    box.setHint(text);
    return box.fitInto(room);
}

int HintText::textHeight() const
{
    return static_cast<int>(document()->size().height());
}

void HintText::cutAt(int position)
{
    QTextCursor rest(document());
    rest.setPosition(position);
    rest.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    // In the box's own format: a large letter is what may have been too high.
    rest.insertText(QString(QChar(0x2026)), QTextCharFormat());
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
