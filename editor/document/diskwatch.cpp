// SPDX-License-Identifier: MIT
#include "editor/document/diskwatch.h"

#include <QDir>
#include <QFileInfo>
#include <QtConcurrent>

using namespace TutorialEditor;

namespace {

// A program that writes a file makes several events.
constexpr int kDelayMs = 150;
// One that does not stop writing must not hide it for longer.
constexpr int kLongestDelayMs = 1000;

// Both are the same for somebody who looks for the file.
bool isSame(const DiskFile& a, const DiskFile& b)
{
    return a == b || (!a.isThere() && !b.isThere());
}

// A folder, or the nearest one above it that is there.
QString existing(const QString& folder)
{
    QString path = folder;
    while (!QFileInfo(path).isDir()) {
        const QString above = QFileInfo(path).absolutePath();
        if (above == path)
            break;
        path = above;
    }
    return path;
}

} // namespace

DiskWatch::DiskWatch(QObject* parent) : QObject(parent)
{
    mDelay.setSingleShot(true);
    connect(&mDelay, &QTimer::timeout, this, &DiskWatch::check);
    connect(&mCheck, &QFutureWatcher<DiskFile>::finished, this, &DiskWatch::onChecked);
    connect(&mWatcher, &QFileSystemWatcher::fileChanged, this, &DiskWatch::onEvent);
    connect(&mWatcher, &QFileSystemWatcher::directoryChanged, this, &DiskWatch::onEvent);
}

DiskWatch::~DiskWatch()
{
    mCheck.waitForFinished();
}

void DiskWatch::watch(const QString& path, const DiskFile& seen)
{
    mPath = path;
    setSeen(seen);
    watchAgain();
    // Whatever happened between the reading and the watching.
    onEvent();
}

void DiskWatch::setSeen(const DiskFile& seen)
{
    mSeen = seen;
    mIsOutdated = true;
}

void DiskWatch::watchAgain()
{
    // A file that took another one's place is not watched any more, and a link may
    // lead elsewhere.
    const QFileInfo file(mPath);
    QStringList paths{existing(file.absolutePath())};
    if (file.isFile())
        paths << file.absoluteFilePath() << QFileInfo(file.canonicalFilePath()).absolutePath();
    else if (file.isSymLink())
        paths << existing(QFileInfo(file.symLinkTarget()).absolutePath());
    paths.removeDuplicates();
    const QStringList former = mWatcher.files() + mWatcher.directories();
    for (const QString& path : former) {
        if (!paths.contains(path))
            mWatcher.removePath(path);
    }
    // The same name may be another file, so that this one is always taken anew.
    mWatcher.removePath(file.absoluteFilePath());
    mWatcher.addPaths(paths);
}

void DiskWatch::onEvent()
{
    if (!mDelay.isActive())
        mFirstEvent.start();
    if (mFirstEvent.elapsed() < kLongestDelayMs)
        mDelay.start(kDelayMs);
}

void DiskWatch::check()
{
    if (mPath.isEmpty())
        return;
    if (mCheck.isRunning()) {
        mDelay.start(kDelayMs);
        return;
    }
    // First, so that no change can come between.
    watchAgain();
    mIsOutdated = false;
    mCheck.setFuture(QtConcurrent::run([path = mPath] { return DiskFile::at(path); }));
}

void DiskWatch::onChecked()
{
    const DiskFile found = mCheck.result();
    if (mIsOutdated) {
        onEvent();
        return;
    }
    if (isSame(found, mSeen))
        return;
    mSeen = found;
    emit changed();
}
