// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;
class QString;

namespace TutorialEditor {

// Replaces the file at `path` by these bytes, wholly or not at all, whatever
// ends the process or the machine meanwhile. When it returns true the new file
// is on the disk; false, with the former file untouched, when it cannot be
// written.
bool replaceFile(const QString& path, const QByteArray& bytes);

} // namespace TutorialEditor
