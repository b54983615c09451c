// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Whether bytes of a socket wait in the system to be read. socket: its
// descriptor. Always true where the system is not known to tell.
bool hasWaitingBytes(qintptr socket);
