// SPDX-License-Identifier: MIT
#pragma once

// On a Wayland session that offers an X server, chooses the X server: what
// guides through windows has to know and to set places on the screen, which
// Wayland does not let it. A platform that QT_QPA_PLATFORM asks for stays.
// To be called before the application is constructed.
void preferX11();
