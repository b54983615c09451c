// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/hostwords.h"
#include "hostkit/core/player.h"
#include "hostkit/link/link.h"
#include "hostkit/targets/targetfollower.h"
#include "hostkit/windows/activationkeeper.h"
#include "hostkit/windows/controlobserver.h"

#include <QObject>
#include <QPoint>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <optional>

namespace TutorialHost {

class WindowRegistry;

// Plays tutorials for the host's windows, or shows a single step to its author:
// puts the player, the picture of the windows and the link to the tutorial
// together.
class Session : public QObject {
    Q_OBJECT

public:
    // program: the tutorial's executable. registry: the host's windows;
    // outlives the session. arguments: what the tutorial is given behind the
    // connection id.
    Session(const QString& program, WindowRegistry& registry, const QStringList& arguments = {},
        QObject* parent = nullptr);

    const Player& player() const { return mPlayer; }
    const Link& link() const { return mLink; }
    const ControlObserver& observer() const { return mObserver; }
    TargetResolver& resolver() { return mTargets.resolver(); }
    // Where the target of the step on show is; on no screen when it has none.
    const Target& target() const { return mTargets.target(); }

    // Plays the scenario file from the first step at or below this path; an
    // empty path is the whole file. What is wrong with the file is reported as a
    // notice; false when there is nothing to play.
    bool play(const QString& path, const QList<int>& first = {});
    // The same, from the step with the label.
    bool playFrom(const QString& path, const QString& label);
    void stop();

    // The host's own words; they hold from the next play() on.
    HostWords& words() { return mWords; }
    // Has the tutorial's version asked for: see Link::require().
    void require(const QString& version) { mLink.require(version); }
    // A tutorial that is lost while a scenario is played is started again, with
    // the step that it was in, so many times a scenario.
    void setRestarts(int count) { mRestarts = count; }

    // Shows the step without playing it, until play() or stop(): its arrow
    // follows its window, and nothing ends it.
    void show(const Step& step);
    // The same, but what stands beside the arrow stays as it is.
    void pointAt(const Step& step);

    // Does the task with a running tutorial, which is started when there is
    // none. A tutorial that cannot be started does not get the task, nor does
    // one that is given another task before it has connected.
    void whenConnected(const std::function<void()>& task);
    // Without a running tutorial the message is dropped.
    void send(const QStringList& message) { mLink.send({message}); }
    // Brings the host's front window before the tutorial's windows.
    void activate() { mActivation.activate(); }

    // The screen point from which the offsets in this window count: where it
    // stands, or the main window while it is not open. The screen's own when
    // it is no window.
    QPoint originOf(Tutorial::EnumWindowKind window) const;
    // The screen point at which the step's arrow points: its target's while that
    // is followed and on the screen, else the step's own; or in whose middle its
    // hint stands when it points nowhere.
    QPoint targetOf(const Step& step) const;
    // The point that is sent for the step: where the tutorial's window goes
    // so that the arrow's tip is on the target.
    QPoint sentPointOf(const Step& step) const;

signals:
    void presetDataRequested(const QString& name);
    void commandRequested(const QString& name, const QString& parameter);
    void stepShown(const Step& step);
    void stepDone(const Step& step);
    // Nothing is called by the name of the step's target.
    void targetMissing(const Step& step);
    // The scenario was played to its end, or the tutorial is gone.
    void finished();
    void failed(const QString& reason);
    void notice(const QString& text);

private:
    void read(const QString& path);
    bool start(const QString& path, int index);
    void onReceived(const QStringList& fields);
    void onLost(const QString& reason);
    void onApplicationStateChanged(Qt::ApplicationState state);
    // Shows or hides the tutorial with the main window.
    void setMinimized(bool on);
    void onTargetChanged();
    // The point of a step that no target is followed for.
    void sendOwnPoint();
    void setPreview(const Step& step);
    // The host's windows, by the names that scenarios call them.
    TargetWindows targetWindows() const;
    QStringList indicatorMessage(const Step& step, int flags) const;
    // Whether what the step names is on the screen, so that its own point does
    // not count.
    bool isFollowed(const Step& step) const;
    void connectRegistry();
    void connectPlayer();
    void connectLink();
    // What the step points at is gone: its hint stays without an arrow.
    void sendLost(const Step& step);
    void sendStep(const Step& step);
    void sendPoint(const Step& step);
    // The step that the arrow follows: the one that is played, or the author's.
    std::optional<Step> stepOnShow() const;
    // What begins a tutorial: the area and the windows as they are. Nothing
    // when it has begun.
    QVector<QStringList> startMessages();
    void sendUnlessIdle(const QStringList& message);

    WindowRegistry& mRegistry;
    ControlObserver mObserver;
    ActivationKeeper mActivation;
    TargetFollower mTargets;
    Player mPlayer;
    Link mLink;
    HostWords mWords;
    Scenario mScenario;
    // Translation context of the scenario's hints: its file's base name.
    QString mContext;
    std::function<void()> mWhenConnected;
    // Shown to its author; none while a scenario is played.
    std::optional<Step> mPreview;
    // "start" was sent, and no "stop" since.
    bool mStarted = false;
    // The tutorial that is connected has not been started yet.
    bool mIsNew = false;
    bool mMinimized = false;
    // The step was sent with the point of its target.
    bool mSentFollowed = false;
    int mRestarts = 0;
    int mRestartsLeft = 0;
    QTimer mHideTimer;
};

} // namespace TutorialHost
