// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace TutorialEditor {

// Puts the translation expressions, which stand bare in the file, into JSON
// strings, and checks the strings. Empty, with one more error, when one is not
// closed. A QT_TRANSLATE_NOOP takes the comma after it into its string.
QString escapeTranslationForJson(const QString& text, QStringList* errors);

} // namespace TutorialEditor
