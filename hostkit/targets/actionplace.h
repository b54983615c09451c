// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/targets/target.h"

#include <QAction>
#include <QPointF>

#include <optional>

namespace TutorialHost {

// Where the action can be reached now: its tool button; else its entry in a menu
// that is open; else what opens that menu (its title, an entry of another menu,
// a button), which leads there; else the button that shows what a tool bar has
// no room for.
Target placeOf(const QAction& action, const std::optional<QPointF>& place);

} // namespace TutorialHost
