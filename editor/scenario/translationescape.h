// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/positionmap.h"
#include "editor/scenario/readerror.h"

#include <QStringList>

#include <optional>

namespace TutorialEditor {

// Puts the translation expressions, which stand bare in the file, into JSON
// strings, and checks the strings. Empty, with one more error, when one is not
// closed. A QT_TRANSLATE_NOOP takes the comma after it into its string.
QString escapeTranslationForJson(const QString& text, QStringList* errors);

// The same, with what the failure is rather than a message; `maps`, when there
// are any, lead back to the text.
QString escapeTranslations(
    const QString& text, std::optional<ReadFailure>* failure, PositionMaps* maps = nullptr);

} // namespace TutorialEditor
