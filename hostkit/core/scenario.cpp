// SPDX-License-Identifier: MIT
#include "hostkit/core/scenario.h"

#include "hostkit/core/hostwords.h"

#include <QCoreApplication>
#include <QJsonObject>

#include <algorithm>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

QString text(const QJsonObject& json, const char* key)
{
    return json.value(QLatin1String(key)).toString();
}

std::optional<QPoint> pointOf(const QJsonObject& json)
{
    if (!json.contains(QLatin1String("x")) && !json.contains(QLatin1String("y")))
        return {};
    const QPoint point(
        json.value(QLatin1String("x")).toInt(), json.value(QLatin1String("y")).toInt());
    if (point == QPoint(kNoCoordinate, kNoCoordinate))
        return {};
    return point;
}

QString unknown(const QString& what, const QString& name)
{
    return QCoreApplication::translate("TutorialHost::Scenario", "unknown %1 “%2”").arg(what, name);
}

Step stepOf(const QJsonObject& json, const QList<int>& path, const HostWords& words)
{
    Step step;
    step.path = path;
    step.point = pointOf(json);
    step.window = words.window(text(json, "followWindow"));
    step.target = text(json, "target");
    step.condition = Condition::fromText(text(json, "condition"), words);
    step.label = text(json, "label");
    step.hint = text(json, "hint");
    step.icon = getIconKind(text(json, "icon"));
    step.arrowHidden = json.value(QLatin1String("option")).toInt() & 1;

    const QString command = text(json, "command");
    const QString commandName = command.section(QLatin1Char(','), 0, 0);
    if (getCommandKind(commandName) == Command_presetData)
        step.presetData = command.section(QLatin1Char(','), 1);
    else if (words.commands.contains(commandName)) {
        step.command = commandName;
        step.commandParameter = command.section(QLatin1Char(','), 1);
    }

    step.fault = step.condition.fault();
    if (step.window == WindowKindCount && !text(json, "followWindow").isEmpty())
        step.fault = unknown(QStringLiteral("followWindow"), text(json, "followWindow"));
    else if (step.presetData.isEmpty() && step.command.isEmpty() && !command.isEmpty())
        step.fault = unknown(QStringLiteral("command"), command);
    return step;
}

void append(Scenario& scenario, const QJsonArray& level, const QList<int>& parentPath,
    const HostWords& words)
{
    for (int row = 0; row < level.size(); ++row) {
        const QJsonObject json = level.at(row).toObject();
        const QList<int> path = parentPath + QList<int>{row};
        const QString label = text(json, "label");
        if (!label.isEmpty() && !scenario.labels.contains(label))
            scenario.labels.insert(label, scenario.steps.size());
        if (json.contains(QLatin1String("group")))
            append(scenario, json.value(QLatin1String("group")).toArray(), path, words);
        else if (!json.isEmpty())
            scenario.steps << stepOf(json, path, words);
    }
}

} // namespace

QString Step::pathText() const
{
    QStringList rows;
    for (int row : path)
        rows << QString::number(row);
    return QStringLiteral("[%1]").arg(rows.join(QLatin1Char(',')));
}

bool Step::offersNext() const
{
    return condition.kind == Condition_click || !condition.fault().isEmpty();
}

int Step::indicatorFlags() const
{
    return (offersNext() ? ShowNextFlag : 0)
        | (condition.kind == Condition_yesNo ? ShowYesNoFlag : 0)
        | (arrowHidden ? HideArrowFlag : 0);
}

Scenario Scenario::fromJson(const QJsonArray& steps)
{
    return fromJson(steps, {});
}

Scenario Scenario::fromJson(const QJsonArray& steps, const HostWords& words)
{
    Scenario scenario;
    append(scenario, steps, {}, words);
    return scenario;
}

int Scenario::indexOf(const QList<int>& path) const
{
    const auto found = std::find_if(steps.begin(), steps.end(),
        [&path](const Step& step) { return step.path.mid(0, path.size()) == path; });
    return found == steps.end() ? -1 : int(found - steps.begin());
}
