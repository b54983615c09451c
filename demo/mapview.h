// SPDX-License-Identifier: MIT
#pragma once

#include "demo/project.h"

#include <QVector>
#include <QWidget>

#include <optional>

// Shows a map, and lets the user draw tiles on it or choose its events.
class MapView : public QWidget {
    Q_OBJECT

public:
    enum class Tool { Pencil, Rectangle, FloodFill };

    explicit MapView(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    // The cell that was clicked last.
    QPoint cell() const { return mCell; }
    void setCell(const QPoint& cell);

    // The map stays the caller's, and must stay until another one is set.
    void setMap(GameMap* map);
    // Where the player starts; nothing for another map than the first.
    void setStart(std::optional<QPoint> start);
    void setTool(Tool tool) { mTool = tool; }
    void setTile(Tile tile) { mTile = tile; }
    void setEventMode(bool on);
    // Size of a tile in percent of its drawing.
    void setZoom(int percent);
    // Opacity of the grid lines in percent; 0 for none.
    void setGrid(int percent);

signals:
    // The user has drawn; the tiles were these before.
    void drawn(const QVector<Tile>& before);
    void hovered(const QPoint& cell);
    void eventActivated(const QPoint& cell);
    void menuRequested(const QPoint& cell, const QPoint& screenPoint);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    double edge() const;
    QPoint cellAt(const QPoint& point) const;
    bool isWater(const QPoint& cell) const;
    void paintCell(QPainter& painter, const QPoint& cell) const;
    void paintMarks(QPainter& painter) const;
    void draw(const QPoint& cell);
    void floodFill(const QPoint& cell);

    GameMap* mMap = nullptr;
    std::optional<QPoint> mStart;
    Tool mTool = Tool::Pencil;
    Tile mTile = Tile::Grass;
    bool mEventMode = false;
    int mZoom = 100;
    int mGrid = 15;
    QPoint mCell;
    // Where the mouse button went down, and the tiles at that time; empty when
    // nothing is being drawn.
    QPoint mPressed;
    QVector<Tile> mBefore;
};
