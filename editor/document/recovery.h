// SPDX-License-Identifier: MIT
#pragma once

#include "editor/document/savedstate.h"

#include <QFutureWatcher>
#include <QJsonArray>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

namespace TutorialEditor {

class RecoveryCopy;

// Keeps the recovery copy of an open scenario: while there are unsaved changes
// there is one, never more than two seconds behind. It is written by
// another thread, so that the author does not wait for a disk. One that cannot
// be written is told in the log, and tried again.
//
// A copy that is not discarded stays when this goes away.
class Recovery : public QObject {
    Q_OBJECT

public:
    // What the scenario is now: all steps, with the contents of groups, and what of
    // them counts as saved.
    struct State {
        QJsonArray steps;
        SavedState saved;
    };

    // state: asked for whenever the copy is written.
    Recovery(const QString& scenarioPath, std::function<State()> state);
    ~Recovery() override;

    // Goes on with a copy of the same scenario, whose steps are now worked on.
    void adopt(std::unique_ptr<RecoveryCopy> copy);
    // The scenario was changed, perhaps.
    void noteChange();
    // Brings the copy up to date before it returns.
    void flush();
    // Removes the copy: the changes are saved, or the author gives them up.
    void discard();

private:
    void update();
    void onUpdated();
    // Whether the copy is as it has to be. Runs in any thread, once at a time.
    bool updateCopy(const State& state);

    const std::function<State()> mState;
    std::unique_ptr<RecoveryCopy> mCopy;
    QTimer mTimer; // runs from a change on
    QFutureWatcher<bool> mUpdate;
    bool mFailed = false; // at the last update
};

} // namespace TutorialEditor
