// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/targets/target.h"

#include <QPointF>

#include <optional>

namespace TutorialHost {

// Where the part of the widget (in its own coordinates) is on the screen, and
// where in it the arrow is to point: at the fractions, or in the middle, or,
// in what is wide and low, where a reader begins. What is scrolled away is led
// to by the scroll bar, the rest that cannot be seen by nothing. The widget is
// visible.
Target placeOf(QWidget* widget, const QRect& part, const std::optional<QPointF>& place);

// Scrolls every scroll area around the widget so that the part, or the place of
// it, can be seen.
void scrollTo(QWidget* widget, const QRect& part, const std::optional<QPointF>& place);

} // namespace TutorialHost
