// SPDX-License-Identifier: MIT
#include "overlay/buttonplace.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <vector>

namespace {

// A rectangle that a host may put anywhere without an overflow; right and
// bottom are the first pixels outside of it.
struct Box {
    explicit Box(const QRect& rect)
        : left(rect.left()), top(rect.top()), right(qint64(rect.right()) + 1),
          bottom(qint64(rect.bottom()) + 1)
    {
    }

    bool isEmpty() const { return left >= right || top >= bottom; }
    qint64 width() const { return right - left; }
    qint64 height() const { return bottom - top; }
    bool contains(const Box& box) const
    {
        return left <= box.left && top <= box.top && box.right <= right && box.bottom <= bottom;
    }
    bool overlaps(const Box& box) const
    {
        return left < box.right && box.left < right && top < box.bottom && box.top < bottom;
    }
    Box intersected(const Box& box) const
    {
        Box common = *this;
        common.left = std::max(left, box.left);
        common.top = std::max(top, box.top);
        common.right = std::min(right, box.right);
        common.bottom = std::min(bottom, box.bottom);
        return common;
    }
    Box movedTo(qint64 x, qint64 y) const
    {
        Box moved = *this;
        moved.left = x;
        moved.top = y;
        moved.right = x + width();
        moved.bottom = y + height();
        return moved;
    }

    qint64 left;
    qint64 top;
    qint64 right;
    qint64 bottom;
};

using Boxes = std::vector<Box>;

Boxes shown(std::initializer_list<QRect> parts)
{
    Boxes boxes;
    for (const QRect& part : parts) {
        if (!Box(part).isEmpty())
            boxes.emplace_back(part);
    }
    return boxes;
}

// The places in a room that touch, in each direction, an edge of an obstacle or
// of the room, or are where the buttons are described: the nearest free place is
// one of them.
Boxes placesIn(const Box& room, const Box& described, const Boxes& obstacles)
{
    const qint64 lastX = room.right - described.width();
    const qint64 lastY = room.bottom - described.height();
    if (lastX < room.left || lastY < room.top)
        return {};
    std::vector<qint64> columns = {std::clamp(described.left, room.left, lastX)};
    std::vector<qint64> rows = {std::clamp(described.top, room.top, lastY)};
    for (const Box& obstacle : obstacles) {
        columns.insert(columns.end(), {obstacle.left - described.width(), obstacle.right});
        rows.insert(rows.end(), {obstacle.top - described.height(), obstacle.bottom});
    }
    Boxes places;
    for (qint64 x : columns) {
        for (qint64 y : rows)
            places.push_back(described.movedTo(x, y));
    }
    return places;
}

std::optional<Box> nearest(const Box& described, const Boxes& rooms, const Boxes& obstacles)
{
    std::optional<Box> best;
    const auto distance = [&described](const Box& place) {
        return std::hypot(double(place.left - described.left), double(place.top - described.top));
    };
    for (const Box& room : rooms) {
        for (const Box& place : placesIn(room, described, obstacles)) {
            const bool isFree = room.contains(place)
                && std::none_of(obstacles.begin(), obstacles.end(),
                    [&place](const Box& obstacle) { return obstacle.overlaps(place); });
            if (isFree && (!best || distance(place) < distance(*best)))
                best = place;
        }
    }
    return best;
}

} // namespace

BalloonParts BalloonParts::translated(const QPoint& offset) const
{
    return {arrow.translated(offset), tip.translated(offset), icon.translated(offset),
        text.translated(offset)};
}

QPoint buttonPlace(const QRect& described, const QRect& hostArea, const QVector<QRect>& screens,
    const BalloonParts& parts)
{
    const Box wanted(described);
    Boxes whole;
    Boxes hosts;
    for (const QRect& screen : screens) {
        whole.emplace_back(screen);
        hosts.push_back(
            Box(hostArea).isEmpty() ? Box(screen) : Box(screen).intersected(Box(hostArea)));
    }
    for (const Boxes& rooms : {hosts, whole}) {
        const bool stays = std::any_of(rooms.begin(), rooms.end(),
            [&wanted](const Box& room) { return room.contains(wanted); });
        if (stays)
            break;
        for (const Boxes& obstacles : {shown({parts.text, parts.icon, parts.arrow, parts.tip}),
                 shown({parts.text, parts.tip}), shown({parts.tip})}) {
            if (const std::optional<Box> place = nearest(wanted, rooms, obstacles))
                return {int(place->left), int(place->top)};
        }
    }
    return described.topLeft();
}
