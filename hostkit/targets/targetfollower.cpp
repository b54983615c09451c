// SPDX-License-Identifier: MIT
#include "hostkit/targets/targetfollower.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QTabBar>

using namespace TutorialHost;

namespace {

// What is painted again and again, an animation for example, is looked at so
// often at most.
constexpr int kPaintedMs = 100;

// Whether such an event may put a widget, or a part of it, to another place.
bool moves(QEvent::Type type)
{
    switch (type) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ParentChange:
    case QEvent::ChildRemoved:
    case QEvent::LayoutRequest:
    case QEvent::LayoutDirectionChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::WindowStateChange:
    case QEvent::WindowActivate:
    case QEvent::ActionAdded:
    case QEvent::ActionChanged:
    case QEvent::ActionRemoved:
        return true;
    default:
        return false;
    }
}

bool isSame(const Target& a, const Target& b)
{
    return a.state == b.state && a.widget == b.widget && a.rect == b.rect && a.point == b.point;
}

} // namespace

TargetFollower::TargetFollower(const TargetWindows& windows, QObject* parent)
    : QObject(parent), mResolver(windows)
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &TargetFollower::update);
}

void TargetFollower::follow(const QString& target)
{
    qApp->removeEventFilter(this);
    mTimer.stop();
    mName = target;
    mTarget = {};
    mRevealed = false;
    if (target.isEmpty())
        return;
    // Something of the same name may have come nearer.
    mResolver.forget();
    qApp->installEventFilter(this);
    update();
}

TargetView::Reach TargetFollower::reach(const QString& target)
{
    if (target == mName)
        update();
    const Target found = target == mName ? mTarget : mResolver.resolve(target);
    if (found.isOnScreen())
        return Reachable;
    return found.state == Target::Hidden ? Hidden : Missing;
}

void TargetFollower::update()
{
    mTimer.stop();
    if (mName.isEmpty())
        return;
    if (!mRevealed)
        mResolver.reveal(mName);
    Target now = mResolver.resolve(mName);
    mRevealed = mRevealed || now.state == Target::Shown;
    if (isSame(now, mTarget))
        return;
    if (mWatched != now.widget) {
        if (mWatched)
            disconnect(mWatched, &QObject::destroyed, this, nullptr);
        mWatched = now.widget;
        if (mWatched)
            connect(mWatched, &QObject::destroyed, this, [this] {
                // It is not to be looked at any more.
                mTarget = {};
                mTarget.state = Target::Hidden;
                schedule(0);
            });
    }
    mTarget = std::move(now);
    emit changed();
}

bool TargetFollower::isSeenByPainting(const QObject* painted) const
{
    if (mTarget.state != Target::Shown || !mTarget.widget)
        return true;
    return painted == mTarget.widget
        && (qobject_cast<QAbstractItemView*>(painted->parent())
            || qobject_cast<const QTabBar*>(painted) || qobject_cast<const QMenu*>(painted)
            || qobject_cast<const QMenuBar*>(painted));
}

void TargetFollower::schedule(int delay)
{
    if (!mTimer.isActive() || mTimer.interval() > delay)
        mTimer.start(delay);
}

bool TargetFollower::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    if (moves(event->type()))
        schedule(0);
    else if (event->type() == QEvent::Paint && isSeenByPainting(watched))
        schedule(kPaintedMs);
    return false;
}
