// SPDX-License-Identifier: MIT
#include "hostkit/core/player.h"

#include "tutorial/vocabulary/tutorialaction.h"

using namespace Tutorial;
using namespace TutorialHost;

namespace {

// A window that has just been opened needs a moment to get its place, and to
// be on the screen before the arrow is raised above it.
constexpr int kSettleMs = 50;
// How long a window may take to open before the player says that it waits.
constexpr int kPatienceMs = 2000;
// Nobody tells when a condition of the host's own is met: it is asked.
constexpr int kAskMs = 100;

} // namespace

Player::Player(const HostState& state, TargetView& targets, QObject* parent)
    : QObject(parent), mState(state), mTargets(targets)
{
    mJudgeTimer.setSingleShot(true);
    connect(&mJudgeTimer, &QTimer::timeout, this, &Player::judge);
    mOwnTimer.setInterval(kAskMs);
    connect(&mOwnTimer, &QTimer::timeout, this, &Player::judge);
    mWaitTimer.setSingleShot(true);
    connect(&mWaitTimer, &QTimer::timeout, this, [this] {
        mMet = true;
        judge();
    });
    mPatienceTimer.setSingleShot(true);
    mPatienceTimer.setInterval(kPatienceMs);
    connect(&mPatienceTimer, &QTimer::timeout, this, [this] {
        const QString path = step().pathText();
        if (windowIsOpen(step()) && !step().target.isEmpty())
            emit notice(tr("Step %1 waits for “%2”.").arg(path, step().target));
        else
            emit notice(tr("Step %1 waits for the window “%2”.")
                            .arg(path, TutorialAction::getWindowKindName(step().window)));
    });
}

void Player::start(const Scenario& scenario, int first)
{
    stop();
    mScenario = scenario;
    enter(first);
}

void Player::stop()
{
    mCurrent = -1;
    mHistory.clear();
    mReached.clear();
    mShown = false;
    mTargets.follow({});
    for (QTimer* timer : {&mJudgeTimer, &mWaitTimer, &mPatienceTimer, &mOwnTimer})
        timer->stop();
}

void Player::onEvent(const HostEvent& event)
{
    if (!isPlaying() || !isMetBy(step().condition, step().window, event))
        return;
    mMet = true;
    mJudgeTimer.start(0);
}

void Player::onStateChanged()
{
    if (isPlaying() && !mJudgeTimer.isActive())
        mJudgeTimer.start(kSettleMs);
}

void Player::onAnswer(const QString& answer)
{
    if (!isPlaying() || !isShown())
        return;
    const bool isNext = answer == QLatin1String("next");
    if (isNext ? !step().offersNext() : step().condition.kind != Condition_yesNo)
        return;
    if (!isNext)
        mChosenLabel = step().condition.parameter(answer == QLatin1String("yes") ? 0 : 1);
    mMet = true;
    mJudgeTimer.start(0);
}

bool Player::windowIsOpen(const Step& step) const
{
    return step.window == WindowKindCount
        || mState.windowState(step.window) == QLatin1String("open");
}

bool Player::canBeShown(int index) const
{
    const Step& step = mScenario.steps.at(index);
    const auto reach = step.target.isEmpty() ? TargetView::Missing : mTargets.reach(step.target);
    return reach == TargetView::Reachable
        || (reach == TargetView::Missing && !mReached.contains(index) && windowIsOpen(step));
}

void Player::noteTarget()
{
    if (step().target.isEmpty())
        return;
    const auto reach = mTargets.reach(step().target);
    if (reach == TargetView::Reachable)
        mReached.insert(mCurrent);
    if (reach != TargetView::Missing || mToldMissing)
        return;
    mToldMissing = true;
    emit targetMissing(step());
}

void Player::enter(int index)
{
    mMet = false;
    mChosenLabel.clear();
    mShown = false;
    mWaitTimer.stop();
    mPatienceTimer.stop();
    mOwnTimer.stop();
    if (index >= mScenario.steps.size()) {
        stop();
        emit finished();
        return;
    }
    mCurrent = index;
    mReached.remove(index);
    if (!step().fault.isEmpty())
        emit notice(tr("Step %1: %2").arg(step().pathText(), step().fault));
    if (!step().presetData.isEmpty())
        emit presetDataRequested(step().presetData);
    if (isPlaying() && !step().command.isEmpty())
        emit commandRequested(step().command, step().commandParameter);
    // Whoever loads the data may end the tutorial.
    if (!isPlaying())
        return;
    if (step().condition.own)
        mOwnTimer.start();
    mPatienceTimer.start();
    mTargets.follow(step().target);
    mJudgeTimer.start(kSettleMs);
}

void Player::judge()
{
    if (mMet || isMet(step().condition, step().window, mState)) {
        finishStep();
        return;
    }
    if (isShown())
        noteTarget();
    if (!isPlaying())
        return;
    if (isShown() && !canBeShown(mCurrent))
        goBack();
    else if (!isShown() && canBeShown(mCurrent))
        show();
}

void Player::show()
{
    mPatienceTimer.stop();
    mShown = true;
    mToldMissing = false;
    if (step().condition.kind == Condition_wait && step().condition.fault().isEmpty())
        mWaitTimer.start(qRound(step().condition.parameter(0).toDouble() * 1000));
    if (isAboutNothing(step().condition, step().window, mState))
        emit notice(tr("Step %1: nothing in the window is called “%2”.")
                        .arg(step().pathText(), step().condition.parameter(0)));
    emit stepShown(step());
    if (isPlaying() && isShown())
        noteTarget();
}

void Player::goBack()
{
    while (!mHistory.isEmpty() && !canBeShown(mHistory.last()))
        mHistory.removeLast();
    mShown = false;
    mWaitTimer.stop();
    mPatienceTimer.start();
    if (mHistory.isEmpty()) {
        emit stepLost(step());
        return;
    }
    // Not entered anew: data that this step loads would undo the learner's work.
    mCurrent = mHistory.takeLast();
    mMet = false;
    mOwnTimer.stop();
    if (step().condition.own)
        mOwnTimer.start();
    mTargets.follow(step().target);
    judge();
}

void Player::finishStep()
{
    const int next = indexAfterStep();
    mHistory << mCurrent;
    emit stepDone(step());
    enter(next);
}

int Player::indexAfterStep()
{
    const int next = mCurrent + 1;
    if (mChosenLabel.isEmpty())
        return next;
    if (!mScenario.labels.contains(mChosenLabel))
        emit notice(tr("Step %1: there is no label “%2”.").arg(step().pathText(), mChosenLabel));
    return mScenario.labels.value(mChosenLabel, next);
}
