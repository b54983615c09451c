// SPDX-License-Identifier: MIT
#pragma once

#include "editor/model/stepeditor.h"
#include "editor/scenario/stepfields.h"

#include <QDialog>
#include <QTimer>

class QJsonArray;
class QMenu;
class QPushButton;
class QStandardItem;

namespace TutorialEditor {

class FormArea;
class Lookups;
class Model;
class NoticeBar;
class ScenarioDocument;
class StepForm;
class StepHistory;
class TreeView;
class TutorialItem;

// The authoring tool's window: the tree of steps above the form in which one
// step's fields are edited. Each change in the form goes into the step at once
// and is shown by the overlay.
//
// It is deleted when it closes.
class Dialog : public QDialog, public StepEditor {
    Q_OBJECT

public:
    explicit Dialog(QWidget* parent);
    ~Dialog() override;

    // The list of all steps in file form.
    QString getCurrentJson() const;
    // All steps, with the contents of groups.
    QJsonArray getCurrentSteps() const;
    // Appends the text of those of the indexes, from the first one on, that lie at
    // this level, with the contents of groups, and takes them off the list.
    // compact: the form for the clipboard, not for the file.
    void getJsonText(int depth, QList<QModelIndex>& indexes, QString& out, bool compact) const;
    Model* model() const { return mModel; }
    ScenarioDocument* document() const { return mDocument; }
    StepHistory* history() const { return mHistory; }

    // Loads a scenario and shows the dialog. text: the file's, without comments
    // and markers; errors: what was found wrong with it until now; fileText: all of
    // the file's text, for places in it. All that cannot be read is shown to the
    // author in one box.
    void setContents(const QString& text, QStringList errors = QStringList(),
        const QString& fileText = QString());
    // Empties the tree: what is open has a file that cannot be read.
    void clearContents();
    // Loads what the document's file holds now, which can be undone. The selected
    // step stays selected when it still exists.
    void reload();
    // Takes steps, with the contents of groups, in place of those in the tree, as
    // changes that are not saved, and shows the dialog.
    void recover(const QJsonArray& steps);
    // The list, in file form, that counts as saved.
    void setLastJson(const QString& json);
    // Whether the scenario is as it was loaded or saved last.
    bool isSaved() const;
    // Writes a list in file form to the document's file, after a question when
    // someone else has changed that. Whether it was written.
    bool write(const QString& json);
    // Asks about unsaved changes, if there are any. withNo: whether going on
    // without saving is one of the answers. False when the author cancelled or
    // the scenario could not be written.
    bool checkSave(bool withNo);
    // Asks the host for the translation of every hint in the tree.
    void localizeAll();
    void localizeSub(QStandardItem* item);
    // Shows an item in the form. Null or an end marker empties the form.
    void linkToEdit(TutorialItem* item) override;
    // Inserts a new step above an item and selects it.
    void insertNewItem(TutorialItem* item);

    // What the host sends; see Manager.
    void focusActionIndexList(const QList<int>& list);
    void setCoordinates(int x, int y);
    void setCondition(const QStringList& condition);
    void setTarget(const QString& target);
    void setTargets(const QStringList& targets);
    void untrCallback(const QString& first, const QString& second);

    // A double click into the tree; the index is invalid beside all rows.
    void onTreeViewDoubleclicked(const QModelIndex& index) override;

    void reject() override;

signals:
    // The author, or the host for him, has changed a step or the tree.
    void changed();

private slots:
    void onCustomContextMenuRequested(const QPoint& pos);
    void onStartTriggered();
    void onNewTriggered();
    void onCutTriggered();
    void onDeleteTriggered();
    void onCopyTriggered();
    void onPasteTriggered();
    void onGroupingTriggered();
    void onUngroupingTriggered();
    void onMousePosTriggered();

    void onXChanged(const QString& text);
    void onYChanged(const QString& text);
    void onFollowWindowCurrentIndexChanged(const QString& text);
    void onRefWindowClicked();
    void onCommentChanged();
    void onHintChanged();
    void onConditionCurrentIndexChanged(const QString& text);
    void onConditionParamChanged(const QString& text, int parameter);
    void onIconCurrentIndexChanged(const QString& text);
    void onCommandCurrentIndexChanged(const QString& text);
    void onCommandParamChanged(const QString& text);
    void onLabelChanged(const QString& text);
    void onArrowVisibleChanged(int state);
    void onTargetChanged(const QString& text);
    void onAddFieldMenu();
    void onFieldAdded(TutorialEditor::ShownFields fields, const QString& name, QWidget* widget);
    void onSaveClicked();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Construction.
    void createTree();
    void createContextMenu();
    void createMenuBar();
    void connectForm();
    void connectHistory();
    void connectLookups();

    // Loading.
    void bringToFront();
    void fillForm(const StepFields& fields);
    // Asks the host for the translation of one hint. rows: the item's action index
    // list.
    void localizeItem(const TutorialItem* item, const QList<int>& rows);

    // What the host has looked up for a step.
    void onCommentFound(const QModelIndex& step, const QString& text);
    void onHintFound(const QModelIndex& step, const QString& text);
    QModelIndex formIndex() const;

    // Editing.
    // handler: what a debug line calls the change. isTyping: with other typing in
    // the field it is one act.
    void onFieldChanged(
        const char* handler, const QString& text, StepField field, bool isTyping = true);
    // name: what the menu calls the act; empty for a change of the field.
    void onValueChanged(StepField field, bool isTyping, const QString& name = QString());
    void requestUntr(const QString& key, const QString& text) const;
    // The same for what is in the form.
    void requestComment(const QString& comment);
    void requestHint(const QString& hint);
    void checkTreeBox() const;
    // Points the overlay at the step in the form; x, y: kNoCoordinate for none.
    void pointIndicator(int x, int y);
    // Makes room for the tree and the form, from the top left corner.
    void growToRead();
    // Tells the host the target of the step in the form.
    void tellTarget(const QString& target);

    // Tells, or not any more, what others did to the file.
    void updateNotice();
    void tellNotice();

    // History.
    void markClean(); // when what was saved is what the tree holds
    void showStep(TutorialItem* item);
    void onStepChanged(TutorialEditor::TutorialItem* item, TutorialEditor::StepField field);
    void onFieldsShown(
        TutorialEditor::TutorialItem* item, TutorialEditor::ShownFields fields, bool isShown);
    // Asks for the translations that rows of a level do not have.
    void requestMissing(QStandardItem* level, int first, int count);
    // The title tells whether there is something to save.
    void updateModified();
    void compareWithSaved();
    void markModified(bool isModified);

    // Commands.
    // Whether the item in the form is one of these rows of a level, or below.
    bool isInForm(const QModelIndex& level, int first, int last) const;
    // The steps at these indexes, with the contents of groups.
    QJsonArray getSteps(const QList<QModelIndex>& indexes) const;
    // Puts the top ones on the clipboard and returns the text that it got.
    QString copyToClipboard(const QList<QModelIndex>& indexes) const;
    void ungroup(QStandardItem* group);
    // Has the host play the saved scenario from a step.
    void start(TutorialItem* item);

    Model* mModel;
    TreeView* mTreeView = nullptr;
    QMenu* mContextMenu = nullptr;
    StepForm* mForm = nullptr;
    FormArea* mFormArea = nullptr;
    QPushButton* mAddField = nullptr;
    QPushButton* mSave = nullptr;
    NoticeBar* mNotice = nullptr;

    TutorialItem* mItem = nullptr; // in the form; the model owns it
    StepFields mFields; // what the form held after the last load or rebuild
    ScenarioDocument* const mDocument;
    StepHistory* mHistory = nullptr;
    bool mWasShown = false;
    bool mTargetTold = false; // of the step before, which had one
    Lookups* mComments = nullptr; // those of the form
    Lookups* mHints = nullptr;
    QTimer mCompare; // runs from an act on
    qint64 mCompareMs = 0; // what the last comparison took
};

} // namespace TutorialEditor
