// SPDX-License-Identifier: MIT
#include "editor/scenario/condition.h"

#include <QtGlobal>

using namespace TutorialEditor;

namespace {

using V = ParameterView;

// One row a kind, in the order of the vocabulary, and one for unknown kinds.
// clang-format off
#define MEANING(text) QT_TRANSLATE_NOOP("TutorialEditor::Dialog", text)
constexpr std::array<ConditionParameters, Tutorial::ConditionKindCount + 1> kConditions = {{
    /* windowState */ {{{V::ConditionWindow, "MainWindow"}, {V::WindowState, "open"}, {}}},
    /* wait        */ {{{V::Field, "1", MEANING("How long the step is shown, in seconds")}, {}, {}}},
    // The list box does not know "click" and keeps its row.
    /* mouseEvent  */ {{{V::List, "click"}, {V::MouseEvent}, {}}},
    /* textLength  */ {{{V::Comparison, ">="}, {V::Field, "1", MEANING("The number of characters")}, {}}},
    /* popup       */ {{{V::Field, "*", MEANING("The list whose menu has to open; * is any")}, {}, {}}},
    /* list        */ {{{V::Field, "-1", MEANING("The row that has to be chosen, counted from 0")}, {}, {}}},
    /* click       */ {{{V::Field, "", MEANING("Nothing: Next is what has to be pressed")}, {}, {}}},
    // The second parameter belongs to the text, though the form does not show it.
    /* action      */ {{{V::HostAction, "Map"}, {V::HiddenField}, {}}},
    /* pressed     */ {{{V::Field, "0", MEANING("The page of the button, counted from 0")},
                        {V::Field, "0", MEANING("The button that has to be pressed, counted from 0")}, {}}},
    /* comboBox    */ {{{V::Field, "trigger", MEANING("The name of the combo box")},
                        {V::Field, "0", MEANING("The row that it has to show, counted from 0")}, {}}},
    /* checked     */ {{{V::Field, "walkAnime", MEANING("The name of the check box")},
                        {V::Field, "1", MEANING("1 when it has to be checked, 0 when not")}, {}}},
    /* spinBox     */ {{{V::Comparison, ">="}, {V::Field, "0", MEANING("The value")}, {}}},
    /* yesNo       */ {{{V::Field, "", MEANING("The label of the step after Yes; empty for the next step")},
                        {V::Field, "", MEANING("The label of the step after No; empty for the next step")}, {}}},
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
