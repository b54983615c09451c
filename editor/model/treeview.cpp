// SPDX-License-Identifier: MIT
#include "editor/model/treeview.h"

#include "editor/model/model.h"
#include "editor/model/selectionrules.h"
#include "editor/model/stepeditor.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/debuglog.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace TutorialEditor;

namespace {

struct KeyCommand {
    int key;
    Qt::KeyboardModifiers needed;
    const char* loggedName; // null: no line of its own
    void (TreeView::*signal)();
};

const KeyCommand kKeyCommands[] = {
    {Qt::Key_Space, Qt::NoModifier, "Space", &TreeView::startTriggered},
    // The keypad's key; Return is left to the base class.
    {Qt::Key_Enter, Qt::NoModifier, "Enter", &TreeView::newTriggered},
    {Qt::Key_Delete, Qt::NoModifier, "Delete", &TreeView::deleteTriggered},
    {Qt::Key_X, Qt::ControlModifier, "X", &TreeView::cutTriggered},
    {Qt::Key_C, Qt::ControlModifier, "C", &TreeView::copyTriggered},
    {Qt::Key_V, Qt::ControlModifier, "V", &TreeView::pasteTriggered},
    {Qt::Key_M, Qt::ControlModifier, "M", &TreeView::mousePosTriggered},
    {Qt::Key_B, Qt::ControlModifier, nullptr, &TreeView::groupingTriggered},
    {Qt::Key_I, Qt::ControlModifier, nullptr, &TreeView::ungroupingTriggered},
};

constexpr int kRowMargin = 2; // px

// All rows are as high as one with an icon, the first one, which may be a group
// without, included.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize rowWithIcon(0, option.decorationSize.height() + kRowMargin);
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(rowWithIcon);
    }
};

} // namespace

TreeView::TreeView(QWidget* parent) : QTreeView(parent)
{
    setItemDelegate(new RowDelegate(this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
}

QList<QModelIndex> TreeView::getSelectedIndexes() const
{
    // Qt lists the rows of an expanded group before the rows among which the
    // group stands, and those of a collapsed group after them. The commands
    // must not depend on that: they take the first row for the topmost.
    QVector<QPair<QVector<int>, QItemSelectionRange>> ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        QVector<int> path{range.top()};
        for (QModelIndex index = range.parent(); index.isValid(); index = index.parent())
            path.prepend(index.row());
        ranges.append({path, range});
    }
    std::sort(ranges.begin(), ranges.end(), [](const auto& a, const auto& b) {
        return a.first.size() != b.first.size() ? a.first.size() < b.first.size()
                                                : a.first < b.first;
    });
    QList<QModelIndex> indexes;
    for (const auto& range : qAsConst(ranges)) {
        for (int row = range.second.top(); row <= range.second.bottom(); ++row)
            indexes << model()->index(row, 0, range.second.parent());
    }
    return indexes;
}

void TreeView::selectRows(QStandardItem* level, int first, int last)
{
    selectRuns({{level, first, last}});
}

void TreeView::selectRuns(const QVector<RowRun>& runs)
{
    QItemSelection selection;
    for (const RowRun& run : runs) {
        const QModelIndex parent = run.level->index();
        const QModelIndex top = model()->index(run.first, 0, parent);
        if (selection.isEmpty())
            selectionModel()->setCurrentIndex(top, QItemSelectionModel::NoUpdate);
        selection.append(QItemSelectionRange(top, model()->index(run.last, 0, parent)));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QVector<QStandardItem*> TreeView::expandedGroups(const QList<QStandardItem*>& items) const
{
    QVector<QStandardItem*> groups;
    for (QStandardItem* item : items) {
        if (item->rowCount() == 0)
            continue;
        if (isExpanded(item->index()))
            groups << item;
        QList<QStandardItem*> contents;
        for (int row = 0; row < item->rowCount(); ++row)
            contents << item->child(row);
        groups << expandedGroups(contents);
    }
    return groups;
}

void TreeView::expandGroups(const QVector<QStandardItem*>& groups)
{
    for (const QStandardItem* group : groups)
        setExpanded(group->index(), true);
}

void TreeView::keyPressEvent(QKeyEvent* event)
{
    EDITOR_DEBUG << event->modifiers() << event->key();
    const auto command = std::find_if(std::begin(kKeyCommands), std::end(kKeyCommands),
        [event](const KeyCommand& candidate) { return candidate.key == event->key(); });
    const bool isCommand = command != std::end(kKeyCommands);
    if (isCommand && command->loggedName)
        EDITOR_DEBUG << command->loggedName;
    if (isCommand && (event->modifiers() & command->needed) == command->needed)
        emit(this->*command->signal)();
    else
        QTreeView::keyPressEvent(event);
}

void TreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    EDITOR_DEBUG << event;
    if (auto* editor = dynamic_cast<StepEditor*>(parent()))
        editor->onTreeViewDoubleclicked(indexAt(event->localPos().toPoint()));
}

void TreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    auto* editor = dynamic_cast<StepEditor*>(parent());
    if (!editor)
        return;
    EDITOR_DEBUG << "selected:" << scenario()->getModelIndexListStr(selected.indexes())
                 << "deselected:" << scenario()->getModelIndexListStr(deselected.indexes());
    if (mWidening)
        return;
    if (!selectionModel()->hasSelection())
        editor->linkToEdit(nullptr);
    else if (TutorialItem* shown = widenSelection())
        editor->linkToEdit(shown);
    else if (scenario()->getMinimumDepth(getSelectedIndexes()) < 0)
        editor->linkToEdit(nullptr);
}

TutorialItem* TreeView::widenSelection()
{
    Model* steps = scenario();
    const auto levelAt = [steps](const QModelIndex& parent) {
        return parent.isValid() ? steps->itemFromIndex(parent) : steps->invisibleRootItem();
    };
    QVector<RowRun> selected;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        selected.append({levelAt(range.parent()), range.top(), range.bottom()});
    const WidenedSelection widened = TutorialEditor::widenSelection(selected);

    QItemSelection added;
    for (const RowRun& run : widened.added) {
        const QModelIndex parent = run.level->index();
        added.append(QItemSelectionRange(
            steps->index(run.first, 0, parent), steps->index(run.last, 0, parent)));
        for (int row = run.first; debugLog().isDebugEnabled() && row <= run.last; ++row)
            EDITOR_DEBUG << "add selection: " << logged(run.level->child(row)->text());
    }
    if (!added.isEmpty()) {
        const QScopedValueRollback<bool> widening(mWidening, true);
        selectionModel()->select(added, QItemSelectionModel::Select);
    }
    return widened.shown;
}

Model* TreeView::scenario() const
{
    return static_cast<Model*>(model());
}
