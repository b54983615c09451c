// SPDX-License-Identifier: MIT
#pragma once

#include "tutorial/vocabulary/vocabulary.h"

#include <QString>

// A record without data that carries the window kinds' names.
class TutorialAction {
public:
    // Name of a window kind: a reference into the table, or to one shared empty
    // string for a value that is no window kind. Valid until the program ends.
    static const QString& getWindowKindName(Tutorial::EnumWindowKind kind);
};
