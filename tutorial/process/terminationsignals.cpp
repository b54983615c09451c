// SPDX-License-Identifier: MIT
#include "tutorial/process/terminationsignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

// The end of a pipe that stays open for as long as the process lives.
int writeEnd = -1;

// Next to nothing is allowed here: the event loop reads the number.
void forward(int number)
{
    const int error = errno;
    const char byte = static_cast<char>(number);
    if (write(writeEnd, &byte, 1) < 0)
        errno = error; // the pipe is full: the event loop has enough to read
}

} // namespace

TerminationSignals::TerminationSignals()
{
    int pipe[2];
    if (pipe2(pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    writeEnd = pipe[1];
    auto* notifier = new QSocketNotifier(pipe[0], QSocketNotifier::Read, this);
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
