// SPDX-License-Identifier: MIT
#include "hostkit/windows/pointpicker.h"

#include "hostkit/windows/pickoverlay.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolButton>

using namespace TutorialHost;
PointPicker::PointPicker(const Describe& describe, QObject* parent)
    : QObject(parent), mDescribe(describe)
{
}

PointPicker::~PointPicker()
{
    stop();
}

QWidget* PointPicker::namedWidgetAt(const QPoint& point)
{
    QWidget* widget = QApplication::widgetAt(point);
    while (widget && !widget->isWindow() && nameOf(*widget).isEmpty())
        widget = widget->parentWidget();
    return widget;
}

QString PointPicker::nameOf(const QWidget& widget)
{
    const auto* button = qobject_cast<const QToolButton*>(&widget);
    const QString name = button && button->defaultAction() ? button->defaultAction()->objectName()
                                                           : widget.objectName();
    return name.startsWith(QLatin1String("qt_")) ? QString() : name;
}

void PointPicker::start()
{
    stop();
    mPicking = true;
    QApplication::setOverrideCursor(Qt::CrossCursor);
    qApp->installEventFilter(this);
    markAt(QCursor::pos());
}

void PointPicker::stop()
{
    if (!mPicking)
        return;
    mPicking = false;
    mPressed.reset();
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
    delete mOverlay;
}

bool PointPicker::eventFilter(QObject*, QEvent* event)
{
    const auto point = [event] { return static_cast<QMouseEvent*>(event)->globalPos(); };
    const auto isLeft = [event] {
        return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    };
    switch (event->type()) {
    case QEvent::MouseMove:
        markAt(point());
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (isLeft() && namedWidgetAt(point()))
            mPressed = point();
        return true;
    case QEvent::MouseButtonRelease:
        // Only now, so that the windows do not get half a click.
        if (isLeft() && mPressed) {
            const QPoint pressed = *mPressed;
            stop();
            emit picked(pressed);
        }
        return true;
    case QEvent::ShortcutOverride:
        // Else the key would be tried as a shortcut of the windows.
        event->accept();
        return true;
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            stop();
            emit cancelled();
        }
        return true;
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
        return true;
    default:
        return false;
    }
}

void PointPicker::markAt(const QPoint& point)
{
    QWidget* widget = namedWidgetAt(point);
    if (!widget) {
        delete mOverlay;
        return;
    }
    if (!mOverlay)
        mOverlay = new PickOverlay;
    mOverlay->mark(widget, mDescribe(*widget, point), point);
}
