// SPDX-License-Identifier: MIT
#include "editor/history/rowacts.h"

#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/model/tutorialitem.h"

using namespace TutorialEditor;

void StepHistory::RowAct::setSelections(const QVector<RowRun>& before, const QVector<RowRun>& after)
{
    mBefore = before;
    mAfter = after;
}

void StepHistory::RowAct::undo()
{
    revert();
    finish(mBefore);
}

void StepHistory::RowAct::redoAgain()
{
    apply();
    finish(mAfter);
}

void StepHistory::RowAct::finish(const QVector<RowRun>& selection)
{
    ++mHistory.mRun;
    mHistory.mView.selectRuns(selection);
    if (!selection.isEmpty())
        mHistory.mView.scrollTo(selection.first().level->child(selection.first().first)->index());
    emit mHistory.rowsChanged();
}

void StepHistory::RowAct::prepareTaking()
{
    mHistory.mView.selectionModel()->clear();
    mExpanded.clear();
}

QList<QStandardItem*> StepHistory::RowAct::take(const RowRun& run)
{
    QList<QStandardItem*> rows;
    for (int row = run.first; row <= run.last; ++row)
        rows << run.level->child(row);
    mExpanded << mHistory.mView.expandedGroups(rows);
    return mHistory.mModel.takeRows(run.level, run.first, run.last - run.first + 1);
}

void StepHistory::RowAct::put(const RowRun& run, const QList<QStandardItem*>& items)
{
    mHistory.mModel.insertItems(run.level, run.first, items);
    mHistory.mView.expandGroups(mExpanded);
    emit mHistory.rowsReturned(run.level, run.first, items.size());
}

void StepHistory::InsertAct::apply()
{
    put(mRun, mItems);
    mItems.clear();
}

void StepHistory::InsertAct::revert()
{
    prepareTaking();
    mItems = take(mRun);
}

StepHistory::RemoveAct::~RemoveAct()
{
    for (const QList<QStandardItem*>& items : qAsConst(mItems))
        qDeleteAll(items);
}

void StepHistory::RemoveAct::apply()
{
    prepareTaking();
    // The last ones first, since that moves no other row of their level.
    for (int i = mRuns.size() - 1; i >= 0; --i)
        mItems.prepend(take(mRuns.at(i)));
}

void StepHistory::RemoveAct::revert()
{
    for (int i = 0; i < mRuns.size(); ++i)
        put(mRuns.at(i), mItems.at(i));
    mItems.clear();
}

StepHistory::GroupAct::~GroupAct()
{
    if (mOwnsGroup)
        delete mGroup;
}

void StepHistory::GroupAct::wrap()
{
    prepareTaking();
    QList<QStandardItem*> rows;
    for (int row = mRun.first; row <= mRun.last; ++row)
        rows << mRun.level->child(row);
    const QVector<QStandardItem*> expanded = mHistory.mView.expandedGroups(rows);
    mHistory.mModel.wrapRows(mRun.level, mRun.first, rows.size(), mGroup);
    mOwnsGroup = false;
    mHistory.mView.expandGroups(expanded);
    mHistory.mView.setExpanded(mGroup->index(), mWasExpanded);
}

void StepHistory::GroupAct::unwrap()
{
    prepareTaking();
    mWasExpanded = mHistory.mView.isExpanded(mGroup->index());
    QVector<QStandardItem*> expanded = mHistory.mView.expandedGroups({mGroup});
    expanded.removeAll(mGroup);
    mHistory.mModel.unwrapGroup(mGroup);
    mOwnsGroup = true;
    mHistory.mView.expandGroups(expanded);
}

void StepHistory::ReplaceAct::apply()
{
    QList<QStandardItem*> rows;
    QStandardItem* root = mHistory.mModel.invisibleRootItem();
    for (int row = 0; row < root->rowCount(); ++row)
        rows << root->child(row);
    const QVector<QStandardItem*> expanded = mHistory.mView.expandedGroups(rows);
    mItems = mHistory.mModel.exchangeRows(mItems);
    mHistory.mView.expandGroups(mExpandedThere);
    mExpandedThere = expanded;
    emit mHistory.rowsReturned(root, 0, root->rowCount());
}
