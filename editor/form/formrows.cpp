// SPDX-License-Identifier: MIT
#include "editor/form/formrows.h"

#include "editor/form/stepform.h"
#include "tutorial/vocabulary/tutorialaction.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QHash>

using namespace TutorialEditor;

namespace {

constexpr int kCommentLines = 2;
constexpr int kHintLines = 3;
constexpr int kBoxCharacters = 7;
constexpr int kConditionCharacters = 11;

// The places of a condition's parameters.
constexpr int kFirst = 1;
constexpr int kSecond = 2;

// The actions of the host that a step can wait for. Some names stand for two
// of its actions, so they are listed twice.
const char* const kHostActions[] = {"New", "Edit", "Cut", "Copy", "Paste", "Delete", "Clear",
    "Select All", "Undo", "Redo", "CopyAsText", "CopyAsHTML", "Test", "New Event Page",
    "Copy Event Page", "Paste Event Page", "Clear Event Page", "Transfer", "Door", "Treasure",
    "Inn", "Set Starting Position Player", "Set Starting Position Boat",
    "Set Starting Position Ship", "Set Starting Position Airship", "New Project", "Open Project",
    "Close Project", "Save Project", "Deployment", "Edit Map", "New Map", "New Map", "Load",
    "mapShift", "Generate Dungeon", "Save as Image", "Edit Event", "Edit Event", "eventNew",
    "eventNew", "editCut", "editCopy", "editPaste", "editDelete", "editUndo", "Map", "Event",
    "Pencil", "Rectangle", "Ellipse", "Flood Fill", "Shadow Pen", "Zoom In", "Zoom Out",
    "Actual Size", "Database", "Plugin Manager", "Sound Test", "Event Searcher",
    "Character Generator", "Resource Manager", "Options", "Playtest", "Open Folder", "Contents",
    "About", "Tutorial", "Exit", "Project Loaded"};

// The names of a kind's enumeration, its last value being `last`.
template <typename Kind, typename Name>
QStringList kindNames(int last, Name name)
{
    QStringList names;
    for (int kind = 0; kind <= last; ++kind)
        names << name(static_cast<Kind>(kind));
    return names;
}

QStringList windowKindNames()
{
    return kindNames<Tutorial::EnumWindowKind>(
        Tutorial::WindowKindCount - 1, TutorialAction::getWindowKindName);
}

QStringList hostActions()
{
    QStringList names;
    for (const char* name : kHostActions)
        names << QLatin1String(name);
    return names;
}

FormRow conditionRow()
{
    using Cell = FormCell;
    const auto box = [](const char* name, const QString& toolTip, int place) {
        const int stretch = place == kFirst ? 2 : 1;
        return Cell{
            Cell::Box, name, QString(), toolTip, stretch, place, 0, QString(), kBoxCharacters};
    };
    const auto line = [](const char* name, int place) {
        const int stretch = place == kFirst ? 2 : 1;
        return Cell{Cell::Line, name, QString(), QString(), stretch, place};
    };
    return {{Cell::Box, "condition", StepForm::tr("condition:"),
                StepForm::tr("What the learner has to do before the next step comes"), 1, 0,
                ConditionField, StepForm::tr("Condition"), kConditionCharacters},
        box("conditionWindow", StepForm::tr("The window that is waited for"), kFirst),
        box("list", StepForm::tr("Where the mouse has to be used"), kFirst),
        box("comparison", StepForm::tr("How the value has to compare with the number beside"),
            kFirst),
        box("hostAction", StepForm::tr("The action that has to be chosen"), kFirst),
        line("parameter1", kFirst),
        box("windowState", StepForm::tr("What has to happen to the window"), kSecond),
        box("mouseEvent", StepForm::tr("What the mouse has to do"), kSecond),
        line("parameter2", kSecond), line("parameter3", 0)};
}

FormRow pictureRow()
{
    using Cell = FormCell;
    return {{Cell::Box, "icon", StepForm::tr("icon:"), StepForm::tr("The picture beside the arrow"),
                1, 0, IconField, StepForm::tr("Icon"), kBoxCharacters},
        {Cell::Box, "command", StepForm::tr("command:"),
            StepForm::tr("What the editor does when the step begins; the empty row is nothing"), 1,
            0, CommandField, StepForm::tr("Command"), kBoxCharacters},
        {Cell::Line, "commandParameter", QString(), StepForm::tr("What the command works on"), 1, 0,
            CommandParameterField}};
}

FormRow labelRow()
{
    using Cell = FormCell;
    return {{Cell::Line, "label", StepForm::tr("label:"),
                StepForm::tr("The name by which other steps go to this one"), 1, 0, LabelField,
                StepForm::tr("Label")},
        {Cell::CheckBox, "showArrow", StepForm::tr("Show arrow"),
            StepForm::tr("Whether the arrow points at the step's point"), 0, 0, ShowArrowField,
            StepForm::tr("Hidden arrow")}};
}

} // namespace

QVector<FormRow> TutorialEditor::formRows()
{
    using Cell = FormCell;
    const FormRow position{{Cell::Line, "x", StepForm::tr("X:"),
                               StepForm::tr("Pixels from the left edge of the followed window to "
                                            "the point that the step shows"),
                               1, 0, XField, StepForm::tr("Position")},
        {Cell::Line, "y", StepForm::tr("Y:"),
            StepForm::tr(
                "Pixels from the top edge of the followed window to the point that the step shows"),
            1, 0, YField},
        {Cell::Box, "followWindow", QString(),
            StepForm::tr("The window of the editor that the indicator follows"), 2, 0,
            FollowWindowField, StepForm::tr("Followed window"), kBoxCharacters},
        {Cell::Button, "refWindow", StepForm::tr("RefWindow"),
            StepForm::tr("Follows the window of the editor that was in front last"), 0}};
    const FormRow target{{Cell::Line, "target", StepForm::tr("target:"),
        StepForm::tr("The name of what the step shows, such as find/closeButton or action:Find; "
                     "where the editor finds it, the position counts for nothing"),
        1, 0, TargetField, StepForm::tr("Target")}};
    const FormRow comment{{Cell::Text, "comment", StepForm::tr("log comment:"),
                              StepForm::tr("A note of the author's"), 1, 0, CommentField,
                              StepForm::tr("Comment"), kCommentLines},
        {Cell::Note, "commentTranslation", QString(), StepForm::tr("The note, translated"), 1, 0,
            CommentField}};
    const FormRow hint{
        {Cell::Text, "hint", StepForm::tr("hint:"),
            StepForm::tr("What the balloon says; qsTr(\"…\") around it makes it translatable"), 1,
            0, HintField, StepForm::tr("Hint"), kHintLines},
        {Cell::ReadOnlyText, "hintTranslation", QString(),
            StepForm::tr("The hint as the learner sees it, translated by the editor"), 1, 0,
            HintField, QString(), kHintLines}};
    return {position, target, comment, hint, conditionRow(), pictureRow(), labelRow()};
}

QStringList TutorialEditor::boxRows(const char* name)
{
    const auto words = [](const char* text) {
        return QString::fromLatin1(text).split(QLatin1Char(' '));
    };
    const QHash<QByteArray, QStringList> rows{
        {"followWindow", windowKindNames()},
        {"condition",
            kindNames<Tutorial::EnumConditionKind>(
                Tutorial::ConditionKindCount - 1, Tutorial::getConditionKindName)},
        {"conditionWindow", windowKindNames()},
        {"windowState", words("open close ok cancel")},
        {"list", words("listBox1 listBox2 Map")},
        {"mouseEvent", words("click doubleClick")},
        {"comparison", words("= < <= > >= !=")},
        {"hostAction", hostActions()},
        {"icon",
            kindNames<Tutorial::EnumIconKind>(
                Tutorial::IconKindCount - 1, Tutorial::getIconKindName)},
        // The last one is empty.
        {"command",
            kindNames<Tutorial::EnumCommandKind>(
                Tutorial::CommandKindCount, Tutorial::getCommandKindName)},
    };
    return rows.value(name);
}
