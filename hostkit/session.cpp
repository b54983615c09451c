// SPDX-License-Identifier: MIT
#include "hostkit/session.h"

#include "editor/scenario/scenarioreader.h"
#include "hostkit/windows/windowregistry.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <utility>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

// A learner who only passes by, or a window of the tutorial that takes the
// activation for a moment, must not make the tutorial flicker.
constexpr int kHideMs = 300;

} // namespace

Session::Session(
    const QString& program, WindowRegistry& registry, const QStringList& arguments, QObject* parent)
    : QObject(parent), mRegistry(registry), mObserver(registry), mActivation(registry),
      mTargets(targetWindows()), mPlayer(mObserver, mTargets), mLink(program, arguments)
{
    connectRegistry();
    connectPlayer();
    connectLink();

    mHideTimer.setInterval(kHideMs);
    mHideTimer.setSingleShot(true);
    connect(&mHideTimer, &QTimer::timeout, this, [this] {
        sendUnlessIdle({QStringLiteral("state"), QStringLiteral("hide")});
    });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
        &Session::onApplicationStateChanged);
}

void Session::connectPlayer()
{
    connect(&mObserver, &ControlObserver::happened, &mPlayer, &Player::onEvent);
    connect(&mObserver, &ControlObserver::changed, &mPlayer, &Player::onStateChanged);
    connect(&mTargets, &TargetFollower::changed, this, &Session::onTargetChanged);

    connect(&mPlayer, &Player::presetDataRequested, this, &Session::presetDataRequested);
    connect(&mPlayer, &Player::commandRequested, this, &Session::commandRequested);
    connect(&mPlayer, &Player::stepShown, this, [this](const Step& step) {
        sendStep(step);
        emit stepShown(step);
    });
    connect(&mPlayer, &Player::stepDone, this, &Session::stepDone);
    connect(&mPlayer, &Player::stepLost, this, &Session::sendLost);
    connect(&mPlayer, &Player::targetMissing, this, &Session::targetMissing);
    connect(&mPlayer, &Player::notice, this, &Session::notice);
    connect(&mPlayer, &Player::finished, this, [this] {
        stop();
        emit finished();
    });
}

void Session::connectLink()
{
    connect(&mLink, &Link::connected, this, [this] {
        mIsNew = true;
        if (const auto task = std::exchange(mWhenConnected, nullptr))
            task();
    });
    connect(&mLink, &Link::received, this, &Session::onReceived);
    connect(&mLink, &Link::failed, this, &Session::onLost);
}

void Session::onLost(const QString& reason)
{
    mStarted = false;
    if (mPlayer.isPlaying() && mLink.failure() == Link::Failure::Lost && mRestartsLeft > 0) {
        --mRestartsLeft;
        emit notice(reason);
        whenConnected([this] {
            if (const auto step = stepOnShow())
                sendStep(*step);
        });
        return;
    }
    mPlayer.stop();
    mPreview.reset();
    mWhenConnected = nullptr;
    emit failed(reason);
}

void Session::read(const QString& path)
{
    stop();
    QJsonArray steps;
    QStringList errors;
    TutorialEditor::readScenarioFile(path, &steps, &errors);
    for (const QString& error : qAsConst(errors))
        emit notice(error);
    mScenario = Scenario::fromJson(steps, mWords);
}

bool Session::play(const QString& path, const QList<int>& first)
{
    read(path);
    return start(path, mScenario.indexOf(first));
}

bool Session::playFrom(const QString& path, const QString& label)
{
    read(path);
    const int index = mScenario.labels.value(label, -1);
    // A group without steps at the very end has a label too.
    return start(path, index < mScenario.steps.size() ? index : -1);
}

bool Session::start(const QString& path, int index)
{
    if (index < 0) {
        emit notice(tr("There is no scenario to play in “%1”.").arg(path));
        return false;
    }
    mContext = QFileInfo(path).completeBaseName();
    mRegistry.forgetResults();
    mRestartsLeft = mRestarts;
    whenConnected([this, index] { mPlayer.start(mScenario, index); });
    return true;
}

void Session::stop()
{
    mPlayer.stop();
    mPreview.reset();
    // A tutorial that is not there yet has nothing to begin with any more.
    mWhenConnected = nullptr;
    sendUnlessIdle({QStringLiteral("stop")});
    mStarted = false;
}

void Session::whenConnected(const std::function<void()>& task)
{
    if (mLink.isConnected()) {
        task();
        return;
    }
    mWhenConnected = task;
    mLink.open();
}

void Session::onReceived(const QStringList& fields)
{
    static const QStringList kAnswers = {
        QStringLiteral("next"), QStringLiteral("yes"), QStringLiteral("no")};
    if (!mPlayer.isPlaying() || !kAnswers.contains(fields.first()))
        return;
    mPlayer.onAnswer(fields.first());
    // The click may have taken the activation to the tutorial's button.
    mActivation.reclaim();
    activate();
}

void Session::onApplicationStateChanged(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive) {
        mHideTimer.stop();
        sendUnlessIdle({QStringLiteral("state"), QStringLiteral("show")});
        return;
    }
    mHideTimer.start();
}

void Session::setMinimized(bool on)
{
    if (mMinimized == on)
        return;
    mMinimized = on;
    if (on) {
        // "hide" alone would not do: with the host out of the way the window
        // manager activates one of the tutorial's windows.
        sendUnlessIdle({QStringLiteral("state"), QStringLiteral("hide")});
        sendUnlessIdle({QStringLiteral("stop")});
        mStarted = false;
    } else if (mPreview) {
        sendPoint(*mPreview);
    } else if (const auto step = stepOnShow()) {
        sendStep(*step);
    }
}
