// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TutorialHost {

// What the player has to know about the targets of its steps.
class TargetView {
public:
    enum Reach {
        Reachable, // the arrow can point at it, or at what shows it
        Hidden, // it is there, and nothing leads to it
        Missing, // nothing is called so
    };

    virtual ~TargetView() = default;

    // The target that is waited for and pointed at from now on; empty for none.
    // Its changes are the player's onStateChanged().
    virtual void follow(const QString& target) = 0;
    virtual Reach reach(const QString& target) = 0;
};

} // namespace TutorialHost
