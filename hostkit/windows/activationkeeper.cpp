// SPDX-License-Identifier: MIT
#include "hostkit/windows/activationkeeper.h"

#include "hostkit/windows/windowregistry.h"

#include <QApplication>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

constexpr int kReclaimMs = 2000;
// A focus that only goes to another window of the host is there by then.
constexpr int kLostMs = 5;

// X11's focus events: the type in the first byte, what the change is about in the
// second, and how it came to it in the ninth.
constexpr int kFocusIn = 9;
constexpr int kFocusOut = 10;
constexpr int kTypeMask = 0x7f;
constexpr int kDetailByte = 1;
constexpr int kModeByte = 8;
constexpr int kPointerDetail = 5;
constexpr int kNormalMode = 0;
constexpr int kWhileGrabbedMode = 3;

} // namespace

ActivationKeeper::ActivationKeeper(const WindowRegistry& registry, QObject* parent)
    : QObject(parent), mRegistry(registry)
{
    mReclaimTimer.setInterval(kReclaimMs);
    mReclaimTimer.setSingleShot(true);
    connect(&mReclaimTimer, &QTimer::timeout, this, &ActivationKeeper::releaseKeys);
    mLostTimer.setInterval(kLostMs);
    mLostTimer.setSingleShot(true);
    mLostTimer.setTimerType(Qt::PreciseTimer);
    connect(&mLostTimer, &QTimer::timeout, this, &ActivationKeeper::activate);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
        [this](Qt::ApplicationState state) {
            if (state != Qt::ApplicationActive && mReclaimTimer.isActive())
                activate();
        });
    // Qt tells of a lost focus 400 ms later than the X server.
    qApp->installNativeEventFilter(this);
}

ActivationKeeper::~ActivationKeeper()
{
    releaseKeys();
}

void ActivationKeeper::activate()
{
    const QList<EnumWindowKind>& stack = mRegistry.stack();
    for (int i = stack.size() - 1; i >= 0; --i) {
        if (stack.at(i) != Window_Popup) {
            mRegistry.window(stack.at(i))->activateWindow();
            return;
        }
    }
}

void ActivationKeeper::reclaim()
{
    mReclaimTimer.start();
}

void ActivationKeeper::reclaimWithKeys()
{
    reclaim();
    releaseKeys();
    QWindow* window = QGuiApplication::focusWindow();
    // A popup has the keys for itself.
    if (window && !QApplication::activePopupWidget() && window->setKeyboardGrabEnabled(true))
        mKeysHolder = window;
}

void ActivationKeeper::releaseKeys()
{
    mWasLost = false;
    if (mKeysHolder)
        mKeysHolder->setKeyboardGrabEnabled(false);
    mKeysHolder = nullptr;
}

bool ActivationKeeper::nativeEventFilter(
    const QByteArray& type, void* message, NativeEventResult* result)
{
    Q_UNUSED(result);
    if (!mReclaimTimer.isActive() || type != "xcb_generic_event_t")
        return false;
    const auto* bytes = static_cast<const uchar*>(message);
    const int event = bytes[0] & kTypeMask;
    if ((event != kFocusIn && event != kFocusOut) || bytes[kDetailByte] == kPointerDetail
        || (bytes[kModeByte] != kNormalMode && bytes[kModeByte] != kWhileGrabbedMode))
        return false;
    if (event == kFocusOut) {
        mWasLost = true;
        mLostTimer.start();
    } else {
        mLostTimer.stop();
        if (mWasLost)
            releaseKeys();
    }
    return false;
}
