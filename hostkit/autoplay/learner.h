// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/autoplay/xinput.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QTimer>

#include <functional>
#include <optional>

namespace TutorialHost {

class Session;
struct Condition;
struct Step;

// What Autoplay does, on the session that plays the scenario.
class Learner : public QObject {
    Q_OBJECT

public:
    // The arguments are as in Autoplay; begin begins to play a scenario file
    // through the session, and is false when there is nothing to play.
    Learner(Session& session, const std::function<bool(const QString& path)>& begin,
        const QString& screenshots, int minutes);

    void start(const QString& path);

signals:
    void progress(const QString& line);
    // An empty error is success.
    void finished(const QString& error);

private:
    // Why nothing can be played here; empty when it can.
    QString obstacle() const;
    void playRound();
    void onFinished();
    void onStepShown(const Step& step);
    void onStepDone(const Step& step);
    void tick();
    // The tutorial's windows, in the coordinates of this program's.
    QVector<QRect> tutorialWindows() const;
    // The point of the screen is one of this program's, in its scale.
    static QPoint toPixels(const QPoint& point);
    // Finds the arrow among the tutorial's windows, and its tip. False while it is
    // on its way, or beside what the step names.
    bool arrowHasArrived();
    // Whether the arrow leads to what the step names, and the learner goes there.
    bool isToBeLed() const;
    // The click on what leads there has not shown anything yet.
    bool waitsForLead() const;
    // The tutorial's own buttons that are on show, from left to right.
    QVector<QRect> answerButtons() const;
    bool answersAreOnShow() const;
    // False when it is not the time yet: the arrow is to be at rest.
    bool takeScreenshot();
    void act();
    void clickTip(Tutorial::EnumIconKind icon);
    // The keys that follow the click into the field.
    void enter(const Condition& condition);
    void clickAnswer(const Step& step);
    void end(const QString& error);

    Session& mSession;
    std::function<bool(const QString& path)> mBegin;
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
    // Where the arrow's tip is on the screen.
    QPoint mTip;
    // The place that led there and was clicked last.
    std::optional<QPoint> mLed;
    // How often each step was shown in this round.
    QHash<QString, int> mShown;
};

} // namespace TutorialHost
