// SPDX-License-Identifier: MIT
#include "hostkit/core/condition.h"

#include "hostkit/core/hostwords.h"

#include <QCoreApplication>
#include <QHash>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

const QHash<QString, bool (*)(int, int)> kComparisons = {
    {QStringLiteral("="), [](int left, int right) { return left == right; }},
    {QStringLiteral("<"), [](int left, int right) { return left < right; }},
    {QStringLiteral("<="), [](int left, int right) { return left <= right; }},
    {QStringLiteral(">"), [](int left, int right) { return left > right; }},
    {QStringLiteral(">="), [](int left, int right) { return left >= right; }},
    {QStringLiteral("!="), [](int left, int right) { return left != right; }},
};
const QStringList kStates = {QStringLiteral("open"), QStringLiteral("close"), QStringLiteral("ok"),
    QStringLiteral("cancel")};
const QStringList kMouseEvents = {QStringLiteral("click"), QStringLiteral("doubleClick")};

bool compare(std::optional<int> left, const QString& comparison, int right)
{
    const auto holds = kComparisons.value(comparison);
    return left && holds && holds(*left, right);
}

bool isInteger(const QString& text)
{
    bool ok = false;
    (void)text.toInt(&ok);
    return ok;
}

bool isSeconds(const QString& text)
{
    bool ok = false;
    return text.toDouble(&ok) >= 0 && ok;
}

bool parametersAreSound(const Condition& condition)
{
    const QString first = condition.parameter(0);
    const QString second = condition.parameter(1);
    switch (condition.kind) {
    case Condition_windowState:
        return condition.subject != WindowKindCount && kStates.contains(second);
    case Condition_wait:
        return isSeconds(first);
    case Condition_mouseEvent:
        return !first.isEmpty() && kMouseEvents.contains(second);
    case Condition_textLength:
    case Condition_spinBox:
        return kComparisons.contains(first) && isInteger(second);
    case Condition_popup:
        return !first.isEmpty();
    case Condition_list:
        return isInteger(first);
    case Condition_action:
        return !first.isEmpty();
    case Condition_pressed:
        return isInteger(first) && isInteger(second);
    case Condition_comboBox:
        return !first.isEmpty() && isInteger(second);
    case Condition_checked:
        return !first.isEmpty() && (second == QLatin1String("0") || second == QLatin1String("1"));
    default:
        return true;
    }
}

} // namespace

Condition Condition::fromText(const QString& text)
{
    return fromText(text, {});
}

Condition Condition::fromText(const QString& text, const HostWords& words)
{
    Condition condition;
    condition.text = text;
    condition.parameters = text.split(QLatin1Char(','));
    const QString name = condition.parameters.takeFirst();
    condition.kind = getConditionKind(name);
    if (condition.kind == Condition_windowState)
        condition.subject = words.window(condition.parameter(0));
    else if (condition.kind == ConditionKindCount)
        condition.own = words.conditions.value(name);
    return condition;
}

QString Condition::fault() const
{
    if (own)
        return {};
    if (kind == ConditionKindCount)
        return QCoreApplication::translate("TutorialHost::Condition", "unknown condition “%1”")
            .arg(text);
    if (!parametersAreSound(*this))
        return QCoreApplication::translate("TutorialHost::Condition", "wrong parameters in “%1”")
            .arg(text);
    return {};
}

bool TutorialHost::isMet(
    const Condition& condition, EnumWindowKind followed, const HostState& state)
{
    if (condition.own)
        return condition.own(condition.parameters);
    if (!parametersAreSound(condition))
        return false;
    const QString first = condition.parameter(0);
    const QString second = condition.parameter(1);
    switch (condition.kind) {
    case Condition_windowState: {
        const QString now = state.windowState(condition.subject);
        return second == QLatin1String("close") ? now != QLatin1String("open") : now == second;
    }
    case Condition_textLength:
        return compare(state.textLength(followed), first, second.toInt());
    case Condition_comboBox:
        return state.comboBoxRow(followed, first) == second.toInt();
    case Condition_checked:
        return state.isChecked(followed, first) == (second == QLatin1String("1"));
    case Condition_spinBox:
        return compare(state.spinBoxValue(followed), first, second.toInt());
    default:
        return false;
    }
}

bool TutorialHost::isAboutNothing(
    const Condition& condition, EnumWindowKind followed, const HostState& state)
{
    const QString name = condition.parameter(0);
    return (condition.kind == Condition_comboBox && !state.comboBoxRow(followed, name))
        || (condition.kind == Condition_checked && !state.isChecked(followed, name));
}

bool TutorialHost::isMetBy(
    const Condition& condition, EnumWindowKind followed, const HostEvent& event)
{
    if (condition.kind != event.kind || !parametersAreSound(condition))
        return false;
    const QString first = condition.parameter(0);
    const bool inFollowed = followed == WindowKindCount || event.windows.contains(followed);
    switch (condition.kind) {
    case Condition_mouseEvent:
        return event.parameters == condition.parameters.mid(0, 2);
    case Condition_popup:
        return first == QLatin1String("*") || event.parameters.value(0) == first;
    case Condition_list:
        return inFollowed && (first == QLatin1String("-1") || event.parameters.value(0) == first);
    case Condition_action:
        return event.parameters.value(0) == first;
    case Condition_pressed:
        return inFollowed && event.parameters == condition.parameters.mid(0, 2);
    default:
        return false;
    }
}
