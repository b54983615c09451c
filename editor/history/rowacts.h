// SPDX-License-Identifier: MIT
#pragma once

#include "editor/history/stephistory.h"

#include <QList>
#include <QStandardItem>
#include <QUndoCommand>

#include <memory>

namespace TutorialEditor {

// An act that has been done when it comes to the stack: the first redo does nothing.
class StepHistory::Act : public QUndoCommand {
public:
    Act(StepHistory* history, const QString& name) : QUndoCommand(name), mHistory(*history) { }

    void redo() final
    {
        if (mIsDone)
            redoAgain();
        mIsDone = true;
    }

protected:
    virtual void redoAgain() = 0;

    StepHistory& mHistory;

private:
    bool mIsDone = false;
};

// One that changes which rows there are. Items that it has taken off the tree are
// its own.
class StepHistory::RowAct : public Act {
public:
    using Act::Act;

    void setSelections(const QVector<RowRun>& before, const QVector<RowRun>& after);
    void undo() final;

    // Does it, and takes it back. Nothing is selected meanwhile, and nothing in the
    // form.
    virtual void apply() = 0;
    virtual void revert() = 0;

protected:
    void redoAgain() final;
    // Has to come before rows are taken: while they go nothing is selected, since
    // the rules would select them again.
    void prepareTaking();
    // Takes rows off the tree, and notes which of them are open groups.
    QList<QStandardItem*> take(const RowRun& run);
    // Puts them back and opens those groups.
    void put(const RowRun& run, const QList<QStandardItem*>& items);

private:
    void finish(const QVector<RowRun>& selection);

    QVector<RowRun> mBefore;
    QVector<RowRun> mAfter;
    QVector<QStandardItem*> mExpanded;
};

class StepHistory::InsertAct : public RowAct {
public:
    InsertAct(StepHistory* history, const RowRun& run, const QString& name)
        : RowAct(history, name), mRun(run)
    {
    }
    ~InsertAct() override { qDeleteAll(mItems); }

    void apply() override;
    void revert() override;

private:
    const RowRun mRun;
    QList<QStandardItem*> mItems; // while it is undone
};

class StepHistory::RemoveAct : public RowAct {
public:
    RemoveAct(StepHistory* history, const QVector<RowRun>& runs, const QString& name)
        : RowAct(history, name), mRuns(runs)
    {
    }
    ~RemoveAct() override;

    void apply() override;
    void revert() override;

private:
    const QVector<RowRun> mRuns;
    QVector<QList<QStandardItem*>> mItems; // of each run, while it is done
};

// Makes a group of rows, or rows of a group.
class StepHistory::GroupAct : public RowAct {
public:
    // run: the rows while they are in no group.
    GroupAct(StepHistory* history, const RowRun& run, TutorialItem* group, bool isGrouping,
        const QString& name)
        : RowAct(history, name), mRun(run), mGroup(group), mIsGrouping(isGrouping)
    {
    }
    ~GroupAct() override;

    void apply() override { mIsGrouping ? wrap() : unwrap(); }
    void revert() override { mIsGrouping ? unwrap() : wrap(); }

private:
    void wrap();
    void unwrap();

    const RowRun mRun;
    TutorialItem* const mGroup;
    const bool mIsGrouping;
    bool mOwnsGroup = false;
    bool mWasExpanded = true;
};

// Puts all steps in place of all others.
class StepHistory::ReplaceAct : public RowAct {
public:
    ReplaceAct(StepHistory* history, const QList<QStandardItem*>& items, const QString& name)
        : RowAct(history, name), mItems(items)
    {
    }
    ~ReplaceAct() override { qDeleteAll(mItems); }

    void apply() override;
    void revert() override { apply(); }

private:
    QList<QStandardItem*> mItems; // those that are not in the tree
    QVector<QStandardItem*> mExpandedThere;
};

} // namespace TutorialEditor
