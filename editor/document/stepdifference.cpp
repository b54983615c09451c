// SPDX-License-Identifier: MIT
#include "editor/document/stepdifference.h"

#include "editor/scenario/scenariowriter.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

using namespace TutorialEditor;

namespace {

const QString kGroup = QStringLiteral("group");

// Adds the steps' texts, a group's without its contents, `by` times each.
void count(const QJsonArray& steps, int by, QHash<QString, int>* counts)
{
    for (const QJsonValue& value : steps) {
        QJsonObject step = value.toObject();
        if (step.contains(kGroup)) {
            count(step.value(kGroup).toArray(), by, counts);
            step.insert(kGroup, QJsonArray());
        }
        (*counts)[scenarioJson({step})] += by;
    }
}

bool isWrittenWhole(const QString& key, const QJsonValue& value)
{
    if (key == QLatin1String("hint") || key == QLatin1String("comment"))
        return value.isString() || value.isNull();
    return !value.isDouble()
        || QString::number(value.toDouble(), 'g', 6).toDouble() == value.toDouble();
}

bool isWrittenWhole(const QJsonObject& step)
{
    const bool isGroup = step.contains(kGroup);
    for (auto it = step.begin(); it != step.end(); ++it) {
        const QString key = it.key();
        if (isGroup && key == kGroup) {
            if (!TutorialEditor::isWrittenWhole(it.value().toArray()))
                return false;
        } else if (!isWrittenWhole(key, it.value())
            || (isGroup && key != QLatin1String("hint") && key != QLatin1String("label"))) {
            return false;
        }
    }
    return true;
}

} // namespace

int TutorialEditor::differingSteps(const QJsonArray& one, const QJsonArray& other)
{
    QHash<QString, int> counts;
    count(one, 1, &counts);
    count(other, -1, &counts);
    int removed = 0;
    int added = 0;
    for (int difference : qAsConst(counts)) {
        removed += std::max(difference, 0);
        added += std::max(-difference, 0);
    }
    const int differing = std::max(removed, added);
    return differing == 0 && scenarioJson(one) != scenarioJson(other) ? 1 : differing;
}

bool TutorialEditor::isWrittenWhole(const QJsonArray& steps)
{
    return std::all_of(steps.begin(), steps.end(),
        [](const QJsonValue& step) { return ::isWrittenWhole(step.toObject()); });
}
