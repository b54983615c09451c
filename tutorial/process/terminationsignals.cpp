// SPDX-License-Identifier: MIT
#include "tutorial/process/terminationsignals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

// The end of a pipe that stays open for as long as the process lives. A signal
// may come at any moment, in whichever thread.
std::atomic<int> writeEnd{-1};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler cannot wait for a lock");

// Next to nothing is allowed here: the event loop reads the number.
void forward(int number)
{
    const int error = errno;
    const char byte = static_cast<char>(number);
    if (write(writeEnd, &byte, 1) < 0)
        errno = error; // the pipe is full: the event loop has enough to read
}

// A pipe that no child inherits and that keeps nobody waiting.
bool openPipe(int (&ends)[2])
{
    if (pipe(ends) != 0)
        return false;
    for (const int end : ends) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return true;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    int ends[2];
    if (!openPipe(ends))
        return;
    writeEnd = ends[1];
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this](QSocketDescriptor readEnd) {
        char number = 0;
        if (read(readEnd, &number, 1) == 1)
            emit received(number);
    });

    for (int number : kSignals) {
        struct sigaction action = {};
        if (sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = forward;
        action.sa_flags = SA_RESTART | SA_RESETHAND;
        sigaction(number, &action, nullptr);
    }
}

#else

// There are no signals to speak of: the process ends as the system ends it.
TerminationSignals::TerminationSignals() = default;

#endif
