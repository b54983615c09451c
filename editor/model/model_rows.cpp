// SPDX-License-Identifier: MIT
#include "editor/model/model.h"

#include "editor/model/tutorialitem.h"
#include "editor/scenario/stepfields.h"

#include <QSignalBlocker>

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

} // namespace

QList<QStandardItem*> Model::takeRows(QStandardItem* level, int first, int count)
{
    QList<QStandardItem*> items;
    if (count == 0)
        return items;
    {
        // Taken one by one the rows would be announced one by one. What is left of
        // them goes at once, below.
        const QSignalBlocker blocker(level->model() ? this : nullptr);
        for (int row = first; row < first + count; ++row)
            items << level->takeChild(row);
    }
    level->removeRows(first, count);
    return items;
}

void Model::insertItems(QStandardItem* level, int row, const QList<QStandardItem*>& items)
{
    if (items.isEmpty())
        return;
    // A block of rows is inserted without what is below them.
    QVector<QList<QStandardItem*>> contents;
    for (QStandardItem* item : items)
        contents << takeRows(item, 0, item->rowCount());
    // Rows that bring their column with them would announce both at once.
    if (level->columnCount() == 0)
        level->setColumnCount(1);
    level->insertRows(row, items);
    for (int i = 0; i < items.size(); ++i)
        insertItems(items.at(i), 0, contents.at(i));
}

void Model::wrapRows(QStandardItem* level, int row, int count, TutorialItem* group)
{
    const QList<QStandardItem*> steps = takeRows(level, row, count);
    for (QStandardItem* step : steps)
        changeDepth(step, 1);
    if (group->columnCount() == 0)
        group->setColumnCount(1);
    group->insertRows(0, steps);
    if (group->rowCount() == steps.size())
        group->appendRow(createEndMarker());
    insertItems(level, row, {group});
}

int Model::unwrapGroup(QStandardItem* group)
{
    QStandardItem* level = levelOf(group);
    const int row = group->row();
    takeRows(level, row, 1);
    const QList<QStandardItem*> steps = takeRows(group, 0, group->rowCount() - 1);
    for (QStandardItem* step : steps)
        changeDepth(step, -1);
    insertItems(level, row, steps);
    return steps.size();
}

QList<QStandardItem*> Model::exchangeRows(const QList<QStandardItem*>& rows)
{
    QList<QStandardItem*> former;
    beginResetModel();
    {
        // The reset announces all that happens inside of it.
        const QSignalBlocker blocker(this);
        former = takeRows(invisibleRootItem(), 0, rowCount());
        insertItems(invisibleRootItem(), 0, rows);
    }
    endResetModel();
    return former;
}

void Model::updateRow(TutorialItem* item)
{
    const QJsonObject& step = item->step();
    const auto text = [&step](const char* key) {
        return step.value(QLatin1String(key)).toVariant().toString();
    };
    const QVariant decoration = icon(Tutorial::getIconKind(text("icon")));
    if (item->data(Qt::DecorationRole) != decoration)
        item->setData(decoration, Qt::DecorationRole);
    item->setData(displayText(item->translation().isEmpty() ? text("hint") : item->translation(),
                      text("x"), text("y"), text("followWindow")),
        Qt::EditRole);
}
