// SPDX-License-Identifier: MIT
#include "hostkit/autoplay/xinput.h"

#include <QThread>

// Last, because their macros clash with names of Qt.
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

using TutorialHost::XInput;

namespace {

// Between two events of one gesture, as a quick hand has it.
constexpr int kGestureMs = 30;

// Windows of other processes come and go while they are looked at.
int ignoreError(Display*, XErrorEvent*)
{
    return 0;
}

qint64 processOf(Display* display, Window window)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, "_NET_WM_PID", False), 0, 1, False,
        XA_CARDINAL, &type, &format, &count, &rest, &data);
    // Xlib gives values of 32 bits as longs.
    const qint64 processId = data && count == 1 ? *reinterpret_cast<unsigned long*>(data) : 0;
    if (data)
        XFree(data);
    return processId;
}

void collect(Display* display, Window window, qint64 processId, QVector<QRect>& found)
{
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display, window, &attributes) || attributes.map_state != IsViewable)
        return;
    if (processOf(display, window) == processId) {
        Window child = 0;
        QPoint corner;
        XTranslateCoordinates(
            display, window, attributes.root, 0, 0, &corner.rx(), &corner.ry(), &child);
        found << QRect(corner, QSize(attributes.width, attributes.height));
    }
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, window, &root, &parent, &children, &count))
        return;
    for (unsigned i = 0; i < count; ++i)
        collect(display, children[i], processId, found);
    if (children)
        XFree(children);
}

} // namespace

XInput::XInput() : mDisplay(XOpenDisplay(nullptr)) { }

XInput::~XInput()
{
    if (mDisplay)
        XCloseDisplay(mDisplay);
}

bool XInput::isUsable() const
{
    int event = 0;
    int error = 0;
    int major = 0;
    int minor = 0;
    return mDisplay && XTestQueryExtension(mDisplay, &event, &error, &major, &minor);
}

QVector<QRect> XInput::windowsOf(qint64 processId) const
{
    const XErrorHandler before = XSetErrorHandler(ignoreError);
    QVector<QRect> found;
    collect(mDisplay, DefaultRootWindow(mDisplay), processId, found);
    XSync(mDisplay, False);
    XSetErrorHandler(before);
    return found;
}

void XInput::click(const QPoint& point, Button button)
{
    moveTo(point);
    pressButton(button);
}

void XInput::doubleClick(const QPoint& point)
{
    moveTo(point);
    pressButton(Left);
    pressButton(Left);
}

void XInput::type(const QString& text)
{
    // The symbols of Latin letters, digits and the blank are their codes.
    for (const QChar letter : text)
        pressKey(letter.unicode(), NoSymbol);
}

void XInput::press(const QString& key, bool control)
{
    pressKey(XStringToKeysym(key.toLatin1().constData()), control ? XK_Control_L : NoSymbol);
}

void XInput::moveTo(const QPoint& point)
{
    XTestFakeMotionEvent(mDisplay, DefaultScreen(mDisplay), point.x(), point.y(), CurrentTime);
    XSync(mDisplay, False);
    QThread::msleep(kGestureMs);
}

void XInput::pressButton(Button button)
{
    for (const Bool down : {True, False}) {
        XTestFakeButtonEvent(mDisplay, button, down, CurrentTime);
        XSync(mDisplay, False);
        QThread::msleep(kGestureMs);
    }
}

void XInput::pressKey(unsigned long symbol, unsigned long modifier)
{
    const KeyCode key = XKeysymToKeycode(mDisplay, symbol);
    if (modifier == NoSymbol && XkbKeycodeToKeysym(mDisplay, key, 0, 0) != symbol)
        modifier = XK_Shift_L;
    const KeyCode held = modifier == NoSymbol ? 0 : XKeysymToKeycode(mDisplay, modifier);
    if (held)
        XTestFakeKeyEvent(mDisplay, held, True, CurrentTime);
    for (const Bool down : {True, False})
        XTestFakeKeyEvent(mDisplay, key, down, CurrentTime);
    if (held)
        XTestFakeKeyEvent(mDisplay, held, False, CurrentTime);
    XSync(mDisplay, False);
    QThread::msleep(kGestureMs);
}
