// SPDX-License-Identifier: MIT
#pragma once

#include "tutorial/vocabulary/vocabulary.h"

#include <QString>

// The file name under which a picture is known: the name itself.
QString getPngFilename(QString filename);

namespace Tutorial {

// Resource path of the arrow's picture.
QString getArrowFilename();

// Resource path of an icon kind's picture, ":/resource/png/click.png" for
// example; empty for a value that is no icon kind.
QString getIconFilename(EnumIconKind kind);

} // namespace Tutorial
