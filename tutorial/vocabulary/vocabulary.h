// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The four shared enumerations. On the link they travel as numbers, in
// scenario files and in the authoring tool as names. Each list below is the
// one source of both: the position is the number, the identifier is the name.

// clang-format off
#define TUTORIAL_WINDOW_KINDS(X)                                                                   \
    X(MainWindow) X(NewProject) X(EventEditorMain) X(ImageSelector) X(EventCommandSelect)          \
    X(EventCommandTexts) X(Copying) X(EventCommand) X(MessageBox) X(MapLoader)                     \
    X(Popup) X(DatabaseMain) X(QuickBase) X(Location) X(VariableSelector)                          \
    X(CharacterGenerator) X(ImageSave) X(Action) X(AnimationBatch) X(AnimationCell)                \
    X(AnimationShift) X(AnimationTimings) X(AnimationTween) X(AttackMotion) X(AudioSelector)       \
    X(BattleConditions) X(BattleTest) X(ChangeMaximum) X(DropItem) X(Effects)                      \
    X(EquipmentItem) X(ExpCurve) X(FrameMaximum) X(GamePlayer) X(GenerateCurve)                    \
    X(MagicSkill) X(ParameterCurves) X(PluginHelpEverywhere) X(ResourcePreview) X(SkillsToLearn)   \
    X(StartingParty) X(SystemMessage) X(Traits) X(WindowColor) X(GameData)                         \
    X(Marchandise) /* the odd spelling is the kind's name; Merchandise is another kind */          \
    X(MovementCommand) X(MovementRoute) X(TextPreview) X(About)                                    \
    X(Deployment) X(Packaging) X(PluginHelp) X(PluginManager) X(PluginParameter)                   \
    X(PluginSettings) X(ResourceManager) X(SoundTest) X(TutorialSelector) X(Encounter)             \
    X(GenerateDungeon) X(MapProperties) X(MapSaveAsImage) X(MapShift) X(Options)                   \
    X(MapEditTreeBox) X(MapEditLeftPanelItem) X(FileDialog) X(EventSearcher) X(Merchandise)

#define TUTORIAL_CONDITION_KINDS(X)                                                                \
    X(windowState) X(wait) X(mouseEvent) X(textLength) X(popup) X(list) X(click) X(action)         \
    X(pressed) X(comboBox) X(checked) X(spinBox) X(yesNo)

#define TUTORIAL_ICON_KINDS(X) X(click) X(doubleClick) X(rightClick) X(eye) X(wait) X(keyboard)

#define TUTORIAL_COMMAND_KINDS(X) X(presetData)
// clang-format on

namespace Tutorial {

// The underlying types are fixed: a value read from the link may be any int.
// The ...KindCount values mean "none" or "unknown" and have no name.

#define TUTORIAL_ENUMERATOR(name) Window_##name,
enum EnumWindowKind : int { TUTORIAL_WINDOW_KINDS(TUTORIAL_ENUMERATOR) WindowKindCount };
#undef TUTORIAL_ENUMERATOR

#define TUTORIAL_ENUMERATOR(name) Condition_##name,
enum EnumConditionKind : int { TUTORIAL_CONDITION_KINDS(TUTORIAL_ENUMERATOR) ConditionKindCount };
#undef TUTORIAL_ENUMERATOR

#define TUTORIAL_ENUMERATOR(name) Icon_##name,
enum EnumIconKind : int { TUTORIAL_ICON_KINDS(TUTORIAL_ENUMERATOR) IconKindCount };
#undef TUTORIAL_ENUMERATOR

#define TUTORIAL_ENUMERATOR(name) Command_##name,
enum EnumCommandKind : int { TUTORIAL_COMMAND_KINDS(TUTORIAL_ENUMERATOR) CommandKindCount };
#undef TUTORIAL_ENUMERATOR

// Both coordinates of a target point that does not exist.
constexpr int kNoCoordinate = -9999;

// The bits of the flags that go with an indicator update.
enum IndicatorFlag : int { ShowNextFlag = 1, ShowYesNoFlag = 2, HideArrowFlag = 4 };

// Name of a kind; empty for a value outside of the enumeration.
QString getConditionKindName(EnumConditionKind kind);
QString getIconKindName(EnumIconKind kind);
QString getCommandKindName(EnumCommandKind kind);

// Kind of a name, compared exactly (case-sensitive, nothing trimmed); the
// enumeration's ...KindCount for a name that is not in it.
EnumConditionKind getConditionKind(const QString& name);
EnumIconKind getIconKind(const QString& name);
EnumCommandKind getCommandKind(const QString& name);

// The same for window kinds. TutorialAction::getWindowKindName is the way back.
EnumWindowKind getWindowKind(const QString& name);

} // namespace Tutorial
