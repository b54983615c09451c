// SPDX-License-Identifier: MIT
#include "editor/scenario/scenarioreader.h"

#include "editor/scenario/readerror.h"
#include "editor/scenario/textwalker.h"
#include "editor/scenario/translationescape.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QVector>

#include <algorithm>

using namespace TutorialEditor;

namespace {

constexpr qint64 kLargestFile = 256 * 1024 * 1024; // bytes

// Position of two characters that are side by side. Texts hold few that are
// like the second one, so this is much faster than to walk; -1 for none.
int indexOfPair(const QString& text, char first, char second)
{
    const QLatin1Char wanted(second);
    for (int i = 0; (i = text.indexOf(wanted, i)) != -1; ++i) {
        if (i > 0 && isAt(text, i - 1, first))
            return i - 1;
    }
    return -1;
}

QString removeBlockComments(const QString& text)
{
    QString result;
    TextWalker walker(text);
    int copied = 0;
    for (int i = walker.find('*', 0); i < text.size(); i = walker.find('*', i)) {
        // The slash may stand before a comment that was just removed.
        const bool slashInText = i > copied && isAt(text, i - 1, '/');
        const bool slashInResult = i == copied && result.endsWith(QLatin1Char('/'));
        if (!slashInText && !slashInResult) {
            ++i;
            continue;
        }
        const int close = text.indexOf(QLatin1String("*/"), i + 1);
        if (close == -1)
            break;
        appendTo(&result, QStringView(text).mid(copied, i - copied));
        result.chop(1);
        i = copied = close + 2;
    }
    appendTo(&result, QStringView(text).mid(copied));
    return result;
}

QString removeLineComments(const QString& text)
{
    QString result;
    TextWalker walker(text);
    int copied = 0;
    for (int line = 0; line < text.size();) {
        int first = line;
        while (isAt(text, first, ' ') || isAt(text, first, '\t'))
            ++first;
        if (!isAt(text, first, '/') || !isAt(text, first + 1, '/')) {
            line = walker.find('\n', first) + 1;
            continue;
        }
        const int end = text.indexOf(QLatin1Char('\n'), first);
        if (end == -1) // no whole line: it stays
            break;
        appendTo(&result, QStringView(text).mid(copied, line - copied));
        line = copied = end + 1;
    }
    appendTo(&result, QStringView(text).mid(copied));
    return result;
}

// Position of the first `marker` outside of strings; the text's size for none.
int findMarker(const QString& text, const QString& marker)
{
    const char first = marker.front().toLatin1();
    TextWalker walker(text);
    int i = walker.find(first, 0);
    while (i < text.size() && !QStringView(text).mid(i).startsWith(marker))
        i = walker.find(first, walker.next(i));
    return i;
}

} // namespace

bool TutorialEditor::readScenarioText(const QString& path, QString* text, QStringList* errors)
{
    // A pipe would be waited for, and a device may never end.
    QFile file(path);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > kLargestFile)
        return false;
    const QByteArray bytes = file.readAll();
    *text = QString::fromUtf8(bytes);
    const QByteArray mark("\xef\xbb\xbf"); // that some editors write first
    if (text->toUtf8() != (bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes))
        errors->append(
            ReadError::tr("%1 is not UTF-8 text: what could not be read was replaced").arg(path));
    return true;
}

QString TutorialEditor::removeComments(const QString& text)
{
    const QString lines = indexOfPair(text, '/', '*') != -1 ? removeBlockComments(text) : text;
    return indexOfPair(lines, '/', '/') != -1 ? removeLineComments(lines) : lines;
}

QString TutorialEditor::removeMarkers(const QString& text)
{
    static const QString kHead = QStringLiteral("var scenario = [");
    static const QString kTail = QStringLiteral("];");

    // Without the markers' brackets, which stay.
    QVector<QPair<int, int>> removed;
    const int head = findMarker(text, kHead);
    if (head < text.size())
        removed.append({head, head + kHead.size() - 1});

    // What closes the text is in no string.
    int tail = indexOfPair(text, ']', ';');
    if (tail != -1 && !QStringView(text).mid(tail + kTail.size()).trimmed().isEmpty())
        tail = findMarker(text, kTail);
    if (tail != -1 && tail < text.size())
        removed.append({tail + 1, tail + kTail.size()});

    std::sort(removed.begin(), removed.end());
    QString result;
    result.reserve(text.size());
    int copied = 0;
    for (const QPair<int, int>& range : qAsConst(removed)) {
        appendTo(&result, QStringView(text).mid(copied, range.first - copied));
        copied = range.second;
    }
    appendTo(&result, QStringView(text).mid(copied));
    return result;
}

QJsonArray TutorialEditor::parseSteps(const QString& text, QStringList* errors)
{
    const QByteArray bytes = text.toUtf8();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isArray())
        return document.array();

    const QString message = ReadError::tr("json is not array");
    if (error.error == QJsonParseError::NoError || bytes.isEmpty()) {
        errors->append(message);
        return QJsonArray();
    }
    constexpr int kShownLength = 60;
    const int position = QString::fromUtf8(bytes.constData(), error.offset).size();
    const int lineBegin = position > 0 ? text.lastIndexOf(QLatin1Char('\n'), position - 1) + 1 : 0;
    const QString line =
        text.mid(lineBegin, text.indexOf(QLatin1Char('\n'), lineBegin) - lineBegin);
    errors->append(
        located(message, text, position, {error.errorString(), line.trimmed().left(kShownLength)}));
    return QJsonArray();
}

QJsonArray TutorialEditor::readScenario(const QString& fileText, QStringList* errors)
{
    const QString text = removeMarkers(removeComments(fileText));
    return parseSteps(escapeTranslationForJson(text, errors), errors);
}

bool TutorialEditor::readScenarioFile(const QString& path, QJsonArray* steps, QStringList* errors)
{
    QString text;
    if (!readScenarioText(path, &text, errors)) {
        errors->append(ReadError::tr("%1 cannot be opened").arg(path));
        return false;
    }
    *steps = readScenario(text, errors);
    return errors->isEmpty();
}
