// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TutorialEditor {

// `text` as it stands inside the quotes of a JSON string of a scenario file:
// quote, backslash, slash and the control characters that have a letter are
// escaped, every other character is copied. Appends to `out`.
void appendJsonEscaped(QString* out, QStringView text);

// The text that the host's answer to a look-up means. The answer may be in JSON
// string form: its escapes of one letter are resolved, and a pair of quotation
// marks around it is dropped.
QString lookedUpText(const QString& answer);

} // namespace TutorialEditor
