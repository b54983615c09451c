// SPDX-License-Identifier: MIT
#include "hostkit/session.h"

#include "editor/scenario/scenarioreader.h"
#include "hostkit/core/hinttext.h"
#include "hostkit/windows/windowregistry.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

// A learner who only passes by, or a window of the tutorial that takes the
// activation for a moment, must not make the tutorial flicker.
constexpr int kHideMs = 300;
constexpr int kReclaimMs = 2000;
// Where the arrow's tip is, seen from the point that is sent.
constexpr QPoint kTip(38, 165);
// Where the middle of a hint of a few lines is, seen from the same point.
constexpr QPoint kHintMiddle(204, 100);

// A window of the host's own is none there.
bool isOnLink(EnumWindowKind kind)
{
    return kind < WindowKindCount;
}

QStringList pushMessage(EnumWindowKind kind)
{
    return {QStringLiteral("windowStack"), QStringLiteral("push"), QString::number(kind)};
}

QStringList positionMessage(EnumWindowKind kind, const QPoint& position)
{
    return {QStringLiteral("windowPosition"), QString::number(kind), QString::number(position.x()),
        QString::number(position.y())};
}

QStringList xyMessage(const QPoint& point)
{
    return {QStringLiteral("indicator"), QStringLiteral("updateXy"), QString::number(point.x()),
        QString::number(point.y())};
}

} // namespace

Session::Session(
    const QString& program, WindowRegistry& registry, const QStringList& arguments, QObject* parent)
    : QObject(parent), mRegistry(registry), mObserver(registry), mPlayer(mObserver),
      mLink(program, arguments)
{
    connect(&registry, &WindowRegistry::pushed, this, [this](EnumWindowKind kind) {
        if (isOnLink(kind))
            sendUnlessIdle(pushMessage(kind));
    });
    connect(&registry, &WindowRegistry::popped, this, [this](EnumWindowKind kind) {
        if (isOnLink(kind))
            sendUnlessIdle({QStringLiteral("windowStack"), QStringLiteral("pop")});
    });
    connect(&registry, &WindowRegistry::moved, this,
        [this](EnumWindowKind kind, const QPoint& position) {
            if (isOnLink(kind))
                sendUnlessIdle(positionMessage(kind, position));
            if (const auto step = stepOnShow())
                sendUnlessIdle(xyMessage(sentPointOf(*step)));
        });
    // A window that was closed leaves the author's step to the main window.
    connect(&registry, &WindowRegistry::changed, this, [this] {
        if (mPreview)
            sendUnlessIdle(xyMessage(sentPointOf(*mPreview)));
    });
    connect(&registry, &WindowRegistry::minimized, this, [this](EnumWindowKind kind, bool on) {
        if (kind == Window_MainWindow)
            setMinimized(on);
    });

    connect(&mObserver, &ControlObserver::happened, &mPlayer, &Player::onEvent);
    connect(&mObserver, &ControlObserver::changed, &mPlayer, &Player::onStateChanged);

    connect(&mPlayer, &Player::presetDataRequested, this, &Session::presetDataRequested);
    connect(&mPlayer, &Player::commandRequested, this, &Session::commandRequested);
    connect(&mPlayer, &Player::stepShown, this, [this](const Step& step) {
        sendStep(step);
        emit stepShown(step);
    });
    connect(&mPlayer, &Player::stepDone, this, &Session::stepDone);
    connect(&mPlayer, &Player::notice, this, &Session::notice);
    connect(&mPlayer, &Player::finished, this, [this] {
        stop();
        emit finished();
    });

    connect(&mLink, &Link::connected, this, [this] {
        if (const auto task = std::exchange(mWhenConnected, nullptr))
            task();
    });
    connect(&mLink, &Link::received, this, &Session::onReceived);
    connect(&mLink, &Link::failed, this, &Session::onLost);

    mReclaimTimer.setInterval(kReclaimMs);
    mReclaimTimer.setSingleShot(true);
    mHideTimer.setInterval(kHideMs);
    mHideTimer.setSingleShot(true);
    connect(&mHideTimer, &QTimer::timeout, this, [this] {
        sendUnlessIdle({QStringLiteral("state"), QStringLiteral("hide")});
    });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
        &Session::onApplicationStateChanged);
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

void Session::show(const Step& step)
{
    mPreview = step;
    sendStep(step);
}

void Session::pointAt(const Step& step)
{
    mPreview = step;
    sendPoint(step);
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

QPoint Session::originOf(EnumWindowKind window) const
{
    if (window == WindowKindCount)
        return {};
    // A target in the map tree is given relative to the panel around it.
    const EnumWindowKind origin =
        window == Window_MapEditTreeBox ? Window_MapEditLeftPanelItem : window;
    const auto& positions = mRegistry.positions();
    return positions.value(origin, positions.value(Window_MainWindow));
}

QPoint Session::targetOf(const Step& step) const
{
    if (!step.point) {
        const QWidget* window = mRegistry.window(step.window);
        if (!window)
            window = mRegistry.window(Window_MainWindow);
        return window ? window->mapToGlobal(window->rect().center()) : QPoint();
    }
    return originOf(step.window) + *step.point;
}

QPoint Session::sentPointOf(const Step& step) const
{
    return targetOf(step) - (step.point ? kTip : kHintMiddle);
}

void Session::onReceived(const QStringList& fields)
{
    static const QStringList kAnswers = {
        QStringLiteral("next"), QStringLiteral("yes"), QStringLiteral("no")};
    if (!mPlayer.isPlaying() || !kAnswers.contains(fields.first()))
        return;
    mPlayer.onAnswer(fields.first());
    // The click may have taken the activation to the tutorial's button.
    mReclaimTimer.start();
    if (QGuiApplication::applicationState() != Qt::ApplicationActive)
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
    if (mReclaimTimer.isActive())
        activate();
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

void Session::sendStep(const Step& step)
{
    if (mMinimized)
        return;
    // In one packet, so that the tutorial has a text and a target from the
    // first picture that it paints.
    QVector<QStringList> messages = startMessages();
    const QPoint offset = step.point.value_or(QPoint(kNoCoordinate, kNoCoordinate));
    messages << QStringList{QStringLiteral("indicator"), QStringLiteral("update"),
        QString::number(offset.x()), QString::number(offset.y()),
        QString::number(std::min(step.window, WindowKindCount)), hintText(step.hint, mContext),
        QString::number(step.indicatorFlags()), QString::number(step.icon)};
    messages << xyMessage(sentPointOf(step));
    mLink.send(messages);
}

void Session::sendPoint(const Step& step)
{
    if (!mMinimized)
        mLink.send(startMessages() << xyMessage(sentPointOf(step)));
}

std::optional<Step> Session::stepOnShow() const
{
    return mPlayer.isPlaying() && mPlayer.isShown() ? mPlayer.step() : mPreview;
}

QVector<QStringList> Session::startMessages()
{
    if (mStarted)
        return {};
    mStarted = true;
    const QWidget* top = mRegistry.topWindow();
    const QScreen* screen = top ? top->screen() : QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    QVector<QStringList> messages{
        {QStringLiteral("start"), QString::number(area.x()), QString::number(area.y()),
            QString::number(area.width()), QString::number(area.height())},
        {QStringLiteral("state"), QStringLiteral("show")}};
    for (EnumWindowKind kind : mRegistry.stack()) {
        if (isOnLink(kind))
            messages << pushMessage(kind);
    }
    const auto& positions = mRegistry.positions();
    for (auto it = positions.begin(); it != positions.end(); ++it) {
        if (isOnLink(it.key()))
            messages << positionMessage(it.key(), it.value());
    }
    // The first start takes the activation; the author's may stay in the
    // editor.
    if (mPlayer.isPlaying())
        mReclaimTimer.start();
    return messages;
}

void Session::sendUnlessIdle(const QStringList& message)
{
    if (mStarted)
        mLink.send({message});
}

void Session::activate()
{
    const QList<EnumWindowKind>& stack = mRegistry.stack();
    for (int i = stack.size() - 1; i >= 0; --i) {
        if (stack.at(i) != Window_Popup) {
            mRegistry.window(stack.at(i))->activateWindow();
            return;
        }
    }
}
