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

// Resource path of the drawing of the same picture for a scaled screen.
// filename: one of the above; scale: screen pixels to a logical one. Returns
// the "@2x" or "@3x" file that has at least as many pixels as are shown, the
// largest above 3, and the file itself up to 1 and when it is empty.
QString getScaledFilename(const QString& filename, double scale);

} // namespace Tutorial
