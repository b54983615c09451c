// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/condition.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QHash>
#include <QJsonArray>
#include <QList>
#include <QPoint>
#include <QString>
#include <QVector>

#include <optional>

namespace TutorialHost {

struct HostWords;

// One step of a scenario, read from its JSON.
struct Step {
    // Where the step stands: the row at each level of grouping, outermost first.
    QList<int> path;
    // Relative to the followed window; nothing when the step points nowhere.
    std::optional<QPoint> point;
    // The kind that is no window when the scenario names none or an unknown
    // one: then the point is one of the screen.
    Tutorial::EnumWindowKind window = Tutorial::WindowKindCount;
    // The name of what it points at, which counts before the point; empty for
    // none.
    QString target;
    Condition condition;
    // As the file has it, so possibly a translation expression.
    QString hint;
    Tutorial::EnumIconKind icon = Tutorial::IconKindCount;
    bool arrowHidden = false;
    // Name of the data to load when the step begins; empty for none.
    QString presetData;
    // A command of the host's own, to be done when the step begins; empty for
    // none.
    QString command;
    QString commandParameter;
    QString label;
    // What the reader could not make sense of; empty when all is well.
    QString fault;

    // "[2,0]"
    QString pathText() const;
    // The step is ended by Next: as its condition says, or because it has a
    // condition that nothing else can end.
    bool offersNext() const;
    // The flags that go with the indicator's update.
    int indicatorFlags() const;
};

// The steps in the order in which they are played. Groups only gather steps,
// so they are taken apart here.
struct Scenario {
    static Scenario fromJson(const QJsonArray& steps);
    // The same, where the host has words of its own.
    static Scenario fromJson(const QJsonArray& steps, const HostWords& words);

    // Index of the first step at or below this path; -1 when there is none.
    int indexOf(const QList<int>& path) const;

    QVector<Step> steps;
    // The index of the step that carries the label, or of the first step of the
    // group that does. The first of several steps with one label wins.
    QHash<QString, int> labels;
};

} // namespace TutorialHost
