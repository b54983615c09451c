// SPDX-License-Identifier: MIT
#include "editor/scenario/atomicfile.h"

#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

bool TutorialEditor::replaceFile(
    const QString& path, const QByteArray& bytes, const std::function<bool()>& beforehand)
{
    // Not in text mode: a file has the same bytes on every system.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // A buffer that cannot be written any more when the file is closed, on a full
    // disk, is no failure to commit(): it would leave an empty file.
    if (file.write(bytes) != bytes.size() || !file.flush() || (beforehand && !beforehand())
        || !file.commit())
        return false;
    // The file's bytes are on the disk before it gets its name; this brings the
    // name there. Without it a power cut could undo the replacement after what the
    // caller does next, like the removal of another copy.
    syncFolderOf(path);
    return true;
}

void TutorialEditor::syncFolderOf(const QString& path)
{
#ifdef Q_OS_UNIX
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor == -1)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
#else
    Q_UNUSED(path)
#endif
}
