// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QJsonArray;

namespace TutorialEditor {

enum class StepListForm {
    File, // a line a key, translation expressions bare
    Copied // a line a step, a group's hint not escaped: may be no valid JSON
};

// Turns the value of a "hint" or "comment" into what stands in the file: a
// translation expression bare, without the comma that the reader puts after
// it, any other text as a JSON string.
void escapeCommentHint(QString& value);

// The text of a list of steps. What lies in a group is its "group" key; beside
// it only "hint" and a "label" that is not empty are written of a group. depth:
// the level that the steps lie at, for the indentation of the file form.
QString scenarioJson(
    const QJsonArray& steps, StepListForm form = StepListForm::File, int depth = 0);

// The whole text of the file for a list in file form.
QString scenarioFileText(const QString& json);

// Replaces the file at `path` by that text, wholly or not at all. False, with
// the former file untouched, when it cannot be written.
bool writeScenarioFile(const QString& path, const QString& json);

} // namespace TutorialEditor
