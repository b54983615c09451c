// SPDX-License-Identifier: MIT
#include "hostkit/targets/actionplace.h"

#include "hostkit/targets/targetitem.h"
#include "hostkit/targets/targetplace.h"
#include "hostkit/targets/widgetsearch.h"
#include "tutorial/vocabulary/qtcompat.h"

#include <QCoreApplication>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

using namespace TutorialHost;

namespace {

// Menus in menus; more than a person would open.
constexpr int kDeepest = 8;

// Qt's name for the button of what has no room.
const QLatin1String kMoreTools("qt_toolbar_ext_button");

QVector<QWidget*> holdersOf(const QAction& action)
{
    QVector<QWidget*> holders;
    const auto widgets = widgetsWith(action);
    for (QObject* widget : widgets) {
        if (widget->isWidgetType())
            holders << static_cast<QWidget*>(widget);
    }
    sortByRank(holders);
    return holders;
}

// The button of the action in the holder; null when that has none.
QWidget* buttonIn(QWidget* holder, const QAction& action)
{
    if (auto* bar = qobject_cast<QToolBar*>(holder))
        return bar->widgetForAction(const_cast<QAction*>(&action));
    const auto* button = qobject_cast<QToolButton*>(holder);
    if (button && button->defaultAction() != &action
        && (!button->menu() || button->menu() != action.menu()))
        return nullptr;
    if (button)
        return holder;
    return qobject_cast<QPushButton*>(holder);
}

// A button first, then an entry of what is open.
Target placeIn(
    const QVector<QWidget*>& holders, const QAction& action, const std::optional<QPointF>& place)
{
    for (const bool isButton : {true, false}) {
        for (QWidget* holder : holders) {
            QWidget* widget = isButton ? buttonIn(holder, action) : holder;
            if (!widget || !widget->isVisible())
                continue;
            const QRect part = isButton ? widget->rect() : TargetItem::entryOf(*holder, action);
            const Target target = part.isEmpty() ? Target() : placeOf(widget, part, place);
            if (target.isOnScreen())
                return target;
        }
    }
    return {};
}

Target leadTo(const QVector<QWidget*>& holders, int depth)
{
    for (QWidget* holder : holders) {
        const auto* menu = qobject_cast<QMenu*>(holder);
        if (!menu || menu->isVisible() || depth > kDeepest)
            continue;
        const QAction& title = *menu->menuAction();
        const QVector<QWidget*> around = holdersOf(title);
        Target target = placeIn(around, title, std::nullopt);
        if (!target.isOnScreen())
            target = leadTo(around, depth + 1);
        if (target.isOnScreen())
            return target;
    }
    for (QWidget* holder : holders) {
        for (const QLatin1String& name : {kMoreTools, QLatin1String("qt_menubar_ext_button")}) {
            auto* more = holder->findChild<QToolButton*>(name, Qt::FindDirectChildrenOnly);
            if (more && more->isVisible())
                return placeOf(more, more->rect(), std::nullopt);
        }
    }
    return {};
}

} // namespace

Target TutorialHost::placeOf(const QAction& action, const std::optional<QPointF>& place)
{
    const QVector<QWidget*> holders = holdersOf(action);
    Target target;
    if (action.isVisible())
        target = placeIn(holders, action, place);
    if (action.isVisible() && !target.isOnScreen()) {
        target = leadTo(holders, 0);
        if (target.state == Target::Shown)
            target.state = Target::Led;
    }
    if (!target.isOnScreen()) {
        target = {};
        target.state = Target::Hidden;
        target.reason = QCoreApplication::translate(
            "TutorialHost::Target", "no button and no menu shows the action now");
    }
    return target;
}
