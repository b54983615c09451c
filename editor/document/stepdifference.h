// SPDX-License-Identifier: MIT
#pragma once

class QJsonArray;

namespace TutorialEditor {

// How many steps, groups and their contents counted one by one, were changed,
// added or removed to make one scenario of the other; at least 1 unless both are
// written alike.
int differingSteps(const QJsonArray& one, const QJsonArray& other);

// Whether the file form of these steps holds all that is in them: no text that is
// none, no key of a group that is not written, no number of too many digits.
bool isWrittenWhole(const QJsonArray& steps);

} // namespace TutorialEditor
