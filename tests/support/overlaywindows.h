// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

// What a person sees of the tutorial, on the X server of the test.

constexpr QSize kBalloonSize(640, 480);
constexpr QSize kButtonSize(64, 32);

// Where a window stands without its frame, which xdotool adds.
QRect geometryOf(const QString& window);

// The tutorial's windows of this size, from left to right.
QVector<QRect> overlayWindows(const QSize& size);

// Clicks at a point of the screen.
void clickAt(const QPoint& point);
