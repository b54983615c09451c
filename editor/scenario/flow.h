// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

namespace TutorialEditor {

// The ways on from the steps of a scenario, in the order in which they are
// played: of each one the next, and of a question two. The number of the steps
// stands for the end.
class Flow {
public:
    void append(int first, int second) { mWays.append({first, second}); }
    int size() const { return mWays.size(); }
    int first(int step) const { return mWays.at(step).first; }
    int second(int step) const { return mWays.at(step).second; }

    // Which steps are reached from the first one, and from which the end is;
    // one more than there are steps, the last for the end.
    QVector<bool> reached() const;
    QVector<bool> ending() const;

private:
    struct Ways {
        int first;
        int second;
    };
    QVector<Ways> mWays;
};

} // namespace TutorialEditor
