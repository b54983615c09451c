// SPDX-License-Identifier: MIT
#include "editor/scenario/condition.h"
#include "editor/scenario/stepcheck.h"
#include "editor/scenario/targetpath.h"
#include "editor/scenario/translationexpression.h"
#include "tutorial/vocabulary/tutorialaction.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QRegularExpression>

#include <limits>

using namespace TutorialEditor;
using namespace Tutorial;

namespace {

const QString kFollowWindow = QStringLiteral("followWindow");
const QString kIcon = QStringLiteral("icon");
const QString kCondition = QStringLiteral("condition");
const QString kCommand = QStringLiteral("command");
const QString kTarget = QStringLiteral("target");

const QStringList kStates = {QStringLiteral("open"), QStringLiteral("close"), QStringLiteral("ok"),
    QStringLiteral("cancel")};
const QStringList kMouseEvents = {QStringLiteral("click"), QStringLiteral("doubleClick")};
const QStringList kComparisons = {QStringLiteral("="), QStringLiteral("<"), QStringLiteral("<="),
    QStringLiteral(">"), QStringLiteral(">="), QStringLiteral("!=")};
const QStringList kLists = {
    QStringLiteral("listBox1"), QStringLiteral("listBox2"), QStringLiteral("Map")};

// What a parameter of a condition has to be.
enum class Is {
    Anything,
    Window,
    State,
    Seconds,
    List,
    ListOrAny,
    MouseEvent,
    Comparison,
    Number,
    Row, // or -1 for any
    Index,
    Action,
    ComboBox,
    CheckBox,
    Switch
};

// One row a kind of condition, in their order.
constexpr std::array<std::array<Is, 2>, ConditionKindCount> kParameters = {{
    {Is::Window, Is::State}, // windowState
    {Is::Seconds, Is::Anything}, // wait
    {Is::List, Is::MouseEvent}, // mouseEvent
    {Is::Comparison, Is::Number}, // textLength
    {Is::ListOrAny, Is::Anything}, // popup
    {Is::Row, Is::Anything}, // list
    {Is::Anything, Is::Anything}, // click
    {Is::Action, Is::Anything}, // action
    {Is::Index, Is::Index}, // pressed
    {Is::ComboBox, Is::Index}, // comboBox
    {Is::CheckBox, Is::Switch}, // checked
    {Is::Comparison, Is::Number}, // spinBox
    {Is::Anything, Is::Anything}, // yesNo
}};

QStringList namesOf(int count, QString (*name)(int))
{
    QStringList names;
    for (int kind = 0; kind < count; ++kind)
        names << name(kind);
    return names;
}

const QStringList& windowNames()
{
    static const QStringList names = namesOf(WindowKindCount,
        [](int kind) { return TutorialAction::getWindowKindName(EnumWindowKind(kind)); });
    return names;
}

const QStringList& conditionNames()
{
    static const QStringList names = namesOf(
        ConditionKindCount, [](int kind) { return getConditionKindName(EnumConditionKind(kind)); });
    return names;
}

// A name that is none of these.
void addUnknown(StepProblems* problems, Rule rule, const QString& key, const QString& name,
    const QStringList& names, const QString& message, int offset = 0)
{
    Problem& problem = problems->add(rule, key, message.arg(name), suggestion(name, names));
    problem.offset = offset;
    problem.size = name.size();
}

void checkWindow(StepProblems* problems, const QString& key, const QString& name, int offset = 0)
{
    const HostNames& host = problems->options().names;
    const bool isGiven = host.isGiven(HostNames::Windows);
    if (isGiven ? host.contains(HostNames::Windows, name) : getWindowKind(name) != WindowKindCount)
        return;
    addUnknown(problems, Rule::UnknownWindow, key, name,
        isGiven ? host.names(HostNames::Windows) : windowNames(),
        isGiven ? Problem::tr("The host has no window “%1”")
                : Problem::tr("There is no window “%1”"),
        offset);
}

// The parameters of one condition.
class ParameterCheck {
public:
    ParameterCheck(const QStringList& parts, StepProblems* problems)
        : mParts(parts), mProblems(problems)
    {
    }

    void check(int parameter, Is is);

private:
    const HostNames& host() const { return mProblems->options().names; }
    bool isWholeNumber(int least) const;
    void reject(const QString& expected);
    void checkName(HostNames::List list, Rule rule, const QString& message);
    void checkList();

    const QStringList mParts;
    StepProblems* mProblems;
    QString mName;
    int mOffset = 0;
};

bool ParameterCheck::isWholeNumber(int least) const
{
    bool isNumber = false;
    return mName.toInt(&isNumber) >= least && isNumber;
}

void ParameterCheck::reject(const QString& expected)
{
    Problem& problem = mProblems->add(Rule::ConditionNeverMet, kCondition,
        mName.isEmpty() ? Problem::tr("The condition lacks a parameter")
                        : Problem::tr("The condition is never met with “%1”").arg(mName),
        Problem::tr("Expected is %1").arg(expected));
    problem.offset = mOffset;
    problem.size = mName.size();
}

void ParameterCheck::checkName(HostNames::List list, Rule rule, const QString& message)
{
    if (mName.isEmpty())
        reject(Problem::tr("a name"));
    else if (host().isGiven(list) && !host().contains(list, mName))
        addUnknown(mProblems, rule, kCondition, mName, host().names(list), message, mOffset);
}

void ParameterCheck::checkList()
{
    const bool isGiven = host().isGiven(HostNames::Lists);
    if (isGiven ? host().contains(HostNames::Lists, mName) : kLists.contains(mName))
        return;
    addUnknown(mProblems, Rule::UnknownList, kCondition, mName,
        isGiven ? host().names(HostNames::Lists) : kLists,
        isGiven ? Problem::tr("The host has no list “%1”") : Problem::tr("There is no list “%1”"),
        mOffset);
}

void ParameterCheck::check(int parameter, Is is)
{
    mName = mParts.value(parameter + 1);
    mOffset = 0;
    for (int i = 0; i <= parameter && i < mParts.size(); ++i)
        mOffset += mParts.at(i).size() + 1;
    bool isNumber = false;
    switch (is) {
    case Is::Anything:
        return;
    case Is::Window:
        return checkWindow(mProblems, kCondition, mName, mOffset);
    case Is::State:
        return kStates.contains(mName) ? void() : reject(kStates.join(QLatin1String(", ")));
    case Is::Seconds:
        return mName.toDouble(&isNumber) >= 0 && isNumber ? void() : reject(Problem::tr("seconds"));
    case Is::ListOrAny:
        return mName == QLatin1String("*") ? void() : checkList();
    case Is::List:
        return checkList();
    case Is::MouseEvent:
        return kMouseEvents.contains(mName) ? void()
                                            : reject(kMouseEvents.join(QLatin1String(", ")));
    case Is::Comparison:
        return kComparisons.contains(mName) ? void()
                                            : reject(kComparisons.join(QLatin1String(", ")));
    case Is::Number:
        return isWholeNumber(std::numeric_limits<int>::min())
            ? void()
            : reject(Problem::tr("a whole number"));
    case Is::Row:
        return isWholeNumber(-1) ? void()
                                 : reject(Problem::tr("a row, counted from 0, or -1 for any"));
    case Is::Index:
        return isWholeNumber(0) ? void() : reject(Problem::tr("a number, counted from 0"));
    case Is::Action:
        return checkName(
            HostNames::Actions, Rule::UnknownAction, Problem::tr("The host has no action “%1”"));
    case Is::ComboBox:
        return checkName(HostNames::ComboBoxes, Rule::UnknownComboBox,
            Problem::tr("The host has no combo box “%1”"));
    case Is::CheckBox:
        return checkName(HostNames::CheckBoxes, Rule::UnknownCheckBox,
            Problem::tr("The host has no check box “%1”"));
    case Is::Switch:
        return mName == QLatin1String("0") || mName == QLatin1String("1")
            ? void()
            : reject(Problem::tr("1 for on or 0 for off"));
    }
}

// A length that no text has.
bool isNeverALength(const QString& comparison, const QString& number)
{
    const int length = number.toInt();
    return (comparison == QLatin1String("<") && length <= 0)
        || (comparison == QLatin1String("<=") && length < 0)
        || (comparison == QLatin1String("=") && length < 0);
}

// The text that the form begins a condition with, for the kinds that say
// nothing then.
bool isLeftAtDefault(EnumConditionKind kind, const QStringList& parts)
{
    static const QSet<int> kSaysNothing = {
        Condition_windowState, Condition_list, Condition_action, Condition_spinBox};
    if (!kSaysNothing.contains(kind))
        return false;
    const auto& parameters = conditionParameters(kind);
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (parts.value(int(i) + 1) != QLatin1String(parameters[i].byDefault))
            return false;
    }
    return true;
}

void checkCondition(const QString& text, StepProblems* problems)
{
    const HostNames& host = problems->options().names;
    const QStringList parts = splitCondition(text);
    const EnumConditionKind kind = getConditionKind(parts.first());
    if (kind == ConditionKindCount) {
        if (!host.contains(HostNames::Conditions, parts.first()))
            addUnknown(problems, Rule::UnknownCondition, kCondition, parts.first(),
                conditionNames() + host.names(HostNames::Conditions),
                Problem::tr("There is no condition “%1”"));
        return;
    }
    ParameterCheck check(parts, problems);
    for (int i = 0; i < 2; ++i)
        check.check(i, kParameters[std::size_t(kind)][std::size_t(i)]);
    if (kind == Condition_textLength && isNeverALength(parts.value(1), parts.value(2)))
        problems->add(Rule::ConditionNeverMet, kCondition, Problem::tr("No text has such a length"),
            Problem::tr("Expected is %1").arg(QStringLiteral("textLength,>=,1")));
    if (isLeftAtDefault(kind, parts))
        problems->add(Rule::ConditionDefault, kCondition,
            Problem::tr("The condition was left as the form begins it"),
            Problem::tr("Say what is waited for"));
}

void checkCommand(const QString& text, StepProblems* problems)
{
    const HostNames& host = problems->options().names;
    const QString name = text.section(QLatin1Char(','), 0, 0);
    const QString parameter = text.section(QLatin1Char(','), 1);
    const bool isOfHost =
        host.contains(HostNames::Commands, name) || host.contains(HostNames::Commands, text);
    if (getCommandKind(name) == CommandKindCount) {
        if (!isOfHost)
            addUnknown(problems, Rule::UnknownCommand, kCommand, name,
                QStringList(getCommandKindName(Command_presetData)),
                Problem::tr("There is no command “%1”"));
    } else if (parameter.isEmpty()) {
        problems->add(Rule::CommandNeverDone, kCommand,
            Problem::tr("The command lacks its parameter"), Problem::tr("Write %1,NAME").arg(name));
    } else if (host.isGiven(HostNames::Commands) && !isOfHost
        && !host.contains(HostNames::Commands, parameter)) {
        problems->add(Rule::UnknownCommand, kCommand,
            Problem::tr("The host knows no “%1”").arg(parameter),
            suggestion(parameter, host.names(HostNames::Commands)));
    }
}

// Whether the host has what the target names, as far as its lists tell. A path
// may leave out names between its first and its last, and the rows of a list
// come and go.
bool isTargetOf(const HostNames& host, const TargetPath& target)
{
    if (!target.action.isEmpty() && host.contains(HostNames::Actions, target.action))
        return true;
    if (!host.isGiven(HostNames::Targets))
        return target.action.isEmpty() || !host.isGiven(HostNames::Actions);
    bool isOpen = false;
    const QStringList names = host.names(HostNames::Targets);
    for (const QString& name : names) {
        const TargetPath known = TargetPath::fromText(name);
        if (!known.fault.isEmpty() || known.action != target.action)
            continue;
        if (!target.action.isEmpty())
            return true;
        const QString& first = target.segments.first().name;
        const bool isInWindow = known.segments.first().name == first;
        isOpen = isOpen || isInWindow;
        if (known.segments.last().name == target.segments.last().name
            && (isInWindow || target.segments.size() == 1))
            return true;
    }
    // Of a window without any targets nothing is known.
    return target.action.isEmpty() && !isOpen
        && host.contains(HostNames::Windows, target.segments.first().name);
}

void checkTarget(const QString& text, StepProblems* problems)
{
    const HostNames& host = problems->options().names;
    // It may be in the words of the host alone.
    if (host.contains(HostNames::Targets, text))
        return;
    const TargetPath target = TargetPath::fromText(text);
    if (!target.fault.isEmpty()) {
        problems->add(Rule::MalformedTarget, kTarget, Problem::tr("“%1” is no target").arg(text),
            Problem::tr("Write window/widget, window/widget[row], or action:NAME"));
        return;
    }
    if (isTargetOf(host, target))
        return;
    const bool isNamedAction = !target.action.isEmpty() && !host.isGiven(HostNames::Targets);
    problems->add(Rule::UnknownTarget, kTarget,
        Problem::tr("The host has no target “%1”").arg(text),
        isNamedAction ? suggestion(target.action, host.names(HostNames::Actions))
                      : suggestion(text, host.names(HostNames::Targets)));
}

} // namespace

void TutorialEditor::checkRequests(const QJsonObject& step, StepProblems* problems)
{
    // An expression is told of as such.
    const auto text = [&step](const QString& key) {
        const QString value = step.value(key).toString();
        return beginsTranslationExpression(value) ? QString() : value;
    };
    const QString window = text(kFollowWindow);
    if (!window.isEmpty())
        checkWindow(problems, kFollowWindow, window);
    const QString condition = text(kCondition);
    if (!condition.isEmpty())
        checkCondition(condition, problems);
    else if (!step.contains(kCondition) || step.value(kCondition) == QString())
        problems->add(Rule::NoCondition, kCondition, Problem::tr("The step has no condition"),
            Problem::tr("Write click, for one that ends with Next"));
    const QString icon = text(kIcon);
    if (!icon.isEmpty() && getIconKind(icon) == IconKindCount)
        addUnknown(problems, Rule::UnknownIcon, kIcon, icon,
            namesOf(IconKindCount, [](int kind) { return getIconKindName(EnumIconKind(kind)); }),
            Problem::tr("There is no icon “%1”"));
    const QString command = text(kCommand);
    if (!command.isEmpty())
        checkCommand(command, problems);
    const QString target = text(kTarget);
    if (!target.isEmpty())
        checkTarget(target, problems);
}
