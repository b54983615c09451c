#pragma once

#include "demo/hostlink.h"
#include "demo/hostobserver.h"
#include "demo/scenarioplayer.h"

#include <QObject>
#include <QPoint>
#include <QStringList>
#include <QTimer>

class WindowRegistry;

// Plays tutorials for the host's windows: puts the player, the picture of the
// windows and the link to the tutorial together.
class TutorialSession : public QObject {
    Q_OBJECT

public:
    // program: the tutorial's executable. registry: the host's windows;
    // outlives the session.
    TutorialSession(const QString& program, WindowRegistry& registry, QObject* parent = nullptr);

    const ScenarioPlayer& player() const { return mPlayer; }
    const HostLink& link() const { return mLink; }

    // Plays the scenario file from its start. What is wrong with the file is
    // reported as a notice; false when there is nothing to play.
    bool play(const QString& path);
    void stop();
    // The screen point at which the step's arrow points, or in whose middle
    // its hint stands when it has no target.
    QPoint targetOf(const Step& step) const;
    // The point that is sent for the step: where the tutorial's window goes
    // so that the arrow's tip is on the target.
    QPoint sentPointOf(const Step& step) const;

signals:
    void presetDataRequested(const QString& name);
    void stepShown(const Step& step);
    void stepDone(const Step& step);
    // The scenario was played to its end, or the tutorial is gone.
    void finished();
    void failed(const QString& reason);
    void notice(const QString& text);

private:
    void onReceived(const QStringList& fields);
    void onApplicationStateChanged(Qt::ApplicationState state);
    // Shows or hides the tutorial with the main window.
    void setMinimized(bool on);
    void sendStep(const Step& step);
    // What begins a tutorial: the area and the windows as they are.
    QVector<QStringList> startMessages();
    void sendUnlessIdle(const QStringList& message);
    void activateTopWindow();

    WindowRegistry& mRegistry;
    HostObserver mObserver;
    ScenarioPlayer mPlayer;
    HostLink mLink;
    Scenario mScenario;
    // Translation context of the scenario's hints: its file's base name.
    QString mContext;
    // "start" was sent, and no "stop" since.
    bool mStarted = false;
    bool mMinimized = false;
    QTimer mHideTimer;
    // While it runs, an activation that the tutorial's windows took is taken
    // back.
    QTimer mReclaimTimer;
};
