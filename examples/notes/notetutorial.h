// SPDX-License-Identifier: MIT
#pragma once

namespace TutorialHost {
class Host;
}
class NoteWindow;

// Tells the host what tutorials find in the window, and lets the window begin
// them.
void addTutorials(TutorialHost::Host& host, NoteWindow& window);
