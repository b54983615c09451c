// SPDX-License-Identifier: MIT
#include "editor/scenario/flow.h"

using namespace TutorialEditor;

QVector<bool> Flow::reached() const
{
    QVector<bool> reached(size() + 1, false);
    QVector<int> open = {0};
    reached[0] = true;
    while (!open.isEmpty()) {
        const int step = open.takeLast();
        if (step == size())
            continue;
        for (const int next : {mWays.at(step).first, mWays.at(step).second}) {
            if (!reached.at(next)) {
                reached[next] = true;
                open.append(next);
            }
        }
    }
    return reached;
}

QVector<bool> Flow::ending() const
{
    QVector<QVector<int>> before(size() + 1);
    for (int step = 0; step < size(); ++step) {
        for (const int next : {mWays.at(step).first, mWays.at(step).second})
            before[next].append(step);
    }
    QVector<bool> ending(size() + 1, false);
    QVector<int> open = {size()};
    ending[size()] = true;
    while (!open.isEmpty()) {
        for (const int step : before.at(open.takeLast())) {
            if (!ending.at(step)) {
                ending[step] = true;
                open.append(step);
            }
        }
    }
    return ending;
}
