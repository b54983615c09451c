// SPDX-License-Identifier: MIT
#pragma once

#include "tutorial/vocabulary/vocabulary.h"

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

// What the overlay's windows need of whoever shows them. Windows may outlive
// their owner by some events, so they hold it by a QPointer.
class OverlayOwner : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // A tutorial is being shown: a balloon that went missing is made anew.
    virtual bool isRunning() const = 0;
    // The host's area in screen pixels; its right edge decides on which side of
    // the target the balloon stands. QRect() before the host has sent one.
    virtual QRect hostRect() const = 0;
    // Last reported screen position of a window kind of the host, in pixels;
    // (0, 0) for a kind that was never reported or does not exist.
    virtual QPoint getXy(Tutorial::EnumWindowKind kind) const = 0;

    // Sends one message to the host; fields are separated by the byte 0x01.
    virtual void send(const QString& message) = 0;
    // An overlay window became the active one.
    virtual void reorderWindow() = 0;
    // Shows or hides the overlay windows as the host and the activation ask.
    virtual void updateVisibility() = 0;
};
