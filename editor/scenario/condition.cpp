// SPDX-License-Identifier: MIT
#include "editor/scenario/condition.h"

#include <QtGlobal>

using namespace TutorialEditor;

namespace {

using V = ParameterView;

// One row a kind, in the order of the vocabulary, and one for unknown kinds.
// clang-format off
constexpr std::array<ConditionParameters, Tutorial::ConditionKindCount + 1> kConditions = {{
    /* windowState */ {{{V::ConditionWindow, "MainWindow"}, {V::WindowState, "open"}, {}}},
    /* wait        */ {{{V::Field, "1", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "How long the step is shown, in seconds")}, {}, {}}},
    // The list box does not know "click" and keeps its row.
    /* mouseEvent  */ {{{V::List, "click"}, {V::MouseEvent}, {}}},
    /* textLength  */ {{{V::Comparison, ">="}, {V::Field, "1", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The number of characters")}, {}}},
    /* popup       */ {{{V::Field, "*", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The list whose menu has to open; * is any")}, {}, {}}},
    /* list        */ {{{V::Field, "-1", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The row that has to be chosen, counted from 0")}, {}, {}}},
    /* click       */ {{{V::Field, "", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "Nothing: Next is what has to be pressed")}, {}, {}}},
    // The second parameter belongs to the text, though the form does not show it.
    /* action      */ {{{V::HostAction, "Map"}, {V::HiddenField}, {}}},
    /* pressed     */ {{{V::Field, "0", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The page of the button, counted from 0")},
                        {V::Field, "0", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The button that has to be pressed, counted from 0")}, {}}},
    /* comboBox    */ {{{V::Field, "trigger", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The name of the combo box")},
                        {V::Field, "0", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The row that it has to show, counted from 0")}, {}}},
    /* checked     */ {{{V::Field, "walkAnime", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The name of the check box")},
                        {V::Field, "1", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "1 when it has to be checked, 0 when not")}, {}}},
    /* spinBox     */ {{{V::Comparison, ">="}, {V::Field, "0", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The value")}, {}}},
    /* yesNo       */ {{{V::Field, "", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The label of the step after Yes; empty for the next step")},
                        {V::Field, "", QT_TRANSLATE_NOOP("TutorialEditor::StepForm", "The label of the step after No; empty for the next step")}, {}}},
    /* unknown     */ {{{V::Field}, {V::Field}, {V::Field}}},
}};
// clang-format on

} // namespace

const ConditionParameters& TutorialEditor::conditionParameters(Tutorial::EnumConditionKind kind)
{
    const bool isKnown = kind >= 0 && kind < Tutorial::ConditionKindCount;
    return kConditions[std::size_t(isKnown ? kind : Tutorial::ConditionKindCount)];
}

QStringList TutorialEditor::splitCondition(const QString& text)
{
    return text.split(QLatin1Char(','));
}

QString TutorialEditor::joinCondition(const QStringList& parts)
{
    return parts.join(QLatin1Char(','));
}
