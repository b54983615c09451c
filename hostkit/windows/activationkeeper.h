// SPDX-License-Identifier: MIT
#pragma once

#include "tutorial/vocabulary/qtcompat.h"

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>

namespace TutorialHost {

class WindowRegistry;

// Keeps the host's front window the active one while windows of the tutorial take
// the activation.
class ActivationKeeper : public QObject, private QAbstractNativeEventFilter {
public:
    // registry: outlives this object.
    explicit ActivationKeeper(const WindowRegistry& registry, QObject* parent = nullptr);
    ~ActivationKeeper() override;

    // Brings the host's front window before the tutorial's windows.
    void activate();
    // For two seconds an activation that the host loses is taken back.
    void reclaim();
    // The same, and until the first time that it was taken back, or the two seconds
    // are over, keys arrive at the window that has them now, whichever is active.
    void reclaimWithKeys();

private:
    bool nativeEventFilter(
        const QByteArray& type, void* message, NativeEventResult* result) override;
    void releaseKeys();

    const WindowRegistry& mRegistry;
    // While it runs, an activation that goes is taken back.
    QTimer mReclaimTimer;
    // Between the loss of the focus and the attempt to have it again.
    QTimer mLostTimer;
    bool mWasLost = false;
    QPointer<QWindow> mKeysHolder;
};

} // namespace TutorialHost
