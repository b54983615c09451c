// SPDX-License-Identifier: MIT
#pragma once

#include "editor/document/scenariodocument.h"

#include <QMessageBox>

namespace TutorialEditor {

// The boxes about a scenario file and its changes. Each waits for the author. What
// a file holds is shown in them as it is, never taken for markup.

// Shows a box with that text.
QMessageBox::StandardButton showBox(QMessageBox::Icon icon, const QString& title,
    const QString& text, QMessageBox::StandardButtons buttons);

// Yes, No or Cancel. withNo: whether going on without saving is one of the
// answers.
QMessageBox::StandardButton askToSave(const ScenarioDocument& document, bool withNo);

// What to do about a file that someone else wrote: Yes to replace it, Retry to
// reload it, when that can be done, or Cancel. disk: that file; steps: as they
// would be saved.
QMessageBox::StandardButton askToReplace(
    const ScenarioDocument& document, const DiskFile& disk, const QJsonArray& steps);

// What was noticed of the file. hasChanges: whether there are unsaved ones.
QString noticeText(const ScenarioDocument& document, bool hasChanges);

// Why the last save() wrote nothing, unless the author knows already.
void tellNotSaved(const ScenarioDocument& document);

// What was saved but cannot be read again.
void tellUnreadable(const ScenarioDocument::SaveReport& report);

// Yes to open a scenario file that another process has open, or Cancel.
QMessageBox::StandardButton askToOpen(const QString& path);

// Yes, Discard, or anything else for later. copied: when the changes were kept.
QMessageBox::StandardButton askToRecover(const ScenarioDocument& document, const QDateTime& copied);

} // namespace TutorialEditor
