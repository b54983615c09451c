// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QByteArray;
class QString;

namespace TutorialEditor {

// Replaces the file at `path` by these bytes, wholly or not at all, whatever
// ends the process or the machine meanwhile. When it returns true the new file
// is on the disk; false, with the former file untouched, when it cannot be
// written. beforehand: runs when the bytes are on the disk, just before they take
// the former file's place; when it returns false they do not.
bool replaceFile(const QString& path, const QByteArray& bytes,
    const std::function<bool()>& beforehand = nullptr);

// Brings the names in the folder of `path` to the disk, as far as that can be done.
void syncFolderOf(const QString& path);

} // namespace TutorialEditor
