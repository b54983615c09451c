#pragma once

#include <QString>

class QJsonArray;
class QJsonObject;

namespace TutorialEditor {

enum class StepListForm {
    File, // a line a key, translation expressions bare
    Copied, // a line a step, a group's hint not escaped: may be no valid JSON
    Json // as Copied, but always valid JSON
};

// Appends the text of one level's steps to a string, from the opening bracket
// (written at once) to the closing one. The list of a nested group is written
// by a writer of its own, one deeper, between beginGroup and endGroup.
class StepListWriter {
public:
    // `depth`: 0 at the top level; sets the indentation in the file form.
    StepListWriter(QString* out, StepListForm form, int depth);

    void step(const QJsonObject& step);

    // Of a group only "hint" and a "label" that is not empty are written.
    void beginGroup(const QJsonObject& group);
    void endGroup();
    void end();

private:
    void separate();

    QString& mOut;
    const StepListForm mForm;
    const QString mIndentation;
    const QString mLineEnd;
    bool mIsEmpty = true;
};

// Turns the value of a "hint" or "comment" into what stands in the file: a
// translation expression bare, without the comma that the reader puts after
// it, any other text as a JSON string.
void escapeCommentHint(QString& value);

// The file form of steps that a reader gave, groups included.
QString scenarioJson(const QJsonArray& steps);

// The whole text of the file for a list in file form.
QString scenarioFileText(const QString& json);

// Replaces the file at `path` by that text, wholly or not at all. False, with
// the former file untouched, when it cannot be written.
bool writeScenarioFile(const QString& path, const QString& json);

} // namespace TutorialEditor
