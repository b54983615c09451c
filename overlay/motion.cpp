// SPDX-License-Identifier: MIT
#include "overlay/motion.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int kBelowTarget = 165; // px, from the target to the balloon below it
constexpr int kLeftOfTarget = 180; // px, likewise to the left, and the arrow's width
constexpr int kTextWidth = 256; // px
constexpr double kFarAway = 256.0; // px
constexpr int kBackAboveFrom = 65; // px, target's y
constexpr float kStep = 0.25f; // of the remaining way, a tick
constexpr int kSnap = 3; // px

// Farther out than any screen, and near enough that a window's size can be
// added: what windows are moved to stays within.
constexpr qint64 kFarthest = 1 << 30;

constexpr float kBounceHeight = 16.0f; // px
constexpr float kTurnsPerSecond = 0.5f;
constexpr float kDegreesPerTurn = 360.0f;
constexpr float kRadiansPerDegree = 0.017453292f;

int eased(int from, qint64 to)
{
    const float next = static_cast<float>(from) + static_cast<float>(to - from) * kStep;
    qint64 position = static_cast<qint64>(next);
    if (std::abs(to - position) < kSnap)
        position = to;
    return static_cast<int>(std::clamp(position, -kFarthest, kFarthest));
}

} // namespace

BalloonMotion::WidePoint BalloonMotion::effectiveTarget(int arrowWidth) const
{
    WidePoint point{target.x(), target.y()};
    if (flippedVertically)
        point.y += kBelowTarget;
    if (flippedHorizontally)
        point.x -= kLeftOfTarget + arrowWidth;
    return point;
}

bool BalloonMotion::updateSides(int arrowWidth, int areaRight)
{
    const WidePoint goal = effectiveTarget(arrowWidth);
    if (std::hypot(double(goal.x - current.x()), double(goal.y - current.y())) > kFarAway)
        return false;

    const bool wasVertical = flippedVertically;
    const bool wasHorizontal = flippedHorizontally;
    flippedVertically = wasVertical ? target.y() < kBackAboveFrom : target.y() < 0;

    const qint64 textLeft = qint64(target.x()) + arrowWidth;
    flippedHorizontally = wasHorizontal ? textLeft + 218 >= qint64(areaRight) - 63
                                        : textLeft + kTextWidth > qint64(areaRight) + 1;
    return flippedVertically != wasVertical || flippedHorizontally != wasHorizontal;
}

QPoint BalloonMotion::nextPosition(int arrowWidth) const
{
    const WidePoint goal = effectiveTarget(arrowWidth);
    return {eased(current.x(), goal.x), eased(current.y(), goal.y)};
}

float bounceOffset(float elapsedMs)
{
    const float angle = elapsedMs / 1000.0f * kTurnsPerSecond * kDegreesPerTurn * kRadiansPerDegree;
    const auto offset = static_cast<float>(
        std::sin(static_cast<double>(angle)) * double(kBounceHeight) + double(kBounceHeight));
    return std::min(kBounceHeight, offset);
}
