// SPDX-License-Identifier: MIT
#include "hostkit/windows/windowregistry.h"

#include <QDialog>
#include <QEvent>

#include <algorithm>
#include <iterator>

using namespace Tutorial;
using namespace TutorialHost;

void WindowRegistry::add(EnumWindowKind kind, QWidget* window)
{
    mKinds.insert(window, kind);
    window->installEventFilter(this);
    connect(window, &QObject::destroyed, this, [this, kind, window] {
        onHidden(kind, window);
        mKinds.remove(window);
    });
    if (auto* dialog = qobject_cast<QDialog*>(window)) {
        connect(dialog, &QDialog::accepted, this,
            [this, kind] { setResult(kind, QStringLiteral("ok")); });
        connect(dialog, &QDialog::rejected, this,
            [this, kind] { setResult(kind, QStringLiteral("cancel")); });
    }
    if (window->isVisible())
        onShown(kind, window);
}

QWidget* WindowRegistry::window(EnumWindowKind kind) const
{
    const QList<QWidget*> open = mOpen.value(kind);
    return open.isEmpty() ? nullptr : open.last();
}

QVector<QWidget*> WindowRegistry::windows(EnumWindowKind kind) const
{
    const QList<QWidget*> open = mOpen.value(kind);
    QVector<QWidget*> found;
    std::copy(open.rbegin(), open.rend(), std::back_inserter(found));
    for (auto it = mKinds.begin(); it != mKinds.end(); ++it) {
        auto* widget = static_cast<QWidget*>(const_cast<QObject*>(it.key()));
        if (*it == kind && !found.contains(widget))
            found << widget;
    }
    return found;
}

QList<EnumWindowKind> WindowRegistry::windowsAround(const QWidget* widget) const
{
    QList<EnumWindowKind> kinds;
    for (; widget; widget = widget->parentWidget()) {
        const auto kind = mKinds.constFind(widget);
        if (kind != mKinds.constEnd())
            kinds << *kind;
        if (widget->isWindow())
            break;
    }
    return kinds;
}

QString WindowRegistry::state(EnumWindowKind kind) const
{
    return mOpen.contains(kind) ? QStringLiteral("open")
                                : mResults.value(kind, QStringLiteral("close"));
}

QWidget* WindowRegistry::topWindow() const
{
    return mStack.isEmpty() ? nullptr : window(mStack.last());
}

bool WindowRegistry::eventFilter(QObject* watched, QEvent* event)
{
    const auto kind = mKinds.constFind(watched);
    if (kind == mKinds.constEnd())
        return false;
    switch (event->type()) {
    case QEvent::Show:
        onShown(*kind, static_cast<QWidget*>(watched));
        break;
    case QEvent::Hide:
        // The window manager's minimising does not close a window.
        if (!event->spontaneous())
            onHidden(*kind, static_cast<QWidget*>(watched));
        break;
    case QEvent::Move:
    case QEvent::Resize:
        updatePositions();
        break;
    case QEvent::WindowStateChange:
        emit minimized(*kind, static_cast<QWidget*>(watched)->isMinimized());
        break;
    default:
        break;
    }
    return false;
}

void WindowRegistry::onShown(EnumWindowKind kind, QWidget* window)
{
    QList<QWidget*>& open = mOpen[kind];
    if (open.contains(window))
        return;
    open << window;
    if (window->isWindow()) {
        mStack << kind;
        emit pushed(kind);
    }
    updatePositions();
    emit opened(kind, window);
    emit changed(kind);
}

void WindowRegistry::onHidden(EnumWindowKind kind, const QWidget* window)
{
    const auto open = mOpen.find(kind);
    if (open == mOpen.end() || open->removeAll(const_cast<QWidget*>(window)) == 0)
        return;
    if (open->isEmpty())
        mOpen.erase(open);
    mPositions.remove(kind);
    mResults.insert(kind, QStringLiteral("close"));
    const int index = mStack.lastIndexOf(kind);
    if (index >= 0) {
        // The link can only take the last entry off: the ones above this
        // window are taken off with it and put back.
        const QList<EnumWindowKind> above = mStack.mid(index + 1);
        mStack.erase(mStack.begin() + index, mStack.end());
        for (int i = above.size() - 1; i >= 0; --i)
            emit popped(above.at(i));
        emit popped(kind);
        for (EnumWindowKind other : above) {
            mStack << other;
            emit pushed(other);
        }
    }
    // Another window of the kind may be where this one was.
    updatePositions();
    emit changed(kind);
}

void WindowRegistry::setResult(EnumWindowKind kind, const QString& result)
{
    mResults.insert(kind, result);
    emit changed(kind);
}

void WindowRegistry::updatePositions()
{
    for (auto open = mOpen.constBegin(); open != mOpen.constEnd(); ++open) {
        const QPoint position = open.value().last()->mapToGlobal(QPoint());
        if (mPositions.contains(open.key()) && mPositions.value(open.key()) == position)
            continue;
        mPositions.insert(open.key(), position);
        emit moved(open.key(), position);
    }
}
