// SPDX-License-Identifier: MIT
#include "hostkit/targets/targetplace.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QScrollArea>
#include <QScrollBar>

using namespace TutorialHost;

namespace {

// A widget that is wider than this, and than so many times its height, is read
// from its side.
constexpr int kWide = 200;
constexpr int kWideShape = 3;
// What stays around a place that is scrolled into view, in pixels.
constexpr int kMargin = 40;

QPoint pointAt(const QRect& rect, const QPointF& place)
{
    return {rect.left() + qRound(place.x() * (rect.width() - 1)),
        rect.top() + qRound(place.y() * (rect.height() - 1))};
}

QPoint pointIn(const QRect& rect, Qt::LayoutDirection direction)
{
    QPoint point = rect.center();
    if (rect.width() > kWide && rect.width() > kWideShape * rect.height())
        point.setX(direction == Qt::RightToLeft ? rect.right() - rect.height()
                                                : rect.left() + rect.height());
    return point;
}

// The area whose contents move in this widget; null when it is no viewport.
QAbstractScrollArea* areaOf(const QWidget* viewport)
{
    auto* area = qobject_cast<QAbstractScrollArea*>(viewport->parentWidget());
    return area && area->viewport() == viewport ? area : nullptr;
}

// Leads to what is outside of the viewport.
Target scrollBarFor(const QAbstractScrollArea& area, const QRect& wanted)
{
    const QRect seen = area.viewport()->rect();
    const bool isAbove = wanted.bottom() < seen.top();
    const bool isBelow = wanted.top() > seen.bottom();
    const bool isVertical = isAbove || isBelow;
    QScrollBar* bar = isVertical ? area.verticalScrollBar() : area.horizontalScrollBar();
    if (!bar->isVisible())
        return {};
    // The end to which the learner scrolls.
    const bool isAtStart = isVertical ? isAbove : wanted.right() < seen.left();
    const double end = isAtStart ? 0.1 : 0.9;
    Target target = placeOf(bar, bar->rect(), isVertical ? QPointF(0.5, end) : QPointF(end, 0.5));
    if (target.state == Target::Shown)
        target.state = Target::Led;
    return target;
}

} // namespace

Target TutorialHost::placeOf(
    QWidget* widget, const QRect& part, const std::optional<QPointF>& place)
{
    Target target;
    target.widget = widget;
    target.state = Target::Hidden;
    target.reason =
        QCoreApplication::translate("TutorialHost::Target", "it is outside of what can be seen");

    // A place of its own has to be seen; else whatever can be.
    const QPoint point = pointAt(part, place.value_or(QPointF()));
    QRect rect = part;
    QRect wanted = place ? QRect(point, QSize(1, 1)) : part;
    for (QWidget* one = widget;; one = one->parentWidget()) {
        const QRect seen = one->rect();
        if (!seen.intersects(wanted)) {
            if (const QAbstractScrollArea* area = areaOf(one)) {
                const Target bar = scrollBarFor(*area, wanted);
                return bar.isOnScreen() ? bar : target;
            }
            return target;
        }
        rect &= seen;
        if (!place)
            wanted = rect;
        if (one->isWindow()) {
            const QPoint origin = one->mapToGlobal(QPoint());
            target.rect = rect.translated(origin);
            target.point =
                place ? wanted.topLeft() + origin : pointIn(target.rect, widget->layoutDirection());
            target.state = Target::Shown;
            target.reason.clear();
            return target;
        }
        rect.translate(one->pos());
        wanted.translate(one->pos());
    }
}

void TutorialHost::scrollTo(QWidget* widget, const QRect& part, const std::optional<QPointF>& place)
{
    for (QWidget* one = widget; one && !one->isWindow(); one = one->parentWidget()) {
        auto* area = one->parentWidget()
            ? qobject_cast<QScrollArea*>(one->parentWidget()->parentWidget())
            : nullptr;
        if (!area || area->widget() != one)
            continue;
        const QRect inside = part.translated(widget->mapTo(one, QPoint()));
        const QPoint point = place ? pointAt(inside, *place) : inside.center();
        const QSize seen = area->viewport()->size();
        const bool fits = inside.width() <= seen.width() && inside.height() <= seen.height();
        if (fits && !place)
            area->ensureVisible(
                point.x(), point.y(), (inside.width() + 1) / 2, (inside.height() + 1) / 2);
        else
            area->ensureVisible(point.x(), point.y(), qMin(kMargin, seen.width() / 2),
                qMin(kMargin, seen.height() / 2));
    }
}
