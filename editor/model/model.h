// SPDX-License-Identifier: MIT
#pragma once

#include "editor/model/selectionrules.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QList>
#include <QStandardItemModel>
#include <QVariant>

class QJsonArray;
class QJsonObject;

namespace TutorialEditor {

class TreeView;
class TutorialItem;

// The scenario as a tree of TutorialItems. Every level, the top one too, ends
// with an end marker: "<>", above which steps can be added, and which is never
// written, moved or removed. Each change is announced by QStandardItem's own
// calls, and by nothing beside them.
class Model : public QStandardItemModel {
public:
    explicit Model(QObject* parent);

    // The last row of every level.
    static TutorialItem* createEndMarker();
    // A kind's QIcon, shared by all who show it; invalid for a value that is none.
    QVariant icon(Tutorial::EnumIconKind kind) const;

    TutorialItem* itemAt(const QModelIndex& index) const;
    // Whoever holds the item's row: its parent, or the invisible root item.
    QStandardItem* levelOf(const QStandardItem* item) const;
    // The number of the level that a group, or the invisible root item, holds.
    int levelDepth(QStandardItem* level) const;
    // The item's row at each level, outermost first; empty for the invisible
    // root item.
    QList<int> getActionIndexList(const QStandardItem* item) const;
    // The item that such a list leads to, as far as it leads: from the first row
    // that does not exist on the rest counts for nothing. Null for an empty list.
    QStandardItem* getItemByActionIndexList(const QList<int>& list) const;
    // The smallest level among the items; -1 when there are none but end markers.
    int getMinimumDepth(const QList<QModelIndex>& indexes) const;
    // The indexes at the smallest level, in their order; end markers when there
    // is nothing else.
    QList<QModelIndex> getTopIndexes(const QList<QModelIndex>& indexes) const;
    // The same as runs of rows, in their order, so that each can be removed at
    // once; none when there are none but end markers.
    QVector<RowRun> topRuns(const QList<QModelIndex>& indexes) const;
    // The items' texts for a debug line.
    QString getModelIndexListStr(const QList<QModelIndex>& indexes) const;

    // An item for a step, or for a group's own keys, that is not yet in the tree.
    TutorialItem* createItem(const QJsonObject& step, int depth) const;
    // Replaces the whole tree by the steps of a scenario's text without
    // comments and markers. errors: receives what cannot be read, for the author,
    // with its place in the file's text when that is given.
    void setContents(const QString& text, QStringList* errors, const QString& fileText = QString());
    // Replaces the whole tree by steps, groups with their contents. errors:
    // receives what cannot be read.
    void setSteps(const QJsonArray& steps, QStringList* errors);
    // Inserts steps, groups with their contents, into a level from a row on.
    // depth: the number of that level. errors: receives what cannot be read.
    // notify: whether the rows are announced; inside of a reset they are not.
    void insertJsonRow(QStandardItem* parent, int row, int depth, const QJsonArray& steps,
        QStringList* errors, bool notify);
    // Removes those of the indexes that lie at the smallest level, with what is
    // below them.
    void removeModelIndexList(const QList<QModelIndex>& indexes);

    // Takes rows with what is below them out of a level. They are the caller's then.
    QList<QStandardItem*> takeRows(QStandardItem* level, int first, int count);
    // Puts items of no model, with what is below them, into a level.
    void insertItems(QStandardItem* level, int row, const QList<QStandardItem*>& items);
    // Puts other items in place of all of the tree, whose items are the caller's then.
    QList<QStandardItem*> exchangeRows(const QList<QStandardItem*>& rows);
    // Gives an item the text and the icon that follow from its step and translation.
    void updateRow(TutorialItem* item);

    // A group without steps that is not yet in the tree.
    static TutorialItem* createGroup(const QString& name, int depth);
    // The first of the siblings and those that follow it without a gap; a level of
    // null when there are none that can be grouped.
    RowRun runToGroup(const QList<QModelIndex>& siblings) const;
    // Moves rows into a group, which takes their place.
    void wrapRows(QStandardItem* level, int row, int count, TutorialItem* group);
    // Moves a group's steps out to where it stands. The group is the caller's then.
    // Returns how many steps that are.
    int unwrapGroup(QStandardItem* group);

    // Moves rows into a new group that takes the first one's place, and selects
    // the group. indexes: siblings that follow one another, the first one first.
    void grouping(TreeView* view, const QString& name, const QList<QModelIndex>& indexes);
    // Moves a group's steps out to where the group stands, removes the group,
    // and selects the steps. Without a group nothing happens.
    void ungrouping(TreeView* view, QStandardItem* group);

private:
    QVariant mIcons[Tutorial::IconKindCount];
};

} // namespace TutorialEditor
