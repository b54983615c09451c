// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/condition.h"

#include <QObject>
#include <QTimer>

#include <optional>

namespace TutorialHost {

// Turns the author's next action in the host into the condition that waits for
// it.
//
// One action has several effects: a click on a tool is a menu action and opens
// a window, a double click in a list chooses a row too. So the recorder listens
// until the host has been quiet for a moment and takes the most telling one; of
// several of one kind, as when a text is typed, the last.
class ConditionRecorder : public QObject {
    Q_OBJECT

public:
    explicit ConditionRecorder(QObject* parent = nullptr);

    // Listens from the next event on.
    void start();
    void stop();
    void onEvent(const HostEvent& event);

signals:
    void recorded(const Condition& condition);

private:
    bool mRecording = false;
    std::optional<Condition> mBest;
    QTimer mQuietTimer;
};

} // namespace TutorialHost
