// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Where the tool keeps what belongs to a scenario but does not lie beside it.
namespace TutorialEditor {

// A folder of this name in the user's data folder. It need not exist.
QString dataFolder(const QString& name);

// One path for a file that need not exist, however it was named.
QString canonicalPath(const QString& path);

// What the names of all that belongs to a scenario file begin with: 32 hex digits
// and a dash.
QString namePrefix(const QString& scenarioPath);

} // namespace TutorialEditor
