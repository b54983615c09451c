// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/positionmap.h"
#include "editor/scenario/readerror.h"

#include <QJsonArray>
#include <QStringList>

#include <optional>

// Reads scenario files: a file's text, then the text without comments, then
// without the script around the array, then JSON (escapeTranslationForJson),
// then the steps. What cannot be read is appended to a list of errors, made for
// the author's eyes. Each function takes time in proportion to the text's size.
namespace TutorialEditor {

// The bytes of the file; false when it cannot be opened, which must be a regular
// one of at most 256 MiB.
bool readScenarioBytes(const QString& path, QByteArray* bytes);

// The text of the file's bytes. Those that are not UTF-8 come out as replacement
// characters and are reported.
QString decodeScenario(const QByteArray& bytes, const QString& path, QStringList* errors);

// Both: the whole text of the file.
bool readScenarioText(const QString& path, QString* text, QStringList* errors);

// Without block comments, then without the lines that hold a line comment and
// nothing before it. Inside a quoted string, which starts and ends on one line,
// and inside a complete translation expression a comment is text. `maps`, when
// there are any, get what leads back to the text; so below.
QString removeComments(const QString& text, PositionMaps* maps = nullptr);

// Without the first "var scenario = " before a "[" and the first ";" after a
// "]", again not inside of strings; text around them stays.
QString removeMarkers(const QString& text, PositionMaps* maps = nullptr);

// The steps in a JSON text; empty, with one more error, when it is no array.
QJsonArray parseSteps(const QString& text, QStringList* errors);

// The steps in a text without comments and markers. When it cannot be read,
// there is one more error, or two. They tell where in the file's text, or, when
// that is not given, in `text`.
QJsonArray readSteps(const QString& text, QStringList* errors, const QString& fileText = QString());

// The steps in a file's text, or why there are none and where in that text.
struct ReadScenario {
    QJsonArray steps;
    std::optional<ReadFailure> failure;
    int position = 0;
};
ReadScenario readScenario(const QString& fileText);
QJsonArray readScenario(const QString& fileText, QStringList* errors);

// The steps in a file. False when it could not be opened or has errors; then
// `errors` says why.
bool readScenarioFile(const QString& path, QJsonArray* steps, QStringList* errors);

} // namespace TutorialEditor
