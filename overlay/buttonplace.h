// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QVector>

// What the balloon shows and where, in pixels; an empty rectangle for a part
// that is not shown.
struct BalloonParts {
    QRect arrow; // with the way that it bounces
    QRect tip; // a square around the point that the arrow points at
    QRect icon;
    QRect text;

    BalloonParts translated(const QPoint& offset) const;
};

// Where the buttons stand so that a learner can reach them. All rectangles are
// screen pixels.
//
// described: the rectangle around the buttons that are shown, below the text.
// hostArea: the host's area, empty when it is not known.
// screens: the screens' geometry.
//
// That place stays when it is wholly inside of the host's area and a screen.
// Otherwise the result is the top-left corner of the nearest place that is, of
// those beside everything that the balloon shows, or else beside the text and
// the tip, or else beside the tip alone. With no such place in the host's area
// a screen is enough, and without one the described place stays.
QPoint buttonPlace(const QRect& described, const QRect& hostArea, const QVector<QRect>& screens,
    const BalloonParts& parts);
