// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/errorbox.h"
#include "editor/history/stephistory.h"
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/debuglog.h"
#include "editor/scenario/pastedsteps.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"
#include "tutorial/runtime/tutorialmanager.h"
#include "tutorial/vocabulary/tutorialaction.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>

#include <algorithm>

using namespace TutorialEditor;

namespace {

// Beside the text, which a group's hint may keep from being JSON.
const QString kStepsFormat = QStringLiteral("application/x-tutorial-steps");
// A character for each group among them, an outer one before those in it: whether
// it is open.
const QString kExpandedFormat = QStringLiteral("application/x-tutorial-expanded");

QList<QStandardItem*> rowsOf(const QStandardItem* level, int first, int count)
{
    QList<QStandardItem*> rows;
    for (int row = first; row < first + count; ++row)
        rows << level->child(row);
    return rows;
}

QVector<QStandardItem*> groupsOf(const QList<QStandardItem*>& items)
{
    QVector<QStandardItem*> groups;
    for (QStandardItem* item : items) {
        if (item->rowCount() > 0)
            groups << item << groupsOf(rowsOf(item, 0, item->rowCount()));
    }
    return groups;
}

QByteArray expansionOf(const TreeView& view, const QList<QStandardItem*>& items)
{
    QByteArray expansion;
    for (const QStandardItem* group : groupsOf(items))
        expansion += view.isExpanded(group->index()) ? '1' : '0';
    return expansion;
}

void expandAs(
    TreeView* view, const QStandardItem* level, int first, int count, const QByteArray& expansion)
{
    const QVector<QStandardItem*> groups = groupsOf(rowsOf(level, first, count));
    for (int i = 0; i < std::min<int>(groups.size(), expansion.size()); ++i)
        view->setExpanded(groups.at(i)->index(), expansion.at(i) == '1');
}

// What the menu calls a command on these steps.
QString actName(const QString& command, const QJsonArray& steps)
{
    const int count = StepHistory::stepCount(steps);
    return count == 1 ? Dialog::tr("%1 of a Step").arg(command)
                      : Dialog::tr("%1 of %2 Steps").arg(command).arg(count);
}

} // namespace

void Dialog::onCustomContextMenuRequested(const QPoint& pos)
{
    const QModelIndex index = mTreeView->indexAt(pos);
    EDITOR_DEBUG << pos << index;
    if (index.isValid())
        mContextMenu->exec(mTreeView->mapToGlobal(pos));
}

void Dialog::onStartTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    const QList<QModelIndex> top = mModel->getTopIndexes(selected);
    if (!top.isEmpty())
        start(mModel->itemAt(top.first()));
}

void Dialog::onTreeViewDoubleclicked(const QModelIndex& index)
{
    EDITOR_DEBUG << index;
    TutorialItem* item = mModel->itemAt(index);
    if (!item)
        return;
    EDITOR_DEBUG << item->text();
    if (item->isEndMarker())
        insertNewItem(item);
    else
        start(item);
}

void Dialog::start(TutorialItem* item)
{
    if (item->isEndMarker() || !checkSave(false) || !TutorialManager::mInstance)
        return;
    TutorialManager::mInstance->startFromActionIndexList(mModel->getActionIndexList(item));
}

void Dialog::onNewTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    EDITOR_DEBUG << mModel->getMinimumDepth(selected);
    const QList<QModelIndex> top = mModel->getTopIndexes(selected);
    if (!top.isEmpty())
        insertNewItem(mModel->itemAt(top.first()));
}

void Dialog::insertNewItem(TutorialItem* item)
{
    QStandardItem* level = mModel->levelOf(item);
    const int row = item->row();
    const auto window = TutorialManager::mInstance
        ? TutorialManager::mInstance->getCurrentWindowKind()
        : Tutorial::WindowKindCount;
    const QJsonObject step{{QStringLiteral("x"), 0}, {QStringLiteral("y"), 0},
        {QStringLiteral("followWindow"), TutorialAction::getWindowKindName(window)},
        {QStringLiteral("comment"), QString()}, {QStringLiteral("hint"), QString()},
        {QStringLiteral("condition"), QStringLiteral("click")},
        {QStringLiteral("icon"), Tutorial::getIconKindName(Tutorial::Icon_click)}};
    QStringList errors;
    mHistory->insert(level, row, QJsonArray{step}, &errors, tr("New Step"));
    mTreeView->selectRows(level, row, row);
}

void Dialog::onDeleteTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    mHistory->remove(selected, actName(tr("Delete"), getSteps(mModel->getTopIndexes(selected))));
}

void Dialog::onCutTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    // End markers are not written: they must not replace what was cut before.
    if (!selected.isEmpty() && mModel->getMinimumDepth(selected) < 0)
        return;
    copyToClipboard(selected);
    mHistory->remove(selected, actName(tr("Cut"), getSteps(mModel->getTopIndexes(selected))));
}

void Dialog::onCopyTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    if (mModel->getMinimumDepth(selected) < 0)
        return;
    const QString text = copyToClipboard(selected);
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData(QClipboard::Clipboard);
    if (!copied || copied->text() != text)
        QMessageBox::question(
            nullptr, tr("Copy error"), tr("Failed to copy into Clipboard"), QMessageBox::Ok);
}

QString Dialog::copyToClipboard(const QList<QModelIndex>& indexes) const
{
    QList<QModelIndex> top = mModel->getTopIndexes(indexes);
    EDITOR_DEBUG << mModel->getModelIndexListStr(top);
    const QJsonArray steps = getSteps(top);
    QList<QStandardItem*> items;
    for (const QModelIndex& index : qAsConst(top))
        items << mModel->itemFromIndex(index);
    QString text;
    getJsonText(mModel->getMinimumDepth(indexes), top, text, true);
    auto* content = new QMimeData;
    content->setText(text);
    content->setData(kStepsFormat, QJsonDocument(steps).toJson(QJsonDocument::Compact));
    content->setData(kExpandedFormat, expansionOf(*mTreeView, items));
    QGuiApplication::clipboard()->setMimeData(content, QClipboard::Clipboard);
    return text;
}

void Dialog::onPasteTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    if (selected.isEmpty())
        return;
    const QMimeData* content = QGuiApplication::clipboard()->mimeData(QClipboard::Clipboard);
    if (!content)
        return;
    QStringList errors;
    QJsonArray steps = parseSteps(content->text(), &errors);
    if (!errors.isEmpty() && content->hasFormat(kStepsFormat)) {
        errors.clear();
        steps = parseSteps(QString::fromUtf8(content->data(kStepsFormat)), &errors);
    }
    if (!errors.isEmpty() && readPastedSteps(content->text(), &steps))
        errors.clear();
    const TutorialItem* anchor = mModel->itemAt(selected.first());
    QStandardItem* level = mModel->levelOf(anchor);
    const int row = anchor->row();
    if (errors.isEmpty()) {
        const int count = mHistory->insert(level, row, steps, &errors, actName(tr("Paste"), steps));
        expandAs(mTreeView, level, row, count, content->data(kExpandedFormat));
        requestMissing(level, row, count);
    }
    showErrors(tr("Parse error"), errors);
}

void Dialog::onGroupingTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    if (selected.isEmpty())
        return;
    const QModelIndex first = selected.first();
    EDITOR_DEBUG << first;
    const int contents = mModel->rowCount(first);
    if (contents > 0 && contents == selected.size())
        return;
    EDITOR_DEBUG << first.parent();
    QList<QModelIndex> siblings;
    for (const QModelIndex& index : selected) {
        if (index.parent() == first.parent() && !mModel->itemAt(index)->isEndMarker())
            siblings << index;
    }
    mHistory->group(QStringLiteral("group"), siblings, actName(tr("Group"), getSteps(siblings)));
}

void Dialog::onUngroupingTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    const QList<QModelIndex> top = mModel->getTopIndexes(selected);
    if (top.isEmpty())
        return;
    const QModelIndex first = top.first();
    const int contents = mModel->rowCount(first);
    if (contents > 0 && contents == selected.size() - 1) {
        ungroup(mModel->itemFromIndex(first));
        return;
    }
    EDITOR_DEBUG << first.parent();
    const auto isSibling = [&first](const QModelIndex& index) {
        return index.parent() == first.parent();
    };
    if (std::all_of(selected.begin(), selected.end(), isSibling)
        && mModel->rowCount(first.parent()) == selected.size())
        ungroup(mModel->itemFromIndex(first.parent()));
    else
        EDITOR_DEBUG << "not a group";
}

void Dialog::ungroup(QStandardItem* group)
{
    if (!group)
        return;
    QList<QModelIndex> steps;
    for (int row = 0; row < group->rowCount(); ++row)
        steps << group->child(row)->index();
    mHistory->ungroup(group, actName(tr("Ungroup"), getSteps(steps)));
}

void Dialog::onMousePosTriggered()
{
    EDITOR_DEBUG << logged(mItem ? mItem->text() : QString());
    if (mItem && !mItem->isGroup() && TutorialManager::mInstance)
        TutorialManager::mInstance->requestCoordinates();
}

void Dialog::focusActionIndexList(const QList<int>& list)
{
    EDITOR_DEBUG << list;
    const QStandardItem* item = mModel->getItemByActionIndexList(list);
    if (item && item != mModel->invisibleRootItem())
        mTreeView->selectRows(mModel->levelOf(item), item->row(), item->row());
}

bool Dialog::isInForm(const QModelIndex& level, int first, int last) const
{
    for (QStandardItem* item = mItem; item; item = item->parent()) {
        const QModelIndex index = item->index();
        if (index.parent() == level)
            return first <= index.row() && index.row() <= last;
    }
    return false;
}
