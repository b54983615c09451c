// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QJsonArray;

namespace TutorialEditor {

// Whether the reader gives back the scenario that is about to be written: empty
// when it does, else what cannot be read, and in which step, for the author.
// json: the list in file form; steps: what was written there.
QStringList findUnreadable(const QString& json, const QJsonArray& steps);

} // namespace TutorialEditor
