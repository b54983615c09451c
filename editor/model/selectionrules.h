// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

class QStandardItem;

namespace TutorialEditor {

class TutorialItem;

// Rows of one level that follow one another.
struct RowRun {
    QStandardItem* level; // the group that holds them, or the invisible root item
    int first;
    int last;
};

struct WidenedSelection {
    // What the rules select in addition, in the order in which they find it.
    QVector<RowRun> added;
    // The item that the form is to show; null when it stays as it is.
    TutorialItem* shown = nullptr;
};

// Widens a selection until the commands can work on it: to a run of siblings
// with all that is below them, or to a single group with its contents. The
// result depends on which run stands first, as Qt's selection model orders
// them. Takes time in proportion to the selected rows.
WidenedSelection widenSelection(const QVector<RowRun>& selected);

} // namespace TutorialEditor
