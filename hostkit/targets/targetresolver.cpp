// SPDX-License-Identifier: MIT
#include "hostkit/targets/targetresolver.h"

#include "hostkit/targets/actionplace.h"
#include "hostkit/targets/targetitem.h"
#include "hostkit/targets/targetplace.h"
#include "hostkit/targets/widgetsearch.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolBar>
#include <QWindow>

#include <algorithm>

using namespace TutorialHost;

namespace {

Target led(Target target)
{
    if (target.state == Target::Shown)
        target.state = Target::Led;
    return target;
}

Target failed(Target::State state, const QString& reason)
{
    Target target;
    target.state = state;
    target.reason = reason;
    return target;
}

// What stands in an item: a tab's page, or the widget in a row.
QWidget* contentsOf(QWidget* widget, const QVector<TargetPath::Item>& items)
{
    const auto item = TargetItem::find(widget, items);
    if (!item)
        return nullptr;
    return item->view ? item->view->indexWidget(item->index) : item->page;
}

// The tab of a dock that lies behind others; nothing when none does.
std::optional<TargetItem> tabInFrontOf(const QWidget* widget)
{
    for (; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        const auto* dock = qobject_cast<const QDockWidget*>(widget);
        const auto* window = dock ? qobject_cast<const QMainWindow*>(dock->window()) : nullptr;
        if (!window || !dock->visibleRegion().isEmpty()
            || window->tabifiedDockWidgets(const_cast<QDockWidget*>(dock)).isEmpty())
            continue;
        const auto bars = window->findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
        for (QTabBar* bar : bars) {
            for (int i = 0; bar->isVisible() && i < bar->count(); ++i) {
                if (bar->tabText(i) != dock->windowTitle())
                    continue;
                TargetItem item;
                item.holder = bar;
                item.number = i;
                return item;
            }
        }
    }
    return {};
}

// Where the item can be pressed, or what leads there.
Target placeOfItem(const TargetItem& item, const std::optional<QPointF>& place)
{
    const QRect rect = item.rect();
    if (!rect.isEmpty()) {
        const Target target = placeOf(item.holder, rect, place);
        if (target.isOnScreen())
            return item.isBehind ? led(target) : target;
    }
    if (const auto lead = item.lead())
        return led(placeOf(lead->widget, lead->rect, std::nullopt));
    return failed(Target::Hidden, TargetResolver::tr("its row is not on show"));
}

} // namespace

TargetResolver::TargetResolver(TargetWindows windows, QObject* parent)
    : QObject(parent), mWindows(std::move(windows))
{
    // Another window of the same name may be in front now.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &TargetResolver::forget);
}

void TargetResolver::forget()
{
    mScope.clear();
    mWay.clear();
    mActions.clear();
}

const TargetPath& TargetResolver::pathOf(const QString& target)
{
    if (target != mText) {
        mText = target;
        mPath = TargetPath::fromText(target);
        mScope.clear();
        mWay.clear();
    }
    return mPath;
}

Target TargetResolver::resolve(const QString& target)
{
    const TargetPath& path = pathOf(target);
    Target found;
    if (!path.fault.isEmpty())
        found.reason = path.fault;
    else
        found = path.action.isEmpty() ? resolveWidget(path) : resolveAction(path);
    return found.state == Target::Missing ? ask(target, found) : found;
}

Target TargetResolver::ask(const QString& target, const Target& otherwise) const
{
    const auto rect = mLocator ? mLocator(target) : std::nullopt;
    if (!rect || rect->isEmpty())
        return otherwise;
    Target located;
    located.state = Target::Shown;
    located.rect = *rect;
    located.point = rect->center();
    return located;
}

Target TargetResolver::resolveWidget(const TargetPath& path)
{
    const Found found = find(path);
    if (!found.widget)
        return failed(found.state, found.reason);
    const QVector<TargetPath::Item>& items = path.segments.last().items;
    std::optional<TargetItem> item;
    if (!items.isEmpty()) {
        item = TargetItem::find(found.widget, items);
        if (!item)
            return failed(Target::Missing,
                tr("“%1” has no “%2”").arg(path.segments.last().name, items.last().text));
    }
    if (QWidget* hider = hiddenBy(found.widget))
        return leadTo(hider);
    if (const auto tab = tabInFrontOf(found.widget))
        return led(placeOfItem(*tab, std::nullopt));
    return item ? placeOfItem(*item, path.place)
                : placeOf(found.widget, found.widget->rect(), path.place);
}

Target TargetResolver::leadTo(QWidget* hider)
{
    Target target;
    if (const auto* dock = qobject_cast<QDockWidget*>(hider))
        target = placeOf(*dock->toggleViewAction(), std::nullopt);
    else if (const auto* bar = qobject_cast<QToolBar*>(hider))
        target = placeOf(*bar->toggleViewAction(), std::nullopt);
    else if (const auto* menu = qobject_cast<QMenu*>(hider))
        target = placeOf(*menu->menuAction(), std::nullopt);
    const auto* stack = qobject_cast<QStackedWidget*>(hider->parentWidget());
    if (auto* tabs = stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr) {
        TargetItem tab;
        tab.holder = tabs->tabBar();
        tab.number = tabs->indexOf(hider);
        if (tab.holder->isVisible())
            target = placeOfItem(tab, std::nullopt);
    }
    if (target.isOnScreen())
        return led(target);
    return failed(Target::Hidden,
        tr("“%1” is hidden, and nothing there shows it")
            .arg(hider->objectName().isEmpty() ? hider->windowTitle() : hider->objectName()));
}

void TargetResolver::reveal(const QString& target)
{
    const TargetPath& path = pathOf(target);
    if (path.segments.isEmpty())
        return;
    QWidget* widget = find(path).widget;
    if (!widget || hiddenBy(widget))
        return;
    const QVector<TargetPath::Item>& items = path.segments.last().items;
    const auto item = items.isEmpty() ? std::nullopt : TargetItem::find(widget, items);
    if (item)
        item->scrollTo();
    else if (!items.isEmpty())
        return;
    scrollTo(item ? item->holder : widget, item ? item->rect() : widget->rect(), path.place);
}

Target TargetResolver::resolveAction(const TargetPath& path)
{
    Target best = failed(Target::Missing, tr("there is no action “%1”").arg(path.action));
    const QVector<QAction*> candidates = actions(path.action);
    for (const QAction* action : candidates) {
        const Target target = placeOf(*action, path.place);
        const bool isActive = target.widget && target.widget->window()->isActiveWindow();
        const bool wasActive = best.widget && best.widget->window()->isActiveWindow();
        if (target.state < best.state || (target.state == best.state && isActive && !wasActive))
            best = target;
    }
    return best;
}

QVector<QAction*> TargetResolver::actions(const QString& name)
{
    QVector<QPointer<QAction>>& known = mActions[name];
    const bool isValid = !known.isEmpty()
        && std::all_of(known.begin(), known.end(), [&name](const QPointer<QAction>& action) {
               return action && action->objectName() == name;
           });
    if (!isValid) {
        known.clear();
        const QWidgetList widgets = QApplication::allWidgets();
        const auto add = [&](const QList<QAction*>& some) {
            for (QAction* action : some) {
                if (action->objectName() == name && !known.contains(action))
                    known << action;
            }
        };
        add(qApp->findChildren<QAction*>(name));
        for (const QWidget* widget : widgets) {
            add(widget->actions());
            // One that no widget shows yet is there nevertheless.
            if (widget->isWindow())
                add(widget->findChildren<QAction*>(name));
        }
    }
    QVector<QAction*> actions;
    for (const QPointer<QAction>& action : qAsConst(known))
        actions << action;
    return actions;
}

TargetResolver::Found TargetResolver::find(const TargetPath& path)
{
    const QString& name = path.segments.first().name;
    const auto scopes = candidates(name);
    if (!scopes)
        return {nullptr, Target::Missing, tr("nothing is called “%1”").arg(name)};
    Found best{nullptr, Target::Hidden, tr("the window “%1” is not open").arg(name)};
    for (QWidget* scope : *scopes) {
        const Found found = findBelow(scope, path);
        if (found.widget && found.widget->isVisible())
            return found;
        if (!best.widget && (found.widget || best.state == Target::Hidden))
            best = found;
    }
    return best;
}

TargetResolver::Found TargetResolver::findBelow(QWidget* scope, const TargetPath& path)
{
    if (const Found known = findAgain(scope, path); known.widget)
        return known;
    const int last = path.segments.size() - 1;
    QVector<QPointer<QWidget>> way{scope};
    bool hasItems = false;
    QWidget* widget = scope;
    for (int i = 0; i < last; ++i) {
        const TargetPath::Segment& segment = path.segments.at(i);
        const QString& next = path.segments.at(i + 1).name;
        QWidget* around = widget;
        if (!segment.items.isEmpty()) {
            hasItems = true;
            around = contentsOf(widget, segment.items);
        }
        widget = !around                                       ? nullptr
            : around->objectName() == next && around != widget ? around
                                                               : widgetBelow(around, next);
        if (!widget)
            return {nullptr, Target::Missing,
                tr("nothing in “%1” is called “%2”")
                    .arg(around ? segment.name : segment.items.last().text, next)};
        way << widget;
    }
    if (!hasItems && widget->isVisible())
        mWay = way;
    return {widget, Target::Shown, {}};
}

TargetResolver::Found TargetResolver::findAgain(const QWidget* scope, const TargetPath& path) const
{
    if (mWay.size() != path.segments.size() || mWay.first() != scope || !mWay.last()
        || !mWay.last()->isVisible())
        return {};
    const QWidget* widget = mWay.last();
    for (int i = mWay.size() - 1; i > 0; --i) {
        while (widget && widget != mWay.at(i))
            widget = widget->parentWidget();
        if (!widget || widget->objectName() != path.segments.at(i).name)
            return {};
    }
    while (widget && widget != scope)
        widget = widget->parentWidget();
    return {widget ? mWay.last().data() : nullptr, Target::Shown, {}};
}

std::optional<QVector<QWidget*>> TargetResolver::candidates(const QString& name)
{
    if (auto own = mWindows.find ? mWindows.find(name) : std::nullopt) {
        sortByRank(*own);
        return own;
    }
    if (mScope && mScope->isVisible() && mScope->objectName() == name)
        return QVector<QWidget*>{mScope};
    const QVector<QWidget*> windows = windowsByRank();
    QVector<QWidget*> found;
    for (QWidget* window : windows) {
        if (window->objectName() == name)
            found << window;
    }
    for (int i = 0; i < windows.size() && found.isEmpty(); ++i) {
        if (!windows.at(i)->isVisible())
            break;
        if (QWidget* widget = widgetBelow(windows.at(i), name); widget && widget->isVisible())
            found << widget;
    }
    for (int i = 0; i < windows.size() && found.isEmpty(); ++i) {
        if (QWidget* widget = widgetBelow(windows.at(i), name))
            found << widget;
    }
    if (found.isEmpty())
        return {};
    mScope = found.first();
    return found;
}
