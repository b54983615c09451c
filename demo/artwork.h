// SPDX-License-Identifier: MIT
#pragma once

#include "demo/project.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>

// Everything that is drawn in the small editor is drawn here, so that it needs
// no picture files and is sharp at every size.
namespace Artwork {

// Edge of a tile in its own drawing, in pixels.
constexpr int kTileEdge = 32;

// Draws the tile into the square of kTileEdge at the painter's origin.
void paintTile(QPainter& painter, Tile tile);
// A person who stands on the square at the painter's origin.
void paintPerson(QPainter& painter, const QColor& colour);

QIcon tileIcon(Tile tile);
// Icon of an action, by the action's name; null for a name without one.
QIcon actionIcon(const QString& name);
QIcon applicationIcon();

} // namespace Artwork
