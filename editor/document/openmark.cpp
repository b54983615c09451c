// SPDX-License-Identifier: MIT
#include "editor/document/openmark.h"

#include "editor/document/datafolder.h"

#include <QDir>
#include <QFileInfo>
#include <QUuid>

using namespace TutorialEditor;

namespace {

std::unique_ptr<QLockFile> lockAt(const QString& path)
{
    auto lock = std::make_unique<QLockFile>(path);
    // However old it grows, it is in force as long as its process lives.
    lock->setStaleLockTime(0);
    return lock;
}

QString markPrefix(const QString& scenarioPath)
{
    return namePrefix(scenarioPath) + QLatin1String("open-");
}

} // namespace

OpenMark::OpenMark(const QString& scenarioPath) : mPrefix(markPrefix(scenarioPath))
{
    const QString folder = dataFolder(QStringLiteral("locks"));
    QDir().mkpath(folder);
    mPath = folder + QLatin1Char('/') + mPrefix + QUuid::createUuid().toString(QUuid::Id128);
    mLock = lockAt(mPath);
    mLock->tryLock();
}

bool OpenMark::isFor(const QString& scenarioPath) const
{
    return mPrefix == markPrefix(scenarioPath);
}

bool OpenMark::hasOthers() const
{
    const QDir folder = QFileInfo(mPath).dir();
    for (const QString& name : folder.entryList({mPrefix + QLatin1Char('*')}, QDir::Files)) {
        const QString path = folder.filePath(name);
        if (path == mPath)
            continue;
        // One that can be taken was left by a process that was killed, and goes.
        const auto lock = lockAt(path);
        if (!lock->tryLock() && lock->error() == QLockFile::LockFailedError)
            return true;
    }
    return false;
}
