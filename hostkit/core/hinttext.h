// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TutorialHost {

// The text of a hint for the learner. A translation expression, qsTr("…") or
// QT_TRANSLATE_NOOP("…"), is looked up in the installed translations under the
// context, which is the scenario file's base name; any other hint is the text
// itself. Markup passes through.
QString hintText(const QString& hint, const QString& context);

} // namespace TutorialHost
