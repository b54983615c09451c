#include "editor/condition.h"

using namespace TutorialEditor;

namespace {

using V = ParameterView;

// One row a kind, in the order of the vocabulary, and one for unknown kinds.
// clang-format off
constexpr std::array<ConditionParameters, Tutorial::ConditionKindCount + 1> kConditions = {{
    /* windowState */ {{{V::ConditionWindow, "MainWindow"}, {V::WindowState, "open"}, {}}},
    /* wait        */ {{{V::Field, "1"}, {}, {}}},
    // The list box does not know "click" and keeps its row.
    /* mouseEvent  */ {{{V::List, "click"}, {V::MouseEvent}, {}}},
    /* textLength  */ {{{V::Comparison, ">="}, {V::Field, "1"}, {}}},
    /* popup       */ {{{V::Field, "*"}, {}, {}}},
    /* list        */ {{{V::Field, "-1"}, {}, {}}},
    /* click       */ {{{V::Field, ""}, {}, {}}},
    // The second parameter belongs to the text, though the form does not show it.
    /* action      */ {{{V::HostAction, "Map"}, {V::HiddenField}, {}}},
    /* pressed     */ {{{V::Field, "0"}, {V::Field, "0"}, {}}},
    /* comboBox    */ {{{V::Field, "trigger"}, {V::Field, "0"}, {}}},
    /* checked     */ {{{V::Field, "walkAnime"}, {V::Field, "1"}, {}}},
    /* spinBox     */ {{{V::Comparison, ">="}, {V::Field, "0"}, {}}},
    /* yesNo       */ {{{V::Field, ""}, {V::Field, ""}, {}}},
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
