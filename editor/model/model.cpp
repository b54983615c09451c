// SPDX-License-Identifier: MIT
#include "editor/model/model.h"

#include "editor/model/tutorialitem.h"
#include "editor/scenario/debuglog.h"
#include "editor/scenario/scenarioreader.h"
#include "resource/pictures.h"

#include <QIcon>
#include <QJsonArray>
#include <QSignalBlocker>

#include <algorithm>
#include <functional>

using namespace TutorialEditor;

namespace {

const QString kIcon = QStringLiteral("icon");
const QString kGroup = QStringLiteral("group");

QString textOf(const QJsonObject& step, const char* key)
{
    return step.value(QLatin1String(key)).toString();
}

} // namespace

Model::Model(QObject* parent) : QStandardItemModel(parent)
{
    for (int kind = 0; kind < Tutorial::IconKindCount; ++kind)
        mIcons[kind] = QIcon(Tutorial::getIconFilename(static_cast<Tutorial::EnumIconKind>(kind)));
}

TutorialItem* Model::createEndMarker()
{
    return new TutorialItem(tr("<>"));
}

QVariant Model::icon(Tutorial::EnumIconKind kind) const
{
    return kind >= 0 && kind < Tutorial::IconKindCount ? mIcons[kind] : QVariant();
}

TutorialItem* Model::itemAt(const QModelIndex& index) const
{
    return TutorialItem::from(itemFromIndex(index));
}

QStandardItem* Model::levelOf(const QStandardItem* item) const
{
    return item->parent() ? item->parent() : invisibleRootItem();
}

int Model::levelDepth(QStandardItem* level) const
{
    const TutorialItem* group = level == invisibleRootItem() ? nullptr : TutorialItem::from(level);
    return group ? group->depth() + 1 : 0;
}

QList<int> Model::getActionIndexList(const QStandardItem* item) const
{
    QList<int> rows;
    for (QModelIndex index = item->index(); index.isValid(); index = index.parent())
        rows.prepend(index.row());
    return rows;
}

QStandardItem* Model::getItemByActionIndexList(const QList<int>& list) const
{
    if (list.isEmpty())
        return nullptr;
    QStandardItem* item = invisibleRootItem();
    for (int row : list) {
        if (row < 0 || row >= item->rowCount())
            break;
        item = item->child(row);
    }
    return item;
}

int Model::getMinimumDepth(const QList<QModelIndex>& indexes) const
{
    int minimum = -1;
    for (const QModelIndex& index : indexes) {
        const TutorialItem* item = itemAt(index);
        if (item && item->depth() >= 0 && (minimum < 0 || item->depth() < minimum))
            minimum = item->depth();
    }
    return minimum;
}

QList<QModelIndex> Model::getTopIndexes(const QList<QModelIndex>& indexes) const
{
    const int depth = getMinimumDepth(indexes);
    QList<QModelIndex> top;
    for (const QModelIndex& index : indexes) {
        const TutorialItem* item = itemAt(index);
        if (item && item->depth() == depth)
            top << index;
    }
    return top;
}

QString Model::getModelIndexListStr(const QList<QModelIndex>& indexes) const
{
    QStringList texts;
    for (const QModelIndex& index : indexes) {
        const QStandardItem* item = itemFromIndex(index);
        texts << logged(item ? item->text() : QString());
    }
    return QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')');
}

void Model::setContents(const QString& text, QStringList* errors, const QString& fileText)
{
    EDITOR_DEBUG;
    const int errorCount = errors->size();
    const QJsonArray steps = readSteps(text, errors, fileText);
    if (errors->size() == errorCount)
        setSteps(steps, errors);
    else
        removeRows(0, rowCount());
}

void Model::setSteps(const QJsonArray& steps, QStringList* errors)
{
    beginResetModel();
    {
        // The reset announces all that happens inside of it.
        const QSignalBlocker blocker(this);
        removeRows(0, rowCount());
        insertJsonRow(invisibleRootItem(), 0, 0, steps, errors, false);
    }
    endResetModel();
}

void Model::insertJsonRow(QStandardItem* parent, int row, int depth, const QJsonArray& steps,
    QStringList* errors, bool notify)
{
    const QSignalBlocker blocker(notify ? nullptr : this);
    const auto addError = [&](int i, const QString& message) {
        QStringList rows;
        for (int parentRow : getActionIndexList(parent))
            rows << QString::number(parentRow);
        rows << QString::number(row + i);
        errors->append(
            QStringLiteral("%1 (%2)").arg(message, tr("step %1").arg(rows.join(QLatin1Char(',')))));
    };

    QList<QStandardItem*> items;
    QVector<QPair<QStandardItem*, QJsonArray>> groups;
    for (int i = 0; i < steps.size(); ++i) {
        if (!steps.at(i).isObject())
            addError(i, tr("step is not an object"));
        QJsonObject step = steps.at(i).toObject();
        if (step.isEmpty())
            continue;

        // The steps of a group are its item's rows, and not a part of its text.
        const QJsonValue group = step.take(kGroup);
        TutorialItem* item = createItem(step, depth);
        items << item;
        if (!group.isUndefined()) {
            if (!group.isArray())
                addError(i, tr("group is not an array"));
            item->setGroup(true);
            groups.append({item, group.toArray()});
        }
        const QString icon = textOf(step, "icon");
        if (!icon.isEmpty() && Tutorial::getIconKind(icon) == Tutorial::IconKindCount)
            addError(i,
                tr("unknown icon: ")
                    + QStringLiteral("%1(%2)").arg(icon, textOf(step, "condition")));
    }
    if (parent->rowCount() == 0)
        items << createEndMarker();
    if (items.isEmpty())
        return;
    // Rows that bring their column with them would announce both at once.
    if (parent->columnCount() == 0)
        parent->setColumnCount(1);
    parent->insertRows(row, items);

    // A block of rows is inserted without what is below them.
    for (const auto& group : qAsConst(groups))
        insertJsonRow(group.first, 0, depth + 1, group.second, errors, notify);
}

QVector<RowRun> Model::topRuns(const QList<QModelIndex>& indexes) const
{
    if (getMinimumDepth(indexes) < 0)
        return {};
    QVector<RowRun> rows;
    for (const QModelIndex& index : getTopIndexes(indexes))
        rows.append({levelOf(itemFromIndex(index)), index.row(), index.row()});
    std::sort(rows.begin(), rows.end(), [](const RowRun& a, const RowRun& b) {
        return a.level != b.level ? std::less<>()(a.level, b.level) : a.first < b.first;
    });
    QVector<RowRun> runs;
    for (const RowRun& row : qAsConst(rows)) {
        if (!runs.isEmpty() && runs.last().level == row.level && runs.last().last + 1 == row.first)
            ++runs.last().last;
        else
            runs.append(row);
    }
    return runs;
}

void Model::removeModelIndexList(const QList<QModelIndex>& indexes)
{
    // The last ones first, since that moves no other row of their level.
    const QVector<RowRun> runs = topRuns(indexes);
    for (auto run = runs.rbegin(); run != runs.rend(); ++run)
        run->level->removeRows(run->first, run->last - run->first + 1);
}

TutorialItem* Model::createItem(const QJsonObject& step, int depth) const
{
    auto* item = new TutorialItem(0, 0);
    item->setStep(step);
    item->setDepth(depth);
    const QVariant decoration = icon(Tutorial::getIconKind(textOf(step, "icon")));
    if (decoration.isValid())
        item->setData(decoration, Qt::DecorationRole);
    return item;
}
