// SPDX-License-Identifier: MIT
#include "tutorial/runtime/waitingbytes.h"

#ifdef Q_OS_UNIX

#include <poll.h>

bool hasWaitingBytes(qintptr socket)
{
    pollfd query{static_cast<int>(socket), POLLIN, 0};
    return poll(&query, 1, 0) > 0 && (query.revents & POLLIN) != 0;
}

#else

bool hasWaitingBytes(qintptr)
{
    return true;
}

#endif
