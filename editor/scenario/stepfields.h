// SPDX-License-Identifier: MIT
#pragma once

#include <QFlags>
#include <QJsonObject>
#include <QString>

#include <array>

namespace TutorialEditor {

enum StepField {
    XField = 0x1,
    YField = 0x2,
    FollowWindowField = 0x4,
    CommentField = 0x8,
    HintField = 0x10,
    ConditionField = 0x20,
    ParameterField1 = 0x40,
    ParameterField2 = 0x80,
    ParameterField3 = 0x100,
    IconField = 0x200,
    CommandField = 0x400,
    CommandParameterField = 0x800,
    LabelField = 0x1000,
    ShowArrowField = 0x2000,
    TargetField = 0x4000
};
Q_DECLARE_FLAGS(ShownFields, StepField)
Q_DECLARE_OPERATORS_FOR_FLAGS(ShownFields)

// The field of the condition's parameter 0, 1 or 2.
constexpr StepField parameterField(int parameter)
{
    return static_cast<StepField>(ParameterField1 << parameter);
}

// What the form's widgets hold: the texts as typed, the combo boxes' current
// texts. A window, condition, icon or command that the vocabulary does not
// know is an empty text, and so is a field that is not shown.
struct StepFields {
    QString x;
    QString y;
    QString followWindow;
    QString target;
    QString comment;
    QString hint;
    QString condition; // the kind's name
    std::array<QString, 3> parameters; // of the condition, in their fields, shown or not
    std::array<QString, 3> boxes; // of the box that shows the parameter, if one does
    QString icon;
    QString command;
    QString commandParameter;
    QString label;
    bool showArrow = true;
    ShownFields shown;
};

struct RebuiltStep {
    QJsonObject step;
    QString displayText; // the item's text in the tree
    int x; // Tutorial::kNoCoordinate for none
    int y;
    int flags; // of Tutorial::IndicatorFlag
};

// What the form shows for a step or group. A box gets its parameter's text,
// whether it has such a row or not.
StepFields loadStep(const QJsonObject& step, bool isGroup);

// The step after a change in the form. `before` is what the form held after the
// step was loaded into it, or at the former rebuild, and `now` what it holds.
// A key whose field is as before stays as it is, so that the step keeps what
// the form cannot show; only a condition is completed by the parameters that
// its kind has. `translation` is the hint's, for the display text.
RebuiltStep rebuildStep(const QJsonObject& step, bool isGroup, const StepFields& before,
    const StepFields& now, const QString& translation);

// The number in a coordinate's field; Tutorial::kNoCoordinate for any other text.
int coordinate(const QString& text);

// The flags of the indicator for what the form holds.
int indicatorFlags(const StepFields& fields);

// An item's text in the tree: the hint, and where the step stands when it
// follows a window.
QString displayText(
    const QString& hint, const QString& x, const QString& y, const QString& followWindow);

} // namespace TutorialEditor
