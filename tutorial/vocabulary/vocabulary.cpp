// SPDX-License-Identifier: MIT
#include "tutorial/vocabulary/vocabulary.h"

#include "tutorial/vocabulary/tutorialaction.h"

namespace {

#define TUTORIAL_NAME(name) QStringLiteral(#name),
const QString kWindowKindNames[] = {TUTORIAL_WINDOW_KINDS(TUTORIAL_NAME)};
const QString kConditionKindNames[] = {TUTORIAL_CONDITION_KINDS(TUTORIAL_NAME)};
const QString kIconKindNames[] = {TUTORIAL_ICON_KINDS(TUTORIAL_NAME)};
const QString kCommandKindNames[] = {TUTORIAL_COMMAND_KINDS(TUTORIAL_NAME)};
#undef TUTORIAL_NAME

const QString kNoName;

template <int count>
const QString& nameOf(const QString (&names)[count], int kind)
{
    return kind >= 0 && kind < count ? names[kind] : kNoName;
}

template <typename Kind, int count>
Kind kindOf(const QString (&names)[count], const QString& name)
{
    int kind = 0;
    while (kind < count && names[kind] != name)
        ++kind;
    return static_cast<Kind>(kind);
}

} // namespace

QString Tutorial::getConditionKindName(EnumConditionKind kind)
{
    return nameOf(kConditionKindNames, kind);
}

QString Tutorial::getIconKindName(EnumIconKind kind)
{
    return nameOf(kIconKindNames, kind);
}

QString Tutorial::getCommandKindName(EnumCommandKind kind)
{
    return nameOf(kCommandKindNames, kind);
}

Tutorial::EnumConditionKind Tutorial::getConditionKind(const QString& name)
{
    return kindOf<EnumConditionKind>(kConditionKindNames, name);
}

Tutorial::EnumIconKind Tutorial::getIconKind(const QString& name)
{
    return kindOf<EnumIconKind>(kIconKindNames, name);
}

Tutorial::EnumCommandKind Tutorial::getCommandKind(const QString& name)
{
    return kindOf<EnumCommandKind>(kCommandKindNames, name);
}

Tutorial::EnumWindowKind Tutorial::getWindowKind(const QString& name)
{
    return kindOf<EnumWindowKind>(kWindowKindNames, name);
}

const QString& TutorialAction::getWindowKindName(Tutorial::EnumWindowKind kind)
{
    return nameOf(kWindowKindNames, kind);
}
