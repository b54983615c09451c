// SPDX-License-Identifier: MIT
#include "editor/model/selectionrules.h"

#include "editor/model/tutorialitem.h"

#include <QBitArray>
#include <QHash>

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
        while (addParents());
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

    // The selected rows whose level is not itself selected.
    QVector<RowRun> outermost() const
    {
        QVector<RowRun> runs;
        for (const RowRun& run : mRuns) {
            if (!levelOf(run.level) || !isSelected(run.level))
                runs << run;
        }
        return runs;
    }

    // Adds the group that the outermost rows have in common or, when they have
    // none, the groups that hold them. False when they are siblings.
    bool addParents()
    {
        const QVector<RowRun> runs = outermost();
        QStandardItem* common = runs.first().level;
        bool areSiblings = true;
        QVector<QStandardItem*> groups;
        for (const RowRun& run : runs) {
            areSiblings &= run.level == runs.first().level;
            while (!isWithin(run.level, common))
                common = levelOf(common);
            if (levelOf(run.level) && !groups.contains(run.level))
                groups << run.level;
        }
        if (areSiblings)
            return false;
        if (levelOf(common))
            groups = {common};
        for (QStandardItem* group : qAsConst(groups)) {
            add({levelOf(group), group->row(), group->row()});
            noteTop(group);
            noteShown();
        }
        return true;
    }

    static bool isWithin(const QStandardItem* level, const QStandardItem* ancestor)
    {
        while (level && level != ancestor)
            level = levelOf(level);
        return level;
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
