// SPDX-License-Identifier: MIT
#include "editor/document/scenariodocument.h"

#include "editor/document/datafolder.h"
#include "editor/document/formerfile.h"
#include "editor/document/recovery.h"
#include "editor/document/recoverycopy.h"
#include "editor/document/stepdifference.h"
#include "editor/scenario/atomicfile.h"
#include "editor/scenario/savecheck.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"

#include <QDir>
#include <QLockFile>

using namespace TutorialEditor;

namespace {

constexpr int kLockMs = 3000;

} // namespace

ScenarioDocument::ScenarioDocument(Steps steps, QObject* parent)
    : QObject(parent), mSteps(std::move(steps))
{
    connect(&mWatch, &DiskWatch::changed, this, &ScenarioDocument::noticed);
}

ScenarioDocument::~ScenarioDocument() = default;

bool ScenarioDocument::isGone() const
{
    return mKnown.isThere() && !disk().isThere();
}

bool ScenarioDocument::isChangedOnDisk() const
{
    return !mPath.isEmpty() && checkDisk() == ChangedOnDisk;
}

ScenarioDocument::Notice ScenarioDocument::notice() const
{
    const DiskFile& now = mWatch.seen();
    if (now == mKnown || (!now.isThere() && !mKnown.isThere()))
        return NothingNew;
    if (!now.isThere())
        return FileGone;
    if (now.kind() == DiskFile::Other)
        return NoFile;
    return now.isReadable() ? ReadableFile : UnreadableFile;
}

std::optional<int> ScenarioDocument::differenceFromDisk(const QJsonArray& steps) const
{
    QJsonArray read;
    QStringList errors;
    if (!readScenarioFile(mPath, &read, &errors))
        return std::nullopt;
    return differingSteps(read, steps);
}

QString ScenarioDocument::willBeKeptAs() const
{
    if (mPath.isEmpty() || wasReadWhole())
        return QString();
    const DiskFile now = disk();
    return now == mKnown && hasToBeKept(now, true) ? keptName() : QString();
}

QString ScenarioDocument::keptName() const
{
    return FormerFile(mPath).keptAs();
}

bool ScenarioDocument::open(const QString& path, QString* text, QStringList* errors)
{
    keepUnsaved();
    mPath = path;
    startRecovery();
    const bool isRead = read(text, errors);
    mWatch.watch(mPath, mKnown);
    return isRead;
}

void ScenarioDocument::setPath(const QString& path)
{
    mPath = path;
    setKnown(disk());
    mWatch.watch(mPath, mKnown);
    startRecovery();
}

void ScenarioDocument::setKnown(const DiskFile& known)
{
    mKnown = known;
    mAgreed = DiskFile();
    mWatch.setSeen(known);
    emit noticed();
}

bool ScenarioDocument::reload(QString* text, QStringList* errors)
{
    if (!disk().isReadable())
        return false;
    discardUnsaved();
    return read(text, errors);
}

bool ScenarioDocument::read(QString* text, QStringList* errors)
{
    QByteArray bytes;
    setKnown(DiskFile::at(mPath, &bytes));
    mExtent = NothingRead;
    mIsUnreadable = false;
    if (!mKnown.isReadable())
        return false;
    *text = decodeScenario(bytes, mPath, errors);
    return true;
}

void ScenarioDocument::setLoaded(const QJsonArray& steps, bool isWhole)
{
    mSaved = SavedState(steps);
    if (mKnown.isReadable())
        mExtent = isWhole ? AllRead : PartRead;
}

void ScenarioDocument::setSaved(const QString& json)
{
    mSaved = SavedState(json);
}

bool ScenarioDocument::wasReadWhole() const
{
    return mExtent == AllRead && isWrittenWhole(mSaved.steps());
}

ScenarioDocument::SaveReport ScenarioDocument::save(const QString& json, const QJsonArray& steps)
{
    const SaveReport report = trySave(json, steps);
    mLastResult = report.result;
    return report;
}

ScenarioDocument::SaveReport ScenarioDocument::trySave(const QString& json, const QJsonArray& steps)
{
    SaveReport report;
    if (mPath.isEmpty()) {
        report.result = NoPath;
        return report;
    }
    report.problems = findUnreadable(json, steps);
    // Of two tools that save at once the second one finds what the first one wrote.
    const QString folder = dataFolder(QStringLiteral("locks"));
    QDir().mkpath(folder);
    QLockFile lock(folder + QLatin1Char('/') + namePrefix(mPath) + QLatin1String("saving"));
    // A disk that is too full for a lock keeps nobody from saving.
    if (!lock.tryLock(kLockMs) && lock.error() == QLockFile::LockFailedError) {
        report.result = InUse;
        return report;
    }
    report.result = checkDisk();
    if (report.result != Saved)
        return report;
    // Whenever this is cut short, either the copy is newer than the file or both
    // are the same.
    keepUnsaved();
    const QByteArray bytes = scenarioFileText(json).toUtf8();
    replace(bytes, &report);
    if (report.result != Saved)
        return report;
    setKnown(DiskFile::of(bytes));
    mExtent = AllRead;
    mIsUnreadable = !report.problems.isEmpty();
    setSaved(json);
    discardUnsaved();
    return report;
}

void ScenarioDocument::replace(const QByteArray& bytes, SaveReport* report)
{
    report->result = NotWritten;
    const auto keepFormer = [&] {
        // Once more: writing the bytes took its time.
        const SaveResult result = checkDisk();
        if (result != Saved) {
            report->result = result;
            return false;
        }
        if (!hasToBeKept(disk(), report->problems.isEmpty()))
            return true;
        const FormerFile former(mPath);
        if (!former.keep()) {
            report->result = NotKept;
            return false;
        }
        report->keptAs = former.keptAs();
        return true;
    };
    if (replaceFile(mPath, bytes, keepFormer))
        report->result = Saved;
}

ScenarioDocument::SaveResult ScenarioDocument::checkDisk() const
{
    const DiskFile now = disk();
    switch (now.kind()) {
    case DiskFile::Nothing:
        return Saved;
    case DiskFile::NoFolder:
        return FolderGone;
    case DiskFile::Other:
        return NotAFile;
    case DiskFile::File:
        break;
    }
    return now == mKnown || now == mAgreed ? Saved : ChangedOnDisk;
}

bool ScenarioDocument::hasToBeKept(const DiskFile& now, bool isReadable) const
{
    // A scenario that cannot be read again, because of a half-typed translation
    // say, must not take the place of the last one that can.
    return now.kind() == DiskFile::File && now.size() > 0
        && (now != mKnown || !wasReadWhole() || (!isReadable && !mIsUnreadable));
}

void ScenarioDocument::startRecovery()
{
    mRecovery.reset(new Recovery(mPath, [this] { return Recovery::State{mSteps(), mSaved}; }));
}

void ScenarioDocument::noteChange()
{
    if (mRecovery)
        mRecovery->noteChange();
}

void ScenarioDocument::keepUnsaved()
{
    if (mRecovery)
        mRecovery->flush();
}

void ScenarioDocument::discardUnsaved()
{
    if (mRecovery)
        mRecovery->discard();
}

std::vector<std::unique_ptr<RecoveryCopy>> ScenarioDocument::takeAbandoned() const
{
    return RecoveryCopy::takeAbandoned(mPath);
}

void ScenarioDocument::adopt(std::unique_ptr<RecoveryCopy> copy)
{
    mRecovery->adopt(std::move(copy));
}
