// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace TutorialEditor {

inline const QLoggingCategory& debugLog()
{
    return *QLoggingCategory::defaultCategory();
}

// How a text stands in a debug line.
inline QString logged(const QString& text)
{
    return text.isNull() ? QStringLiteral("(null)") : text;
}

} // namespace TutorialEditor

// Begins a debug line with the function's name and a number. It goes where
// qDebug()'s lines go, but what is streamed into it is only evaluated when the
// line will be seen: some of these texts grow with the selection.
#define EDITOR_DEBUG_NUMBER(number)                                                                \
    qCDebug(TutorialEditor::debugLog).noquote() << __func__ << (number)
#define EDITOR_DEBUG EDITOR_DEBUG_NUMBER(__LINE__)
