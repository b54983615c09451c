// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

namespace TutorialEditor {

// A mark that a scenario file is open here, for the other processes of this user.
// It is a lock in the user's data folder, which falls with the process. Where it
// cannot be set, because the disk is full say, the scenario is open without.
class OpenMark {
public:
    explicit OpenMark(const QString& scenarioPath);

    // Whether this is the file, however it is named.
    bool isFor(const QString& scenarioPath) const;
    // Whether there is another one for this file, in a process that lives. Of two
    // that are set at once both find the other one.
    bool hasOthers() const;

private:
    QString mPath; // of the lock
    QString mPrefix; // of the names of all locks for the file
    std::unique_ptr<QLockFile> mLock;
};

} // namespace TutorialEditor
