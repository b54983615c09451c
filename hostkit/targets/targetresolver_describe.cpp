// SPDX-License-Identifier: MIT
#include "hostkit/targets/targetresolver.h"

#include "hostkit/targets/targetitem.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QToolButton>

#include <cmath>

using namespace TutorialHost;

namespace {

// What is larger both ways has places of its own.
constexpr int kLarge = 64;
// The fractions are written with four digits at most.
constexpr double kFinest = 10000;

const QLatin1String kQtPrefix("qt_");

// Empty for Qt's own names.
QString nameOf(const QObject* object)
{
    return !object || object->objectName().startsWith(kQtPrefix) ? QString() : object->objectName();
}

bool isLarge(const QWidget& widget)
{
    return widget.width() > kLarge && widget.height() > kLarge;
}

// The fraction with the fewest digits that is this pixel of so many.
double fractionOf(int pixel, int count)
{
    const int last = qMax(1, count - 1);
    for (double digits = 10;; digits *= 10) {
        const double fraction = std::round(digits * pixel / last) / digits;
        if (qRound(fraction * last) == pixel || digits >= kFinest)
            return fraction;
    }
}

QPointF fractionsOf(const QWidget& widget, const QPoint& point)
{
    const QPoint inside = widget.mapFromGlobal(point);
    return {fractionOf(inside.x(), widget.width()), fractionOf(inside.y(), widget.height())};
}

// The action that the widget shows at the point; null when it shows none.
const QAction* actionAt(const QWidget* widget, const QPoint& point)
{
    if (const auto* button = qobject_cast<const QToolButton*>(widget))
        return button->defaultAction();
    const auto* menu = qobject_cast<const QMenu*>(widget);
    return menu ? menu->actionAt(menu->mapFromGlobal(point)) : nullptr;
}

bool hasItems(const QWidget* widget)
{
    return qobject_cast<const QAbstractItemView*>(widget) || qobject_cast<const QTabBar*>(widget)
        || qobject_cast<const QMenu*>(widget) || qobject_cast<const QMenuBar*>(widget);
}

// The tabs whose page the widget is; null when it is none, or they have no name.
QTabWidget* tabsOf(const QWidget* page)
{
    const QWidget* stack = page->parentWidget();
    auto* tabs = stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr;
    return tabs && tabs->indexOf(const_cast<QWidget*>(page)) >= 0 && !nameOf(tabs).isEmpty()
        ? tabs
        : nullptr;
}

// All that the segments may mean, hidden or not.
QVector<QWidget*> meanings(QWidget* scope, const QVector<TargetPath::Segment>& segments)
{
    QVector<QWidget*> found{scope};
    for (const TargetPath::Segment& segment : segments) {
        QVector<QWidget*> next;
        for (const QWidget* one : qAsConst(found)) {
            const auto children = one->findChildren<QWidget*>(segment.name);
            for (QWidget* child : children) {
                const auto item =
                    segment.items.isEmpty() ? std::nullopt : TargetItem::find(child, segment.items);
                QWidget* meant = item ? item->page : child;
                if (meant && meant->window() == scope->window() && !next.contains(meant))
                    next << meant;
            }
        }
        found = next;
    }
    return found;
}

} // namespace

QString TargetResolver::describe(QWidget* widget, const QPoint& point)
{
    for (const bool isItem : {true, false}) {
        QVector<TargetPath::Item> items;
        bool isNameless = false;
        for (QWidget* one = widget; one; one = one->parentWidget()) {
            TargetPath path;
            path.action = nameOf(actionAt(one, point));
            if (!path.action.isEmpty() && means(path.toText(), point))
                return path.toText();
            if (isItem && items.isEmpty() && hasItems(one))
                items = TargetItem::at(one, point);
            path = pathTo(one);
            if (!path.segments.isEmpty()) {
                path.segments.last().items = items;
                if (items.isEmpty() && (isNameless || isLarge(*one)))
                    path.place = fractionsOf(*one, point);
                if (means(path.toText(), point))
                    return path.toText();
            }
            // The list of a combo box is a window of its own and a part of it.
            if (one->isWindow() && !qobject_cast<QComboBox*>(one->parentWidget()))
                break;
            // Qt's own parts are as good as the whole.
            isNameless = isNameless || !one->objectName().startsWith(kQtPrefix);
        }
    }
    return {};
}

bool TargetResolver::means(const QString& target, const QPoint& point)
{
    const Target found = resolve(target);
    return found.state == Target::Shown && found.rect.contains(point);
}

TargetPath TargetResolver::pathTo(QWidget* widget) const
{
    const auto ownName = [this](const QWidget* one) {
        return mWindows.nameOf ? mWindows.nameOf(*one) : QString();
    };
    QWidget* scope = widget;
    while (ownName(scope).isEmpty() && !scope->isWindow())
        scope = scope->parentWidget();
    TargetPath path;
    if (scope != widget) {
        if (nameOf(widget).isEmpty())
            return {};
        path.segments = {{nameOf(widget), {}}};
    }
    // As much of what is around it as tells it apart.
    QWidget* around = widget;
    while (around != scope && meanings(scope, path.segments).size() > 1) {
        TargetPath::Segment segment;
        QTabWidget* tabs = tabsOf(around);
        if (tabs && tabs != scope) {
            segment = {nameOf(tabs), {TargetItem::ofTab(*tabs, tabs->indexOf(around))}};
            around = tabs->parentWidget();
        } else {
            around = around->parentWidget();
            // A page is told by its tab.
            if (around != scope && !tabsOf(around))
                segment.name = nameOf(around);
        }
        if (!segment.name.isEmpty())
            path.segments.prepend(segment);
    }
    const QString window = ownName(scope).isEmpty() ? nameOf(scope) : ownName(scope);
    if (!window.isEmpty())
        path.segments.prepend({window, {}});
    return path;
}
