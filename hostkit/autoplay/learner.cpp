// SPDX-License-Identifier: MIT
#include "hostkit/autoplay/learner.h"

#include "hostkit/session.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <algorithm>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

constexpr int kTickMs = 50;
constexpr int kDeadlineMs = 20000;
// A question's loop is gone through twice: first with Yes, then with No.
constexpr int kMostRounds = 2;
// The hint is laid out at a tick of the tutorial's, and painted after it.
constexpr int kPaintMs = 400;
// The arrow rests for the first half of its bounce, which begins with the step.
constexpr int kBounceMs = 2000;
constexpr int kRestMs = 800;

// What a click on the way to the target opens needs so long at most.
constexpr int kLeadMs = 3000;
// From a click into a field, or on a box that opens its list, to the keys.
constexpr int kReactionMs = 250;

constexpr QSize kBalloonSize(640, 480);
constexpr QSize kButtonSize(64, 32);
// The balloon stops short by a few pixels when it comes from the left or above.
constexpr int kTolerance = 3;
// How far the balloon stands away when it is on the other side of its target.
constexpr int kFlippedBy = 180 + 76;
constexpr int kFlippedDown = 165;
// Where the tip is in the balloon when it is on neither.
constexpr QPoint kTip(38, 165);

// What is typed into a line edit, as much of it as the step asks for.
const QString kText = QStringLiteral("Meadow Tale and the long way home");

bool isNear(int value, int wanted)
{
    return qAbs(value - wanted) <= kTolerance;
}

// A number that meets the comparison, for the length or the value to enter.
int enough(const QString& comparison, int number)
{
    if (comparison == QLatin1String("<"))
        return number - 1;
    if (comparison == QLatin1String(">") || comparison == QLatin1String("!="))
        return number + 1;
    return number;
}

} // namespace

Learner::Learner(Session& session, const std::function<bool(const QString& path)>& begin,
    const QString& screenshots, int minutes)
    : mSession(session), mBegin(begin), mScreenshots(screenshots), mPlayMs(minutes * 60000LL)
{
    connect(&session, &Session::stepShown, this, &Learner::onStepShown);
    connect(&session, &Session::stepDone, this, &Learner::onStepDone);
    connect(&session, &Session::failed, this, &Learner::end);
    // The session is done with the round when the next one begins.
    connect(&session, &Session::finished, this, &Learner::onFinished, Qt::QueuedConnection);
    mTimer.setInterval(kTickMs);
    connect(&mTimer, &QTimer::timeout, this, &Learner::tick);
}

QString Learner::obstacle() const
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return QStringLiteral("an X server is needed; the platform here is %1")
            .arg(QGuiApplication::platformName());
    if (!mInput.isUsable())
        return QStringLiteral("the X server has no test extension");
    if (!mScreenshots.isEmpty() && !QDir().mkpath(mScreenshots))
        return QStringLiteral("the folder %1 cannot be made").arg(mScreenshots);
    return {};
}

void Learner::start(const QString& path)
{
    const QString reason = obstacle();
    if (!reason.isEmpty()) {
        emit finished(reason);
        return;
    }
    mPath = path;
    mRounds = 0;
    mPlayTime.start();
    mTimer.start();
    playRound();
}

void Learner::playRound()
{
    mShown.clear();
    mPictures = 0;
    mToBeDone = false;
    mStepTime.start();
    if (!mBegin(mPath))
        end(QStringLiteral("%1 cannot be played").arg(mPath));
}

void Learner::onFinished()
{
    if (!mTimer.isActive())
        return;
    emit progress(QStringLiteral("round %1 done").arg(++mRounds));
    if (mPlayTime.hasExpired(mPlayMs))
        end({});
    else
        playRound();
}

void Learner::onStepShown(const Step& step)
{
    if (!mTimer.isActive())
        return;
    if (++mShown[step.pathText()] > kMostRounds) {
        end(QStringLiteral("%1 %2 comes again and again")
                .arg(step.pathText(), step.condition.text));
        return;
    }
    mShownTime.start();
    mLed.reset();
    mToBeDone = true;
}

void Learner::onStepDone(const Step& step)
{
    emit progress(QStringLiteral("%1 %2 ok").arg(step.pathText(), step.condition.text));
    mStepTime.start();
    mToBeDone = false;
}

void Learner::tick()
{
    if (mStepTime.hasExpired(kDeadlineMs)) {
        const Player& player = mSession.player();
        const QString what = player.isPlaying()
            ? player.step().pathText() + QLatin1Char(' ') + player.step().condition.text
            : QStringLiteral("the tutorial to connect");
        end(QStringLiteral("waited %1 s for %2").arg(kDeadlineMs / 1000).arg(what));
        return;
    }
    if (mToBeDone && mShownTime.hasExpired(kPaintMs) && !waitsForLead() && arrowHasArrived()
        && answersAreOnShow() && takeScreenshot()) {
        mToBeDone = isToBeLed();
        act();
    }
}

QVector<QRect> Learner::tutorialWindows() const
{
    const double scale = qGuiApp->devicePixelRatio();
    QVector<QRect> windows = mInput.windowsOf(mSession.link().processId());
    for (QRect& window : windows)
        window = QRect((QPointF(window.topLeft()) / scale).toPoint(),
            (QSizeF(window.size()) / scale).toSize());
    return windows;
}

QPoint Learner::toPixels(const QPoint& point)
{
    return (QPointF(point) * qGuiApp->devicePixelRatio()).toPoint();
}

bool Learner::arrowHasArrived()
{
    const Step& step = mSession.player().step();
    const QPoint wanted = mSession.sentPointOf(step);
    const Target& target = mSession.target();
    const QVector<QRect> windows = tutorialWindows();
    for (const QRect& window : windows) {
        const bool isLeft = isNear(window.x(), wanted.x() - kFlippedBy);
        const bool isBelow = isNear(window.y(), wanted.y() + kFlippedDown);
        if (window.size() != kBalloonSize || (!isLeft && !isNear(window.x(), wanted.x()))
            || (!isBelow && !isNear(window.y(), wanted.y())))
            continue;
        mTip =
            window.topLeft() + kTip + QPoint(isLeft ? kFlippedBy : 0, isBelow ? -kFlippedDown : 0);
        return !target.isOnScreen() || target.rect.contains(mTip);
    }
    return false;
}

bool Learner::isToBeLed() const
{
    const EnumConditionKind kind = mSession.player().step().condition.kind;
    return mSession.target().state == Target::Led && kind != Condition_wait
        && kind != Condition_click && kind != Condition_yesNo;
}

bool Learner::waitsForLead() const
{
    return mLed && !mShownTime.hasExpired(kLeadMs)
        && mSession.targetOf(mSession.player().step()) == *mLed;
}

QVector<QRect> Learner::answerButtons() const
{
    QVector<QRect> buttons = tutorialWindows();
    buttons.erase(std::remove_if(buttons.begin(), buttons.end(),
                      [](const QRect& window) { return window.size() != kButtonSize; }),
        buttons.end());
    std::sort(buttons.begin(), buttons.end(),
        [](const QRect& a, const QRect& b) { return a.x() < b.x(); });
    return buttons;
}

bool Learner::answersAreOnShow() const
{
    switch (mSession.player().step().condition.kind) {
    case Condition_click:
        return answerButtons().size() == 1;
    case Condition_yesNo:
        return answerButtons().size() == 2;
    default:
        return true;
    }
}

bool Learner::takeScreenshot()
{
    if (mScreenshots.isEmpty())
        return true;
    if (mShownTime.elapsed() % kBounceMs > kRestMs)
        return false;
    const Step& step = mSession.player().step();
    QStringList name{QStringLiteral("%1").arg(++mPictures, 2, 10, QLatin1Char('0'))};
    for (int row : step.path)
        name << QString::number(row);
    const QString path = QStringLiteral("%1/%2.png").arg(mScreenshots, name.join(QLatin1Char('-')));
    const bool saved = QGuiApplication::primaryScreen()->grabWindow(0).save(path);
    if (!saved)
        end(QStringLiteral("the picture %1 cannot be written").arg(path));
    return saved;
}

void Learner::act()
{
    const Step& step = mSession.player().step();
    const Condition& condition = step.condition;
    if (isToBeLed()) {
        mLed = mSession.targetOf(step);
        mShownTime.start();
        mInput.click(toPixels(mTip));
        return;
    }
    switch (condition.kind) {
    case Condition_wait:
        break;
    case Condition_click:
    case Condition_yesNo:
        clickAnswer(step);
        break;
    case Condition_textLength:
    case Condition_spinBox:
    case Condition_comboBox:
        mInput.click(toPixels(mTip));
        QTimer::singleShot(kReactionMs, this, [this, condition] { enter(condition); });
        break;
    default:
        clickTip(step.icon);
        break;
    }
}

// What a condition of the host's own asks for, the icon tells alone.
void Learner::clickTip(EnumIconKind icon)
{
    if (icon == Icon_doubleClick)
        mInput.doubleClick(toPixels(mTip));
    else
        mInput.click(toPixels(mTip), icon == Icon_rightClick ? XInput::Right : XInput::Left);
    if (icon == Icon_keyboard)
        QTimer::singleShot(kReactionMs, this, [this] { mInput.type(kText); });
}

void Learner::enter(const Condition& condition)
{
    const int number = condition.parameter(1).toInt();
    if (condition.kind == Condition_comboBox) {
        mInput.press(QStringLiteral("Home"));
        for (int row = 0; row < number; ++row)
            mInput.press(QStringLiteral("Down"));
        mInput.press(QStringLiteral("Return"));
        return;
    }
    const int wanted = enough(condition.parameter(0), number);
    mInput.press(QStringLiteral("a"), true);
    mInput.type(condition.kind == Condition_spinBox ? QString::number(wanted) : kText.left(wanted));
}

// Yes the first time and No when the step comes again, so that a loop ends and
// both branches are played.
void Learner::clickAnswer(const Step& step)
{
    // The two overlap in the middle: each is clicked at its outer edge.
    const QVector<QRect> buttons = answerButtons();
    const bool no = buttons.size() > 1 && mShown.value(step.pathText()) > 1;
    const QRect button = buttons.value(no ? 1 : 0);
    const int fromEdge = kButtonSize.width() / 4;
    mInput.click(
        toPixels({no ? button.right() - fromEdge : button.left() + fromEdge, button.center().y()}));
}

void Learner::end(const QString& error)
{
    if (!mTimer.isActive())
        return;
    mTimer.stop();
    mToBeDone = false;
    emit finished(error);
}
