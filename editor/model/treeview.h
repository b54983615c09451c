// SPDX-License-Identifier: MIT
#pragma once

#include "editor/model/selectionrules.h"

#include <QTreeView>

class QStandardItem;

namespace TutorialEditor {

class Model;
class TutorialItem;

// The tree of steps. It turns keys into commands, which it leaves to whoever
// listens, and keeps the selection in a shape that the commands can work on.
// Only below a StepEditor the selection is kept and shown in the form.
class TreeView : public QTreeView {
    Q_OBJECT

public:
    explicit TreeView(QWidget* parent);

    // The selected indexes of column 0: a level's rows in their order, an outer
    // level before the inner ones.
    QList<QModelIndex> getSelectedIndexes() const;
    // Selects these rows of a level and nothing else.
    void selectRows(QStandardItem* level, int first, int last);
    // The same for several runs of rows.
    void selectRuns(const QVector<RowRun>& runs);
    // Those of the items, and of what is below them, that are open groups.
    QVector<QStandardItem*> expandedGroups(const QList<QStandardItem*>& items) const;
    void expandGroups(const QVector<QStandardItem*>& groups);

signals:
    void startTriggered();
    void newTriggered();
    void cutTriggered();
    void deleteTriggered();
    void copyTriggered();
    void pasteTriggered();
    void groupingTriggered();
    void ungroupingTriggered();
    void mousePosTriggered();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void selectionChanged(
        const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    // Applies the selection rules. Returns the item that the form is to show,
    // null when it stays as it is.
    TutorialItem* widenSelection();
    Model* scenario() const;

    bool mWidening = false;
};

} // namespace TutorialEditor
