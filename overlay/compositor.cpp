// SPDX-License-Identifier: MIT
#include "overlay/compositor.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdlib>
#include <xcb/xcb.h>

namespace {

constexpr int kCallsPerQuestion = 10; // ten ticks are a second

template <class Reply>
using Answer = std::unique_ptr<Reply, void (*)(void*)>;

} // namespace

Compositor::Compositor() : mConnection(nullptr, xcb_disconnect) { }

void Compositor::connectToServer()
{
    mIsConnected = true;
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    int screen = 0;
    mConnection.reset(xcb_connect(nullptr, &screen));
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screen);
    xcb_connection_t* server = mConnection.get();
    const Answer<xcb_intern_atom_reply_t> atom(
        xcb_intern_atom_reply(
            server, xcb_intern_atom(server, 0, quint16(name.size()), name.constData()), nullptr),
        std::free);
    mSelection = atom ? atom->atom : 0;
}

bool Compositor::isRunning()
{
    if (!mIsConnected)
        connectToServer();
    if (mSelection != 0 && mAskIn-- <= 0) {
        mAskIn = kCallsPerQuestion - 1;
        mRunning = ask();
    }
    return mRunning;
}

bool Compositor::ask() const
{
    xcb_connection_t* server = mConnection.get();
    const Answer<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, mSelection), nullptr),
        std::free);
    return !owner || owner->owner != XCB_NONE;
}
