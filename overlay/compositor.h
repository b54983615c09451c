// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <memory>

struct xcb_connection_t;

// Whether something mixes transparent windows with what is beneath them. Where
// nothing does, their transparent pixels are black.
class Compositor {
public:
    Compositor();

    // On an X server, whether a compositor runs just now; true on any other
    // platform. Asks the server, at most once in a second.
    bool isRunning();

private:
    // At the first question: a program that shows nothing does without.
    void connectToServer();
    bool ask() const;

    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> mConnection;
    quint32 mSelection = 0; // that a compositor owns
    int mAskIn = 0; // calls
    bool mIsConnected = false;
    bool mRunning = true;
};
