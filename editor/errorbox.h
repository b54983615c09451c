// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace TutorialEditor {

// The text that tells the author about errors, a line each. What would not fit
// the screen is shortened, and beyond a dozen they are counted only.
QString errorText(const QStringList& errors);

// Shows that text in a box and waits until it is closed; without errors there
// is none.
void showErrors(const QString& title, const QStringList& errors);

} // namespace TutorialEditor
