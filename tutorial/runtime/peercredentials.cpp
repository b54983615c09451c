// SPDX-License-Identifier: MIT
#include "tutorial/runtime/peercredentials.h"

#ifdef Q_OS_LINUX

#include <sys/socket.h>
#include <unistd.h>

bool isPeerOfThisUser(qintptr socket, QString* user)
{
    // Of a server these are the credentials that it had when it began to listen.
    ucred peer{};
    socklen_t size = sizeof peer;
    if (getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0) {
        *user = QStringLiteral("an unknown user");
        return false;
    }
    *user = QStringLiteral("user %1").arg(peer.uid);
    return peer.uid == geteuid();
}

#else

bool isPeerOfThisUser(qintptr, QString*)
{
    return true;
}

#endif
