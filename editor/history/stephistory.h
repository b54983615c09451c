// SPDX-License-Identifier: MIT
#pragma once

#include "editor/model/selectionrules.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/stepfields.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QModelIndex>
#include <QUndoStack>
#include <QVector>

#include <functional>

namespace TutorialEditor {

class Model;
class TreeView;

// All that an author does to a scenario, as acts that can be undone and redone.
// What changes the tree is done here, and selected. Undo and redo select what
// they changed, and open the groups that were open.
//
// It owns the items that an undone or redone act has taken off the tree, so that
// the acts before and behind it find the same ones again. When the tree is filled
// anew beside it, clear() has to come first.
class StepHistory : public QObject {
    Q_OBJECT

public:
    StepHistory(Model* model, TreeView* view, QObject* parent);

    QUndoStack* stack() { return &mStack; }
    void clear() { mStack.clear(); }

    // Inserts steps, groups with their contents, into a level from a row on.
    // errors: receives what cannot be read. Returns how many rows that are. The
    // selection stays. name: how the menu calls the act, here and below.
    int insert(QStandardItem* level, int row, const QJsonArray& steps, QStringList* errors,
        const QString& name);
    // Removes the top ones of the indexes and selects what took their place: the row
    // there, or the step above when that is an end marker and there is one.
    void remove(const QList<QModelIndex>& indexes, const QString& name);
    // See Model::grouping() and Model::ungrouping().
    void group(const QString& hint, const QList<QModelIndex>& siblings, const QString& name);
    void ungroup(QStandardItem* group, const QString& name);
    // Puts other steps in place of all of them.
    void replaceAll(const QJsonArray& steps, QStringList* errors, const QString& name);
    // Gives an item another step. isTyping: what is typed in the same field within
    // two seconds belongs to the same act.
    void edit(TutorialItem* item, const QJsonObject& step, StepField field, bool isTyping,
        const QString& name);
    // Shows fields of a step that it does not use; the step stays as it is.
    void addFields(TutorialItem* item, ShownFields fields, const QString& name);
    // Typing that follows is an act of its own.
    void endTyping() { ++mRun; }

    // How many steps and groups these are, with the contents of groups.
    static int stepCount(const QJsonArray& steps);

signals:
    // Undo or redo has given the item another step.
    void stepChanged(TutorialEditor::TutorialItem* item, TutorialEditor::StepField field);
    // The same for fields that are to be shown, or not any more.
    void fieldsShown(
        TutorialEditor::TutorialItem* item, TutorialEditor::ShownFields fields, bool isShown);
    // Rows have come into a level.
    void rowsReturned(QStandardItem* level, int first, int count);
    // Undo or redo has changed the rows of the tree.
    void rowsChanged();

private:
    class Act;
    class RowAct;
    class InsertAct;
    class RemoveAct;
    class GroupAct;
    class ReplaceAct;
    class EditAct;
    class FieldsAct;

    QVector<RowRun> selection() const;
    void push(RowAct* act, const QVector<RowRun>& before, const QVector<RowRun>& after);

    Model& mModel;
    TreeView& mView;
    QUndoStack mStack;
    int mRun = 0; // of typing
};

} // namespace TutorialEditor
