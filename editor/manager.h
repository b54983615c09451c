// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

namespace TutorialEditor {

class Dialog;
class OpenMark;

// The one way into the authoring tool. Its static operations make the manager
// and the dialog when there are none; a fresh dialog is empty, and not shown
// before a scenario is opened.
class Manager : public QObject {
    Q_OBJECT

public:
    // Null until the authoring tool is used, then kept for good.
    static Manager* mInstance;

    ~Manager() override;

    // Opens a scenario file, without a question about the one that is open. When
    // another process has it open the author is asked, and may cancel it.
    static void setContents(const QString& path);
    // That of the open scenario; empty when none was opened.
    static QString path();
    // Writes the scenario to the file that was opened last, after a question when
    // someone else has changed that. json: the list of steps in file form. False
    // when it was not written.
    static bool save(const QString& json);
    // Selects the step at an action index list.
    static void focusActionIndexList(const QList<int>& actionIndexList);
    // The point, in pixels, that the author picked for the step in the form.
    static void setCoordinates(int x, int y);
    // The name of what the author picked there; empty when it has none.
    static void setTarget(const QString& target);
    // The names of targets that the host has now.
    static void setTargets(const QStringList& targets);
    // The host's answer to a look-up: the key that was sent, and the text.
    static void untrCallback(const QString& first, const QString& second);
    // The condition that was recorded: its kind's name and its parameters.
    static void setCondition(const QStringList& condition);

    // Asks about unsaved changes. ask: whether closing without saving is one of
    // the answers. False when the author cancelled or saving failed.
    bool checkSave(bool ask);
    // Brings the recovery copy of unsaved changes up to date: when the host has
    // ended the process there is nobody left to ask.
    void keepUnsaved();
    // Forgets the dialog, which is not deleted. What it held is saved or given up.
    void clearDialog();

private:
    Manager();
    static Manager* ensure();
    // Offers the author what was not saved of the scenario when a process ended.
    void offerRecovery();
    // Marks the file as open here. False when it is open elsewhere, and the author
    // does not want it then.
    bool mayOpen(const QString& path);

    QPointer<Dialog> mDialog;
    std::unique_ptr<OpenMark> mOpenMark; // none without a dialog
    QString mPath; // also while there is no dialog
};

} // namespace TutorialEditor
