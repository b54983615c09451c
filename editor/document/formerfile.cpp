// SPDX-License-Identifier: MIT
#include "editor/document/formerfile.h"

#include "editor/scenario/atomicfile.h"
#include "editor/scenario/scenarioreader.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QSaveFile>
#include <QUuid>

#ifdef Q_OS_UNIX
#include <cstdio>
#include <unistd.h>
#endif

using namespace TutorialEditor;

namespace {

constexpr qint64 kBlock = 1024 * 1024; // bytes

bool isThere(const QString& path)
{
    return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

bool isScenario(const QString& path)
{
    QJsonArray steps;
    QStringList errors;
    return readScenarioFile(path, &steps, &errors);
}

bool haveSameBytes(const QString& one, const QString& other)
{
    QFile first(one);
    QFile second(other);
    if (!QFileInfo(other).isFile() || QFileInfo(one).size() != QFileInfo(other).size()
        || !first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly))
        return false;
    while (!first.atEnd()) {
        if (first.read(kBlock) != second.read(kBlock))
            return false;
    }
    return second.atEnd();
}

bool copyTo(const QString& path, const QString& name)
{
    QFile file(path);
    QSaveFile copy(name);
    if (!file.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly))
        return false;
    while (!file.atEnd()) {
        const QByteArray block = file.read(kBlock);
        if (block.isEmpty() || copy.write(block) != block.size())
            return false;
    }
    return copy.flush() && copy.commit();
}

} // namespace

FormerFile::FormerFile(const QString& path)
    : mPath(QFileInfo(path).canonicalFilePath()), mBackup(path + QLatin1String(".bak"))
{
    const bool isFree = !isThere(mBackup) || haveSameBytes(mPath, mBackup);
    const bool canBeReplaced =
        isFree || (QFileInfo(mBackup).isFile() && (isScenario(mPath) || !isScenario(mBackup)));
    mKeptAs = canBeReplaced ? mBackup : numbered();
}

QString FormerFile::numbered() const
{
    int number = 2;
    QString name;
    do
        name = mBackup + QLatin1Char('.') + QString::number(number++);
    while (isThere(name) && !haveSameBytes(mPath, name));
    return name;
}

bool FormerFile::keep() const
{
    if (haveSameBytes(mPath, mKeptAs))
        return true;
    if (isThere(mKeptAs) && QFileInfo(mKeptAs).size() > 0 && !isScenario(mKeptAs)
        && !QFile::rename(mKeptAs, numbered()))
        return false;
    if (!linkTo(mKeptAs) && !copyTo(mPath, mKeptAs))
        return false;
    syncFolderOf(mKeptAs);
    return true;
}

bool FormerFile::linkTo(const QString& name) const
{
#ifdef Q_OS_UNIX
    // A link of its own first: it takes the former copy's place at once.
    const QByteArray target = QFile::encodeName(name);
    const QByteArray link = target + '.' + QUuid::createUuid().toByteArray(QUuid::Id128);
    if (::link(QFile::encodeName(mPath).constData(), link.constData()) != 0)
        return false;
    const bool isNamed = std::rename(link.constData(), target.constData()) == 0;
    if (!isNamed)
        ::unlink(link.constData());
    return isNamed;
#else
    Q_UNUSED(name)
    return false;
#endif
}
