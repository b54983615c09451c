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

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace TutorialEditor;

namespace {

constexpr qint64 kLargestFile = 256 * 1024 * 1024; // bytes

// A pipe would be waited for, and a device may never end, also when they take the
// place of a file at the last moment.
bool openFile(QFile* file)
{
    // What is built into a program is a file to Qt alone.
    if (!QFileInfo(*file).isNativePath())
        return file->open(QIODevice::ReadOnly);
#ifdef Q_OS_UNIX
    const int descriptor =
        open(QFile::encodeName(file->fileName()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status;
    if (descriptor == -1)
        return false;
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        return file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    close(descriptor);
    return false;
#else
    return QFileInfo(*file).isFile() && file->open(QIODevice::ReadOnly);
#endif
}

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

QString removeBlockComments(const QString& text, PositionMap* map)
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
        copyPart(&result, text, copied, i, map);
        result.chop(1);
        i = copied = close + 2;
    }
    copyPart(&result, text, copied, text.size(), map);
    return result;
}

QString removeLineComments(const QString& text, PositionMap* map)
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
        copyPart(&result, text, copied, line, map);
        line = copied = end + 1;
    }
    copyPart(&result, text, copied, text.size(), map);
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

QString noArray()
{
    return ReadError::tr("json is not array");
}

QJsonArray parseJson(const QString& json, std::optional<ReadFailure>* failure)
{
    const QByteArray bytes = json.toUtf8();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isArray())
        return document.array();

    const int position = QString::fromUtf8(bytes.constData(), error.offset).size();
    if (error.error == QJsonParseError::NoError || json.isEmpty())
        *failure = {ReadFailure::NoList, noArray(), 0};
    else if (error.error == QJsonParseError::DeepNesting)
        *failure = {ReadFailure::TooDeep, noArray(), position};
    else
        *failure = {ReadFailure::Json, noArray(), position};
    return QJsonArray();
}

QJsonArray parse(
    const QString& text, std::optional<ReadFailure>* failure, PositionMaps* maps = nullptr)
{
    failure->reset();
    const QString json = escapeTranslations(text, failure, maps);
    return *failure ? QJsonArray() : parseJson(json, failure);
}

} // namespace

bool TutorialEditor::readScenarioBytes(const QString& path, QByteArray* bytes)
{
    QFile file(path);
    if (!openFile(&file) || file.size() > kLargestFile)
        return false;
    *bytes = file.readAll();
    return file.error() == QFile::NoError;
}

QString TutorialEditor::decodeScenario(
    const QByteArray& bytes, const QString& path, QStringList* errors)
{
    const QString text = QString::fromUtf8(bytes);
    const QByteArray mark("\xef\xbb\xbf"); // that some editors write first
    if (text.toUtf8() != (bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes))
        errors->append(
            ReadError::tr("%1 is not UTF-8 text: what could not be read was replaced").arg(path));
    return text;
}

bool TutorialEditor::readScenarioText(const QString& path, QString* text, QStringList* errors)
{
    QByteArray bytes;
    if (!readScenarioBytes(path, &bytes))
        return false;
    *text = decodeScenario(bytes, path, errors);
    return true;
}

QString TutorialEditor::removeComments(const QString& text, PositionMaps* maps)
{
    const auto without = [maps](const QString& former, auto* remove) {
        PositionMap map;
        const QString result = remove(former, maps ? &map : nullptr);
        if (maps)
            maps->append(map);
        return result;
    };
    const QString lines =
        indexOfPair(text, '/', '*') != -1 ? without(text, removeBlockComments) : text;
    return indexOfPair(lines, '/', '/') != -1 ? without(lines, removeLineComments) : lines;
}

QString TutorialEditor::removeMarkers(const QString& text, PositionMaps* maps)
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
    PositionMap map;
    int copied = 0;
    for (const QPair<int, int>& range : qAsConst(removed)) {
        copyPart(&result, text, copied, range.first, &map);
        copied = range.second;
    }
    copyPart(&result, text, copied, text.size(), &map);
    if (maps)
        maps->append(map);
    return result;
}

QJsonArray TutorialEditor::parseSteps(const QString& text, QStringList* errors)
{
    std::optional<ReadFailure> failure;
    const QJsonArray steps = parseJson(text, &failure);
    if (failure)
        errors->append(describedFailure(*failure, text, failure->position));
    return steps;
}

QJsonArray TutorialEditor::readSteps(
    const QString& text, QStringList* errors, const QString& fileText)
{
    std::optional<ReadFailure> failure;
    const QJsonArray steps = parse(text, &failure);
    if (!failure)
        return steps;

    // Once more, with notes of what comes from where.
    PositionMaps maps;
    const bool hasFile = !fileText.isNull();
    if (hasFile)
        removeMarkers(removeComments(fileText, &maps), &maps);
    parse(text, &failure, &maps);
    errors->append(describedFailure(
        *failure, hasFile ? fileText : text, originalPosition(maps, failure->position)));
    if (failure->message != noArray())
        errors->append(noArray());
    return QJsonArray();
}

ReadScenario TutorialEditor::readScenario(const QString& fileText)
{
    ReadScenario result;
    result.steps = parse(removeMarkers(removeComments(fileText)), &result.failure);
    if (!result.failure)
        return result;
    PositionMaps maps;
    const QString text = removeMarkers(removeComments(fileText, &maps), &maps);
    parse(text, &result.failure, &maps);
    result.position = originalPosition(maps, result.failure->position);
    return result;
}

QJsonArray TutorialEditor::readScenario(const QString& fileText, QStringList* errors)
{
    return readSteps(removeMarkers(removeComments(fileText)), errors, fileText);
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
