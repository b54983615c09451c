// SPDX-License-Identifier: MIT
#include "hostkit/session.h"

#include "hostkit/core/hinttext.h"
#include "hostkit/windows/windowregistry.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

// Where the arrow stands, and what is sent for it.

using namespace Tutorial;
using namespace TutorialHost;

namespace {

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

void Session::connectRegistry()
{
    connect(&mRegistry, &WindowRegistry::pushed, this, [this](EnumWindowKind kind) {
        if (isOnLink(kind))
            sendUnlessIdle(pushMessage(kind));
    });
    connect(&mRegistry, &WindowRegistry::popped, this, [this](EnumWindowKind kind) {
        if (isOnLink(kind))
            sendUnlessIdle({QStringLiteral("windowStack"), QStringLiteral("pop")});
    });
    connect(&mRegistry, &WindowRegistry::moved, this,
        [this](EnumWindowKind kind, const QPoint& position) {
            if (isOnLink(kind))
                sendUnlessIdle(positionMessage(kind, position));
            sendOwnPoint();
        });
    // A window that was closed leaves the author's step to the main window.
    connect(&mRegistry, &WindowRegistry::changed, this, [this] {
        if (mPreview)
            sendOwnPoint();
    });
    connect(&mRegistry, &WindowRegistry::minimized, this, [this](EnumWindowKind kind, bool on) {
        if (kind == Window_MainWindow)
            setMinimized(on);
    });
}

TargetWindows Session::targetWindows() const
{
    TargetWindows windows;
    windows.find = [this](const QString& name) -> std::optional<QVector<QWidget*>> {
        const EnumWindowKind kind = mWords.window(name);
        const QVector<QWidget*> found = mRegistry.windows(kind);
        if (found.isEmpty() && !mWords.added.contains(kind))
            return {};
        return found;
    };
    windows.nameOf = [this](const QWidget& widget) {
        const EnumWindowKind kind = mRegistry.kindOf(&widget);
        return kind == WindowKindCount ? QString() : mWords.windowName(kind);
    };
    return windows;
}

void Session::setPreview(const Step& step)
{
    mPreview = step;
    mTargets.follow(step.target);
}

void Session::show(const Step& step)
{
    setPreview(step);
    sendStep(step);
}

void Session::pointAt(const Step& step)
{
    setPreview(step);
    sendPoint(step);
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

bool Session::isFollowed(const Step& step) const
{
    return !step.target.isEmpty() && step.target == mTargets.name()
        && mTargets.target().isOnScreen();
}

QPoint Session::targetOf(const Step& step) const
{
    if (isFollowed(step))
        return mTargets.target().point;
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
    return targetOf(step) - (step.point || isFollowed(step) ? kTip : kHintMiddle);
}

void Session::onTargetChanged()
{
    if (!mPreview)
        mPlayer.onStateChanged();
    const auto step = stepOnShow();
    if (!step || mMinimized)
        return;
    // The player judges what is to be done without it.
    if (!mPreview && !isFollowed(*step))
        return;
    if (!mPreview && !mSentFollowed)
        sendStep(*step);
    else
        sendUnlessIdle(xyMessage(sentPointOf(*step)));
}

void Session::sendOwnPoint()
{
    const auto step = stepOnShow();
    if (step && !isFollowed(*step) && (mPreview || !mPlayer.hadTarget()))
        sendUnlessIdle(xyMessage(sentPointOf(*step)));
}

void Session::sendStep(const Step& step)
{
    if (mMinimized)
        return;
    // In one packet, so that the tutorial has a text and a target from the
    // first picture that it paints.
    mSentFollowed = isFollowed(step);
    QVector<QStringList> messages = startMessages();
    messages << indicatorMessage(step, step.indicatorFlags()) << xyMessage(sentPointOf(step));
    mLink.send(messages);
}

void Session::sendLost(const Step& step)
{
    sendUnlessIdle(indicatorMessage(step, step.indicatorFlags() | HideArrowFlag));
}

QStringList Session::indicatorMessage(const Step& step, int flags) const
{
    QPoint offset = step.point.value_or(QPoint(kNoCoordinate, kNoCoordinate));
    if (isFollowed(step))
        offset = targetOf(step) - originOf(step.window);
    return {QStringLiteral("indicator"), QStringLiteral("update"), QString::number(offset.x()),
        QString::number(offset.y()), QString::number(std::min(step.window, WindowKindCount)),
        hintText(step.hint, mContext), QString::number(flags), QString::number(step.icon)};
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
    const bool isFirst = std::exchange(mIsNew, false);
    if (mPlayer.isPlaying() && isFirst)
        mActivation.reclaimWithKeys();
    else if (mPlayer.isPlaying())
        mActivation.reclaim();
    return messages;
}

void Session::sendUnlessIdle(const QStringList& message)
{
    if (mStarted)
        mLink.send({message});
}
