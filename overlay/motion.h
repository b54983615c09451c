// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>

// Where the balloon stands and where it glides to. All points are screen
// pixels and stand for the balloon's top-left corner.
struct BalloonMotion {
    // A point that no sum of coordinates overflows.
    struct WidePoint {
        qint64 x;
        qint64 y;
    };

    QPoint target; // what the host asked for
    QPoint current; // where the balloon is
    bool flippedVertically = false; // below the target, the arrow pointing up
    bool flippedHorizontally = false; // to the left of the target

    // Where the balloon belongs on the side that it is on.
    WidePoint effectiveTarget(int arrowWidth) const;

    // Changes sides when the target is too near the top or right edge of the
    // area to stay, or far enough from it to come back; the way out and the way
    // back have different limits, so that a target near a limit does not make
    // the balloon flutter. A balloon that is still far away keeps its sides.
    // areaRight: last pixel column of the host's area. Returns whether a side
    // changed.
    bool updateSides(int arrowWidth, int areaRight);

    // The next place on the way to the effective target: a quarter of what is
    // left, and all of it when less than three pixels would remain.
    QPoint nextPosition(int arrowWidth) const;
};

// How far down the arrow is drawn, in pixels: it rests at 16 for one second and
// dips towards 0 in the next. elapsedMs: time since the step began.
float bounceOffset(float elapsedMs);
