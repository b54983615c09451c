// SPDX-License-Identifier: MIT
#include "editor/document/diskfile.h"

#include "editor/scenario/scenarioreader.h"

#include <QCryptographicHash>
#include <QFileInfo>

using namespace TutorialEditor;

DiskFile DiskFile::at(const QString& path, QByteArray* bytes)
{
    const QFileInfo info(path);
    DiskFile file;
    if (!info.exists()) {
        file.mKind = QFileInfo(info.absolutePath()).isDir() ? Nothing : NoFolder;
        return file;
    }
    QByteArray read;
    if (readScenarioBytes(path, &read))
        file = of(read);
    file.mKind = info.isFile() ? File : Other;
    file.mSize = info.size();
    file.mTime = info.lastModified();
    if (bytes)
        *bytes = read;
    return file;
}

DiskFile DiskFile::of(const QByteArray& bytes)
{
    DiskFile file;
    file.mKind = File;
    file.mSize = bytes.size();
    file.mTime = QDateTime::currentDateTime();
    file.mDigest = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
    return file;
}

bool DiskFile::operator==(const DiskFile& other) const
{
    if (mKind != other.mKind || mKind != File)
        return mKind == other.mKind;
    if (isReadable() || other.isReadable())
        return mDigest == other.mDigest;
    return mSize == other.mSize && mTime == other.mTime;
}
