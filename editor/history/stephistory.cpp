// SPDX-License-Identifier: MIT
#include "editor/history/stephistory.h"

#include "editor/history/editact.h"
#include "editor/history/rowacts.h"
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/model/tutorialitem.h"

using namespace TutorialEditor;

StepHistory::StepHistory(Model* model, TreeView* view, QObject* parent)
    : QObject(parent), mModel(*model), mView(*view)
{
}

QVector<RowRun> StepHistory::selection() const
{
    // The rules select what is below the outermost rows by themselves.
    QVector<RowRun> runs;
    for (const QModelIndex& index : mView.getSelectedIndexes()) {
        if (mView.selectionModel()->isSelected(index.parent()))
            continue;
        QStandardItem* level = mModel.levelOf(mModel.itemFromIndex(index));
        if (!runs.isEmpty() && runs.last().level == level && runs.last().last + 1 == index.row())
            ++runs.last().last;
        else
            runs.append({level, index.row(), index.row()});
    }
    return runs;
}

void StepHistory::push(RowAct* act, const QVector<RowRun>& before, const QVector<RowRun>& after)
{
    act->setSelections(before, after);
    mStack.push(act);
    ++mRun;
}

int StepHistory::insert(QStandardItem* level, int row, const QJsonArray& steps, QStringList* errors,
    const QString& name)
{
    const QVector<RowRun> before = selection();
    const int rows = level->rowCount();
    mModel.insertJsonRow(level, row, mModel.levelDepth(level), steps, errors, true);
    const int count = level->rowCount() - rows;
    if (count > 0)
        push(new InsertAct(this, {level, row, row + count - 1}, name), before,
            {{level, row, row + count - 1}});
    return count;
}

void StepHistory::remove(const QList<QModelIndex>& indexes, const QString& name)
{
    const QVector<RowRun> runs = mModel.topRuns(indexes);
    if (runs.isEmpty())
        return;
    const QVector<RowRun> before = selection();
    QStandardItem* level = runs.first().level;
    auto* act = new RemoveAct(this, runs, name);
    act->apply();
    int row = runs.first().first;
    if (row > 0 && TutorialItem::from(level->child(row))->isEndMarker())
        --row;
    mView.selectRows(level, row, row);
    push(act, before, {{level, row, row}});
}

void StepHistory::group(
    const QString& hint, const QList<QModelIndex>& siblings, const QString& name)
{
    const RowRun run = mModel.runToGroup(siblings);
    if (!run.level)
        return;
    const QVector<RowRun> before = selection();
    TutorialItem* group = Model::createGroup(hint, mModel.levelDepth(run.level));
    auto* act = new GroupAct(this, run, group, true, name);
    act->apply();
    const RowRun after{run.level, run.first, run.first};
    mView.selectRuns({after});
    mView.setExpanded(group->index(), true);
    push(act, before, {after});
}

void StepHistory::ungroup(QStandardItem* group, const QString& name)
{
    if (!group || group == mModel.invisibleRootItem())
        return;
    const QVector<RowRun> before = selection();
    const int row = group->row();
    const RowRun run{mModel.levelOf(group), row, row + group->rowCount() - 2};
    auto* act = new GroupAct(this, run, TutorialItem::from(group), false, name);
    act->apply();
    const QVector<RowRun> after = run.last < run.first ? QVector<RowRun>() : QVector<RowRun>{run};
    mView.selectRuns(after);
    push(act, before, after);
}

void StepHistory::replaceAll(const QJsonArray& steps, QStringList* errors, const QString& name)
{
    Model made(nullptr);
    made.setSteps(steps, errors);
    const QVector<RowRun> before = selection();
    auto* act =
        new ReplaceAct(this, made.takeRows(made.invisibleRootItem(), 0, made.rowCount()), name);
    act->apply();
    push(act, before, {});
}

void StepHistory::edit(TutorialItem* item, const QJsonObject& step, StepField field, bool isTyping,
    const QString& name)
{
    mStack.push(new EditAct(this, item, step, field, isTyping ? mRun : -1, name));
}

void StepHistory::addFields(TutorialItem* item, ShownFields fields, const QString& name)
{
    mStack.push(new FieldsAct(this, item, fields, name));
    ++mRun;
}

int StepHistory::stepCount(const QJsonArray& steps)
{
    int count = steps.size();
    for (const QJsonValue& step : steps)
        count += stepCount(step.toObject().value(QLatin1String("group")).toArray());
    return count;
}
