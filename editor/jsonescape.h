#pragma once

#include <QString>

namespace TutorialEditor {

// `text` as it stands inside the quotes of a JSON string of a scenario file:
// quote, backslash, slash and the control characters that have a letter are
// escaped, every other character is copied.
QString jsonEscaped(const QString& text);

} // namespace TutorialEditor
