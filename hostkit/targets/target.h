// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <QWidget>

namespace TutorialHost {

// What a step's target is on the screen now. It holds until something moves or
// is deleted: nothing keeps it.
struct Target {
    enum State {
        Shown, // the thing itself
        Led, // it is hidden; this is what shows it: a tab, a menu's title, a scroll bar
        Hidden, // it is hidden, and nothing leads there
        Missing, // nothing is called so
    };

    bool isOnScreen() const { return state == Shown || state == Led; }

    State state = Missing;
    // The widget in which the place is; null for a place that the locator found.
    QWidget* widget = nullptr;
    // Screen rectangle, as much of it as is not scrolled or cut away, and the
    // point in it at which the arrow is to point. Only when it is on the screen.
    QRect rect;
    QPoint point;
    // Why it is not on the screen, in a sentence.
    QString reason;
};

} // namespace TutorialHost
