// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/errorbox.h"
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

using namespace TutorialEditor;

namespace {

// Beside the text, which a group's hint may keep from being JSON.
const QString kStepsFormat = QStringLiteral("application/x-tutorial-steps");

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
    level->insertRow(row, mModel->createItem(step, mModel->levelDepth(level)));
    mTreeView->selectRows(level, row, row);
}

void Dialog::onDeleteTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    removeRows(selected);
}

void Dialog::onCutTriggered()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    EDITOR_DEBUG << mModel->getModelIndexListStr(selected);
    // End markers are not written: they must not replace what was cut before.
    if (!selected.isEmpty() && mModel->getMinimumDepth(selected) < 0)
        return;
    copyToClipboard(selected);
    removeRows(selected);
}

void Dialog::removeRows(const QList<QModelIndex>& indexes)
{
    if (mModel->getMinimumDepth(indexes) < 0)
        return;
    const QModelIndex first = mModel->getTopIndexes(indexes).first();
    QStandardItem* level = mModel->levelOf(mModel->itemFromIndex(first));
    int row = first.row();
    // The selection rules must not take back a row that is about to go.
    mTreeView->clearSelection();
    mModel->removeModelIndexList(indexes);
    if (row > 0 && TutorialItem::from(level->child(row))->isEndMarker())
        --row;
    mTreeView->selectRows(level, row, row);
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
    QString text;
    getJsonText(mModel->getMinimumDepth(indexes), top, text, true);
    auto* content = new QMimeData;
    content->setText(text);
    content->setData(kStepsFormat, QJsonDocument(steps).toJson(QJsonDocument::Compact));
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
    if (errors.isEmpty())
        mModel->insertJsonRow(
            level, anchor->row(), mModel->levelDepth(level), steps, &errors, true);
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
    mModel->grouping(mTreeView, QStringLiteral("group"), siblings);
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
        mModel->ungrouping(mTreeView, mModel->itemFromIndex(first));
        return;
    }
    EDITOR_DEBUG << first.parent();
    const auto isSibling = [&first](const QModelIndex& index) {
        return index.parent() == first.parent();
    };
    if (std::all_of(selected.begin(), selected.end(), isSibling)
        && mModel->rowCount(first.parent()) == selected.size())
        mModel->ungrouping(mTreeView, mModel->itemFromIndex(first.parent()));
    else
        EDITOR_DEBUG << "not a group";
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
