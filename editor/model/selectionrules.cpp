// SPDX-License-Identifier: MIT
#include "editor/model/selectionrules.h"

#include "editor/model/tutorialitem.h"

#include <QBitArray>
#include <QHash>

#include <algorithm>

using namespace TutorialEditor;

namespace {

// Whoever holds the item's row; null for the invisible root item.
QStandardItem* levelOf(const QStandardItem* item)
{
    if (item->parent())
        return item->parent();
    QStandardItem* root = item->model()->invisibleRootItem();
    return item == root ? nullptr : root;
}

class Widener {
public:
    explicit Widener(const QVector<RowRun>& selected)
    {
        for (const RowRun& run : selected) {
            for (int row = run.first; row <= run.last; ++row)
                noteTop(run.level->child(row));
        }
        noteShown();
        for (const RowRun& run : selected)
            add(run);
    }

    void widen()
    {
        do
            addContents();
        while (!isConsistent() && addParents());
    }

    const QVector<RowRun>& runs() const { return mRuns; }
    TutorialItem* shown() const { return mShown; }

private:
    void add(const RowRun& run)
    {
        mRuns << run;
        QBitArray& rows = mRows[run.level];
        rows.resize(run.level->rowCount());
        rows.fill(true, run.first, run.last + 1);
    }

    bool isSelected(const QStandardItem* item) const
    {
        const QStandardItem* level = levelOf(item);
        const QBitArray rows = mRows.value(level);
        return !rows.isEmpty() && rows.testBit(item->row());
    }

    // The top items are those at the smallest depth.
    void noteTop(QStandardItem* item)
    {
        TutorialItem* step = TutorialItem::from(item);
        if (!step || step->isEndMarker() || (mTop && mTop->depth() < step->depth()))
            return;
        mTopCount = mTop && mTop->depth() == step->depth() ? mTopCount + 1 : 1;
        mTop = step;
    }

    void noteShown()
    {
        if (mTopCount == 1)
            mShown = mTop;
    }

    // Adds all that is below the selected rows.
    void addContents()
    {
        for (; mClosedRuns < mRuns.size(); ++mClosedRuns) {
            const RowRun run = mRuns.at(mClosedRuns);
            for (int row = run.first; row <= run.last; ++row) {
                QStandardItem* item = run.level->child(row);
                if (item->rowCount() > 0)
                    addMissingRows(item);
            }
        }
    }

    void addMissingRows(QStandardItem* group)
    {
        QBitArray rows = mRows.value(group);
        rows.resize(group->rowCount());
        for (int row = 0; row < rows.size(); ++row) {
            if (rows.testBit(row))
                continue;
            const int first = row;
            while (row + 1 < rows.size() && !rows.testBit(row + 1))
                ++row;
            add({group, first, row});
        }
    }

    bool isConsistent() const
    {
        const QStandardItem* level = mRuns.first().level;
        const QStandardItem* first = level->child(mRuns.first().first);
        return std::all_of(mRuns.begin(), mRuns.end(), [&](const RowRun& run) {
            return run.level == level || run.level == first
                || (run.first == run.last && run.level->child(run.first) == level);
        });
    }

    // Adds the groups that hold the outermost rows. Done until the selection is
    // consistent, this ends with the group that all its branches have in common
    // or, when they have none, with their outermost groups. False when there is
    // nothing to add.
    bool addParents()
    {
        QVector<QStandardItem*> groups;
        for (const RowRun& run : qAsConst(mRuns)) {
            if (levelOf(run.level) && !isSelected(run.level) && !groups.contains(run.level))
                groups << run.level;
        }
        for (QStandardItem* group : qAsConst(groups)) {
            add({levelOf(group), group->row(), group->row()});
            noteTop(group);
            noteShown();
        }
        return !groups.isEmpty();
    }

    QVector<RowRun> mRuns;
    int mClosedRuns = 0;
    QHash<const QStandardItem*, QBitArray> mRows;
    TutorialItem* mTop = nullptr;
    int mTopCount = 0;
    TutorialItem* mShown = nullptr;
};

} // namespace

WidenedSelection TutorialEditor::widenSelection(const QVector<RowRun>& selected)
{
    if (selected.isEmpty())
        return WidenedSelection();
    Widener widener(selected);
    widener.widen();
    return {widener.runs().mid(selected.size()), widener.shown()};
}
