// SPDX-License-Identifier: MIT
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/debuglog.h"

using namespace TutorialEditor;

TutorialItem* Model::createGroup(const QString& name, int depth)
{
    auto* group = new TutorialItem(name);
    group->setGroup(true);
    group->setDepth(depth);
    group->setTranslation(name);
    const QJsonObject step{{QStringLiteral("hint"), QStringLiteral("qsTr(\"%1\")").arg(name)}};
    group->setStep(step);
    return group;
}

RowRun Model::runToGroup(const QList<QModelIndex>& siblings) const
{
    const TutorialItem* first = siblings.isEmpty() ? nullptr : itemAt(siblings.first());
    if (!first || first->isEndMarker())
        return {nullptr, 0, -1};
    QStandardItem* level = levelOf(first);
    const int row = first->row();
    int count = 1;
    while (count < siblings.size() && siblings.at(count) == index(row + count, 0, level->index())
        && !itemAt(siblings.at(count))->isEndMarker())
        ++count;
    return {level, row, row + count - 1};
}

void Model::grouping(TreeView* view, const QString& name, const QList<QModelIndex>& indexes)
{
    const RowRun run = runToGroup(indexes);
    if (!run.level)
        return;
    // A selected row that is taken out would be selected again at once, because
    // its group is.
    view->selectionModel()->clear();
    EDITOR_DEBUG << "before insert: " << run.first;
    TutorialItem* group = createGroup(name, levelDepth(run.level));
    wrapRows(run.level, run.first, run.last - run.first + 1, group);
    EDITOR_DEBUG << "after insert: " << group->row();
    view->selectRows(run.level, run.first, run.first);
    view->setExpanded(group->index(), true);
}

void Model::ungrouping(TreeView* view, QStandardItem* group)
{
    if (!group || group == invisibleRootItem())
        return;
    view->selectionModel()->clear();
    const QScopedPointer<QStandardItem> taken(group);
    QStandardItem* level = levelOf(group);
    const int row = group->row();
    const int count = unwrapGroup(group);
    if (count > 0)
        view->selectRows(level, row, row + count - 1);
}
