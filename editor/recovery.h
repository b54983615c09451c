// SPDX-License-Identifier: MIT
#pragma once

#include <QFutureWatcher>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <memory>

class QJsonArray;

namespace TutorialEditor {

class Dialog;
class RecoveryCopy;
class SavedState;

// Keeps the recovery copy of an open scenario: while the dialog holds unsaved
// changes there is one, never more than two seconds behind. It is written by
// another thread, so that the author does not wait for a disk. One that cannot
// be written is told in the log, and tried again.
//
// A copy that is not discarded stays when this goes away.
class Recovery : public QObject {
    Q_OBJECT

public:
    Recovery(Dialog* dialog, const QString& scenarioPath);
    ~Recovery() override;

    // Goes on with a copy of the same scenario, whose steps the dialog now holds.
    void adopt(std::unique_ptr<RecoveryCopy> copy);
    // Brings the copy up to date before it returns.
    void flush();
    // Removes the copy: the changes are saved, or the author gives them up.
    void discard();

private:
    void update();
    void onUpdated();
    // Whether the copy is as it has to be. Runs in any thread, once at a time.
    bool updateCopy(const QJsonArray& steps, const SavedState& saved);

    QPointer<Dialog> mDialog;
    std::unique_ptr<RecoveryCopy> mCopy;
    QTimer mTimer; // runs from a change on
    QFutureWatcher<bool> mUpdate;
    bool mFailed = false; // at the last update
};

} // namespace TutorialEditor
