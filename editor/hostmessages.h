// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QQueue>

#include <functional>

class TutorialManager;

namespace TutorialEditor {

// Hands those of the host's messages that open and feed the authoring tool to
// its manager. What they ask for may wait for the author, so it is done one
// after the other from the event loop, never inside of the link's read, and not
// while a box or menu is open. A malformed message is dropped, and so is one that
// comes when too many wait for the author.
class HostMessages : public QObject {
    Q_OBJECT

public:
    explicit HostMessages(TutorialManager* manager);

private:
    void receive(const QString& message);
    // fields: the message's fields after "editor".
    std::function<void()> editorTask(const QStringList& fields) const;
    void runTasks();

    struct Task {
        std::function<void()> run;
        int size;
    };
    QQueue<Task> mTasks;
    int mWaiting = 0; // sizes of mTasks
    bool mIsFull = false;
    bool mRunning = false;
};

} // namespace TutorialEditor
