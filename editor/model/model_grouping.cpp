// SPDX-License-Identifier: MIT
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/debuglog.h"

#include <algorithm>

using namespace TutorialEditor;

namespace {

// End markers keep the depth that marks them.
void changeDepth(QStandardItem* item, int difference)
{
    TutorialItem* step = TutorialItem::from(item);
    if (!step || step->isEndMarker())
        return;
    step->setDepth(step->depth() + difference);
    for (int row = 0; row < item->rowCount(); ++row)
        changeDepth(item->child(row), difference);
}

// Takes rows out of a level, the last one first, since that moves no other row.
QList<QStandardItem*> takeRows(QStandardItem* level, int first, int count)
{
    QList<QStandardItem*> items;
    for (int row = first + count - 1; row >= first; --row)
        items << level->takeRow(row).first();
    std::reverse(items.begin(), items.end());
    return items;
}

TutorialItem* createGroup(const QString& name, int depth)
{
    auto* group = new TutorialItem(name);
    group->setGroup(true);
    group->setDepth(depth);
    group->setTranslation(name);
    const QJsonObject step{{QStringLiteral("hint"), QStringLiteral("qsTr(\"%1\")").arg(name)}};
    group->setStep(step);
    return group;
}

} // namespace

void Model::grouping(TreeView* view, const QString& name, const QList<QModelIndex>& indexes)
{
    const TutorialItem* first = indexes.isEmpty() ? nullptr : itemAt(indexes.first());
    if (!first || first->isEndMarker())
        return;
    QStandardItem* level = levelOf(first);
    const int row = first->row();
    int count = 1;
    while (count < indexes.size() && indexes.at(count) == index(row + count, 0, level->index())
        && !itemAt(indexes.at(count))->isEndMarker())
        ++count;

    // A selected row that is taken out would be selected again at once, because
    // its group is.
    view->selectionModel()->clear();
    EDITOR_DEBUG << "before insert: " << row;
    TutorialItem* group = createGroup(name, levelDepth(level));
    QList<QStandardItem*> steps = takeRows(level, row, count);
    for (QStandardItem* step : qAsConst(steps)) {
        changeDepth(step, 1);
        group->appendRow(step);
    }
    group->appendRow(createEndMarker());
    level->insertRow(row, group);
    EDITOR_DEBUG << "after insert: " << first->row();

    view->selectRows(level, row, row);
    view->setExpanded(group->index(), true);
}

void Model::ungrouping(TreeView* view, QStandardItem* group)
{
    if (!group || group == invisibleRootItem())
        return;
    view->selectionModel()->clear();
    QStandardItem* level = levelOf(group);
    const int row = group->row();
    const QScopedPointer<QStandardItem> taken(level->takeRow(row).first());
    const QList<QStandardItem*> steps = takeRows(group, 0, group->rowCount() - 1);
    for (QStandardItem* step : steps) {
        EDITOR_DEBUG << step->text();
        changeDepth(step, -1);
    }
    insertItems(level, row, steps);
    if (!steps.isEmpty())
        view->selectRows(level, row, row + steps.size() - 1);
}

void Model::insertItems(QStandardItem* level, int row, const QList<QStandardItem*>& items)
{
    // A block of rows is inserted without what is below them.
    QVector<QList<QStandardItem*>> contents;
    for (QStandardItem* item : items)
        contents << takeRows(item, 0, item->rowCount());
    level->insertRows(row, items);
    for (int i = 0; i < items.size(); ++i) {
        if (!contents.at(i).isEmpty())
            insertItems(items.at(i), 0, contents.at(i));
    }
}
