// SPDX-License-Identifier: MIT
#include "tutorial/process/platform.h"

#include <QByteArray>

void preferX11()
{
    const bool wayland =
        qgetenv("XDG_SESSION_TYPE") == "wayland" || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (wayland && !qEnvironmentVariableIsEmpty("DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
}
