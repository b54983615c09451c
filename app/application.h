#pragma once

class QByteArray;

// Runs the tutorial until its host ends it.
// argc, argv: as given to main. Returns the process's exit code.
int runApplication(int argc, char** argv);

// The display platform that has to be asked for, because overlay windows place
// themselves in screen coordinates and Wayland does not let them: "xcb" on a
// Wayland session that offers an X server, otherwise nothing.
// requested: QT_QPA_PLATFORM; sessionType: XDG_SESSION_TYPE; waylandDisplay,
// xDisplay: WAYLAND_DISPLAY and DISPLAY. A platform that was requested stays.
QByteArray platformToAskFor(const QByteArray& requested, const QByteArray& sessionType,
    const QByteArray& waylandDisplay, const QByteArray& xDisplay);
