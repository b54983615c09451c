// SPDX-License-Identifier: MIT
#include "editor/document/recoverycopy.h"

#include "editor/document/datafolder.h"
#include "editor/scenario/atomicfile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QUuid>

#include <algorithm>

using namespace TutorialEditor;

namespace {

const QString kFile = QStringLiteral("file");
const QString kSteps = QStringLiteral("steps");
constexpr int kIdLength = 32;

} // namespace

QString RecoveryCopy::folder()
{
    return dataFolder(QStringLiteral("recovery"));
}

std::vector<std::unique_ptr<RecoveryCopy>> RecoveryCopy::takeAbandoned(const QString& scenarioPath)
{
    const QString prefix = namePrefix(scenarioPath);
    const QDir folder(RecoveryCopy::folder());
    const QStringList names = folder.entryList({prefix + QLatin1Char('*')}, QDir::Files);
    QSet<QString> ids;
    for (const QString& name : names)
        ids << name.mid(prefix.size(), kIdLength);

    std::vector<std::unique_ptr<RecoveryCopy>> copies;
    for (const QString& id : qAsConst(ids)) {
        std::unique_ptr<RecoveryCopy> copy(new RecoveryCopy(scenarioPath, id));
        // A disk that is too full for a lock keeps nobody from the copy.
        if (!copy->mLock.tryLock() && copy->mLock.error() == QLockFile::LockFailedError)
            continue;
        const QString name = QFileInfo(copy->mPath).fileName();
        for (const QString& temporary : names.filter(name + QLatin1Char('.'))) {
            if (!temporary.endsWith(QLatin1String(".lock")))
                QFile::remove(folder.filePath(temporary));
        }
        if (names.contains(name))
            copies.push_back(std::move(copy));
    }
    std::sort(copies.begin(), copies.end(),
        [](const auto& a, const auto& b) { return a->time() > b->time(); });
    return copies;
}

RecoveryCopy::RecoveryCopy(const QString& scenarioPath)
    : RecoveryCopy(scenarioPath, QUuid::createUuid().toString(QUuid::Id128))
{
}

RecoveryCopy::RecoveryCopy(const QString& scenarioPath, const QString& id)
    : mScenarioPath(canonicalPath(scenarioPath)),
      mPath(folder() + QLatin1Char('/') + namePrefix(scenarioPath) + id + QLatin1String(".json")),
      mLock(mPath + QLatin1String(".lock"))
{
    // However old it grows, it is in force as long as its process lives.
    mLock.setStaleLockTime(0);
}

QDateTime RecoveryCopy::time() const
{
    return QFileInfo(mPath).lastModified();
}

bool RecoveryCopy::read(QJsonArray* steps) const
{
    QFile file(mPath);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QJsonValue value = QJsonDocument::fromJson(file.readAll()).object().value(kSteps);
    *steps = value.toArray();
    return value.isArray();
}

bool RecoveryCopy::write(const QJsonArray& steps)
{
    if (!mLock.isLocked() && (!QDir().mkpath(folder()) || !mLock.tryLock()))
        return false;
    const QJsonObject copy{{kFile, mScenarioPath}, {kSteps, steps}};
    return replaceFile(mPath, QJsonDocument(copy).toJson(QJsonDocument::Compact));
}

void RecoveryCopy::remove()
{
    QFile::remove(mPath);
    mLock.unlock();
}
