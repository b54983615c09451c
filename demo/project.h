// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

// What the small editor edits: a game of tile maps with events on them.

enum class Tile : quint8 { Grass, Flowers, Forest, Hills, Water, Sand, Path, Bridge, House, Fence };
constexpr int kTileCount = 10;
// For the learner's eyes, in the program's language.
QString tileName(Tile tile);

struct MapEvent {
    QString name;
    QPoint cell;
    // Row in the event editor's "trigger" box.
    int trigger = 1;
    bool walkAnime = false;
    bool through = false;
    int speed = 3;
    QStringList commands;
};

struct GameMap {
    QString name;
    QSize size;
    // Row by row.
    QVector<Tile> tiles;
    QVector<MapEvent> events;

    static GameMap blank(const QString& name, const QSize& size, Tile ground);
    bool contains(const QPoint& cell) const;
    Tile& at(const QPoint& cell) { return tiles[cell.y() * size.width() + cell.x()]; }
    Tile at(const QPoint& cell) const { return tiles[cell.y() * size.width() + cell.x()]; }
    // Index of the event on the cell; -1 when there is none.
    int eventAt(const QPoint& cell) const;
};

// One line of the database: a hero or an item.
struct Entry {
    QString name;
    int role = 0;
    int level = 1;
    bool special = false;
};

struct Project {
    QString title;
    QVector<GameMap> maps;
    // Where the player starts on the first map.
    QPoint start;
    QVector<Entry> heroes;
    QVector<Entry> items;

    // Data that is made ready by name, for the program's start and for
    // tutorials: "meadow", a finished small world, and "empty".
    static std::optional<Project> preset(const QString& name);
};
