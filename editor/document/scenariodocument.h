// SPDX-License-Identifier: MIT
#pragma once

#include "editor/document/diskfile.h"
#include "editor/document/diskwatch.h"
#include "editor/document/savedstate.h"

#include <QJsonArray>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace TutorialEditor {

class Recovery;
class RecoveryCopy;

// A scenario file that is worked on: its path, what of it was read, what lies on
// the disk now, what of the steps is saved, the former file that is kept, and the
// recovery copy. It asks nobody anything: whoever shows the scenario does.
//
// What is on the disk and was not read, or not read whole, is never lost: save()
// refuses to replace it unseen, and keeps what it replaces (see FormerFile).
class ScenarioDocument : public QObject {
    Q_OBJECT

public:
    // All steps as they are now, with the contents of groups.
    using Steps = std::function<QJsonArray()>;

    enum SaveResult {
        Saved,
        NoPath,
        ChangedOnDisk, // by someone else; see agreeToReplace()
        FolderGone,
        NotAFile, // but a folder, a pipe or a device
        InUse, // another tool has been saving it for seconds
        NotKept, // the former file; nothing was replaced
        NotWritten
    };
    // What was noticed of the file since it was read or saved.
    enum Notice {
        NothingNew,
        ReadableFile, // another one
        UnreadableFile,
        NoFile, // but a folder, a pipe or a device
        FileGone
    };
    struct SaveReport {
        SaveResult result = NotWritten;
        QStringList problems; // why what was saved cannot be read again, for the author
        QString keptAs; // where the former file is; empty when none was kept
    };

    explicit ScenarioDocument(Steps steps, QObject* parent = nullptr);
    ~ScenarioDocument() override;

    // Empty before a scenario is opened.
    const QString& path() const { return mPath; }
    // What lies there now.
    DiskFile disk() const { return DiskFile::at(mPath); }
    // Whether what lay there is gone.
    bool isGone() const;
    // Whether a file lies there that is not the one that was read or saved last.
    bool isChangedOnDisk() const;
    // Costs no look at the disk. noticed() tells of another one.
    Notice notice() const;
    // By how many steps the file that lies there now differs from these; none when
    // it cannot be read.
    std::optional<int> differenceFromDisk(const QJsonArray& steps) const;
    // Where save() will keep the file that lies there now because it was not read
    // whole; empty when it was.
    QString willBeKeptAs() const;
    // Where a file that lies there now is kept when it has to be.
    QString keptName() const;
    // Whether a list in file form is what was loaded or saved last.
    bool isSaved(const QString& json) const { return mSaved.is(json); }

    // Makes this the document of a file. True with the file's text, and what is
    // wrong with its bytes: then setLoaded() follows. False when it cannot be read;
    // isUnread() tells whether there is one.
    bool open(const QString& path, QString* text, QStringList* errors);
    // The same for what its file holds now; what was changed is given up. Nothing
    // happens when that cannot be read.
    bool reload(QString* text, QStringList* errors);
    // Makes this the document of a file without reading it.
    void setPath(const QString& path);
    // What the text came to, and whether nothing was wrong with it.
    void setLoaded(const QJsonArray& steps, bool isWhole);
    // Whether a file lay there that could not be read at all.
    bool isUnread() const { return mKnown.isThere() && mExtent == NothingRead; }
    // The list, in file form, that counts as saved.
    void setSaved(const QString& json);

    // Lets the next save() replace this, which someone else wrote.
    void agreeToReplace(const DiskFile& disk) { mAgreed = disk; }
    // Writes a list of steps, in file form and as they are, to the file.
    SaveReport save(const QString& json, const QJsonArray& steps);
    // What became of the last one.
    SaveResult lastResult() const { return mLastResult; }

    // Whoever works on the steps says so.
    void noteChange();
    // Brings the recovery copy of unsaved changes up to date.
    void keepUnsaved();
    // The changes are saved, or the author gives them up: removes that copy.
    void discardUnsaved();
    // What was not saved of this scenario when a process ended, the newest first.
    std::vector<std::unique_ptr<RecoveryCopy>> takeAbandoned() const;
    // Goes on with one of them, whose steps are now worked on.
    void adopt(std::unique_ptr<RecoveryCopy> copy);

signals:
    // notice() is another one, perhaps.
    void noticed();

private:
    enum Extent { NothingRead, PartRead, AllRead };

    // Whatever is called the known file is on the disk, or was a moment ago.
    void setKnown(const DiskFile& known);
    void startRecovery();
    bool read(QString* text, QStringList* errors);
    bool wasReadWhole() const;
    // Saved when what lies there may be replaced.
    SaveResult checkDisk() const;
    // Whether a file that may be replaced has to be kept. isReadable: what replaces it.
    bool hasToBeKept(const DiskFile& disk, bool isReadable) const;
    SaveReport trySave(const QString& json, const QJsonArray& steps);
    void replace(const QByteArray& bytes, SaveReport* report);

    const Steps mSteps;
    QString mPath;
    DiskFile mKnown; // what was read or saved last
    DiskWatch mWatch;
    DiskFile mAgreed; // what the author has agreed to replace
    Extent mExtent = NothingRead; // of mKnown
    bool mIsUnreadable = false; // what save() wrote there last
    SaveResult mLastResult = Saved;
    SavedState mSaved;
    std::unique_ptr<Recovery> mRecovery; // none without a path
};

} // namespace TutorialEditor
