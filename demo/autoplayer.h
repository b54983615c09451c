// SPDX-License-Identifier: MIT
#pragma once

#include "demo/xinput.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QTimer>

namespace TutorialHost {
class Session;
struct Condition;
struct Step;
} // namespace TutorialHost

// Plays the learner: does at the arrow's tip what the step asks for, with real
// input, and presses the tutorial's own buttons. It knows nothing but what a
// learner sees, so a step that points to the wrong place is not passed.
//
// Ends the application with 0 when the scenario was played to its end, and with
// 1 when a step takes too long or the tutorial is gone. All rounds are played
// with one process of the tutorial.
class Autoplayer : public QObject {
    Q_OBJECT

public:
    // screenshots: folder for one picture a step; empty for none. minutes: no
    // round begins later than that, and at least one is played.
    Autoplayer(TutorialHost::Session& session, const QString& screenshots, int minutes);

    // Plays the file. False, with a message, when that cannot be.
    bool start(const QString& path);

private:
    bool playRound();
    void onFinished();
    void onStepShown(const TutorialHost::Step& step);
    void onStepDone(const TutorialHost::Step& step);
    void tick();
    bool arrowHasArrived();
    // The tutorial's own buttons that are on show, from left to right.
    QVector<QRect> answerButtons() const;
    bool answersAreOnShow() const;
    // False when it is not the time yet: the arrow is to be at rest.
    bool takeScreenshot();
    void act();
    // The keys that follow the click into the field.
    void enter(const TutorialHost::Condition& condition);
    void clickAnswer(const TutorialHost::Step& step);
    void fail(const QString& reason);

    TutorialHost::Session& mSession;
    QString mScreenshots;
    qint64 mPlayMs;
    QString mPath;
    XInput mInput;
    QTimer mTimer;
    QElapsedTimer mPlayTime;
    int mRounds = 0;
    // Since the step began, and since it was shown.
    QElapsedTimer mStepTime;
    QElapsedTimer mShownTime;
    // The step is shown and has not been acted on yet.
    bool mToBeDone = false;
    int mPictures = 0;
    // How often each step was shown in this round.
    QHash<QString, int> mShown;
};
