// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

// Tells the event loop that the process is asked to end by SIGTERM, SIGINT or
// SIGHUP, so that it can end in order. A signal of the same kind that follows
// ends it at once, in case it does not come to that. One that was ignored when
// the process was started stays so, as nohup wants it.
//
// There is one such object in a process, from the time that it has an
// application until it ends.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    TerminationSignals();

signals:
    void received(int number);
};
