// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace TutorialEditor {

// What lies on the disk under a name, told by its contents: a file that was made
// anew within the same second, or by a clock that was set back, is another one,
// and one that was only touched is not.
class DiskFile {
public:
    enum Kind {
        Nothing,
        NoFolder, // that it could lie in
        File,
        Other // a folder, a pipe, a device
    };

    // Nothing.
    DiskFile() = default;
    // What lies there now. bytes: receives them, when it can be read.
    static DiskFile at(const QString& path, QByteArray* bytes = nullptr);
    // A file of these bytes, as if written now.
    static DiskFile of(const QByteArray& bytes);

    Kind kind() const { return mKind; }
    bool isThere() const { return mKind == File || mKind == Other; }
    // Whether it is a file whose bytes are known: it can be opened, and is not too
    // large for a scenario.
    bool isReadable() const { return !mDigest.isEmpty(); }
    qint64 size() const { return mSize; } // bytes
    // When it was changed.
    QDateTime time() const { return mTime; }

    // Whether both are the same. Files that cannot be read are told apart by
    // their sizes and times.
    bool operator==(const DiskFile& other) const;
    bool operator!=(const DiskFile& other) const { return !(*this == other); }

private:
    Kind mKind = Nothing;
    qint64 mSize = 0;
    QDateTime mTime;
    QByteArray mDigest; // of its bytes
};

} // namespace TutorialEditor
