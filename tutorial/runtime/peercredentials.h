// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Whether the process at the other end of a local socket runs as this process's
// effective user; root is an ordinary user here. socket: the descriptor of a
// connected socket. *user: who it is when it is somebody else. Always true where
// the system is not known to tell.
bool isPeerOfThisUser(qintptr socket, QString* user);
