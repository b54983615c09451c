// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/hostnames.h"

namespace TutorialHost {

struct HostWords;
class WindowRegistry;

// Every name that a scenario can use in this program as it is now: the host's own
// words, the windows that were added, and the controls, actions and targets that
// exist, shown or not. What a dialog will hold that is not made yet is not there.
TutorialEditor::HostNames liveNames(const HostWords& words, const WindowRegistry& registry);

} // namespace TutorialHost
