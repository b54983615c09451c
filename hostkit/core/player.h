// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/condition.h"
#include "hostkit/core/scenario.h"
#include "hostkit/core/targetview.h"

#include <QObject>
#include <QSet>
#include <QTimer>
#include <QVector>

namespace TutorialHost {

// Plays a scenario: one step after the other, each until its condition holds.
//
// A step is shown when the arrow can point at its target, or at what leads
// there; without a target, or with one that nothing is called by, when the
// window that it follows is open. When that goes before the condition holds,
// because the learner closed a dialog too early, the player returns to the last
// step that can be shown, so that the learner is led into the dialog again.
//
// What the host reports is judged on the next turn of the event loop, never
// inside the call: a report may come from the middle of a dialog's closing.
class Player : public QObject {
    Q_OBJECT

public:
    // state: the host as it is; targets: what is in its windows. Both outlive
    // the player.
    Player(const HostState& state, TargetView& targets, QObject* parent = nullptr);

    bool isPlaying() const { return mCurrent >= 0; }
    // The step that is played; only while playing.
    const Step& step() const { return mScenario.steps.at(mCurrent); }
    // The step that is played is also on show.
    bool isShown() const { return mShown; }
    // The target of the step that is played was there: without it the step's own
    // point is the wrong one.
    bool hadTarget() const { return mReached.contains(mCurrent); }

    // Begins at the step with this index.
    void start(const Scenario& scenario, int first = 0);
    // Ends playing; finished() is not emitted.
    void stop();

    // Reports from the host: something happened, the state may be another one,
    // a button of the tutorial was pressed ("next", "yes" or "no").
    void onEvent(const HostEvent& event);
    void onStateChanged();
    void onAnswer(const QString& answer);

signals:
    // Asked for before the step is shown.
    void presetDataRequested(const QString& name);
    // A command of the host's own that the step begins with.
    void commandRequested(const QString& name, const QString& parameter);
    void stepShown(const Step& step);
    void stepDone(const Step& step);
    // What the step on show points at is gone, and there is no other step to
    // show: nothing is to be pointed at until stepShown().
    void stepLost(const Step& step);
    // Nothing is called by the name of the step's target: once for each time
    // that the step is shown.
    void targetMissing(const Step& step);
    void finished();
    // Something that the author or the learner should know: a step that cannot
    // be met, a window that the player waits for.
    void notice(const QString& text);

private:
    bool windowIsOpen(const Step& step) const;
    bool canBeShown(int index) const;
    // Takes note of what the target of the step on show is now.
    void noteTarget();
    void enter(int index);
    void judge();
    void show();
    void goBack();
    void finishStep();
    int indexAfterStep();

    const HostState& mState;
    TargetView& mTargets;
    Scenario mScenario;
    int mCurrent = -1;
    // Steps that led to the current one, oldest first.
    QVector<int> mHistory;
    bool mShown = false;
    // The steps whose targets were there: the place that they would be shown at
    // without them is another one.
    QSet<int> mReached;
    bool mToldMissing = false;
    bool mMet = false;
    // The label that the learner's answer chose; empty for the next step.
    QString mChosenLabel;
    QTimer mJudgeTimer;
    QTimer mWaitTimer;
    QTimer mPatienceTimer;
    // Runs while a condition of the host's own is waited for.
    QTimer mOwnTimer;
};

} // namespace TutorialHost
