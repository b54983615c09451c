// SPDX-License-Identifier: MIT
#pragma once

class QJsonArray;
class QString;

namespace TutorialEditor {

// The steps in a text as a text editor copies it from a scenario file: with
// expressions and comments, a whole file, a list, or some steps with a comma
// behind them or without. False, with nothing in `steps`, when it is not such a
// text; a text that is JSON is none.
bool readPastedSteps(const QString& text, QJsonArray* steps);

} // namespace TutorialEditor
