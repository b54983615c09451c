// SPDX-License-Identifier: MIT
#pragma once

#include "tutorial/vocabulary/vocabulary.h"

#include <QStringList>

#include <array>

namespace TutorialEditor {

// Where the form shows a parameter of a condition, and writes it from. A
// parameter field holds every parameter; a box is a view of its field.
enum class ParameterView {
    None, // not part of the condition: not shown, not written
    Field, // its parameter field
    HiddenField, // written from its parameter field, which is not shown
    ConditionWindow,
    WindowState,
    List,
    MouseEvent,
    Comparison,
    HostAction
};

constexpr bool isBox(ParameterView view)
{
    return view >= ParameterView::ConditionWindow;
}

struct ConditionParameter {
    ParameterView view = ParameterView::None;
    // What the field gets when the kind is chosen; null leaves it as it is.
    const char* byDefault = nullptr;
    // For the author, to be translated in the form's context; null for a box.
    const char* meaning = nullptr;
};

using ConditionParameters = std::array<ConditionParameter, 3>;

// The parameters of a kind. Those of an unknown kind are up to three fields,
// as many as are shown.
const ConditionParameters& conditionParameters(Tutorial::EnumConditionKind kind);

// The text of a condition is its kind's name and its parameters, joined by
// commas; empty parts count. Commands are composed the same way.
QStringList splitCondition(const QString& text);
QString joinCondition(const QStringList& parts);

} // namespace TutorialEditor
