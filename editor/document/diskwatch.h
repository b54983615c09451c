// SPDX-License-Identifier: MIT
#pragma once

#include "editor/document/diskfile.h"

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

namespace TutorialEditor {

// Notices when something else lies under a name than what was seen there last:
// written anew, replaced by a rename, removed, come back. What is there is read by
// another thread, so that nobody waits for it, and told by its contents, so that
// times mean nothing (see DiskFile). Changes that come close together are one.
class DiskWatch : public QObject {
    Q_OBJECT

public:
    explicit DiskWatch(QObject* parent = nullptr);
    ~DiskWatch() override;

    // Watches this name, in place of the former one. seen: what was seen there.
    void watch(const QString& path, const DiskFile& seen);
    // The same for the name that is watched: what was written or read there.
    void setSeen(const DiskFile& seen);
    const DiskFile& seen() const { return mSeen; }

signals:
    // Something else lies there now: seen().
    void changed();

private:
    void watchAgain();
    void onEvent();
    void check();
    void onChecked();

    QString mPath;
    DiskFile mSeen;
    QFileSystemWatcher mWatcher;
    QTimer mDelay; // runs from an event on
    QElapsedTimer mFirstEvent; // since the last check
    QFutureWatcher<DiskFile> mCheck;
    bool mIsOutdated = false; // what mCheck finds; mSeen is newer
};

} // namespace TutorialEditor
