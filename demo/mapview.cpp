// SPDX-License-Identifier: MIT
#include "demo/mapview.h"

#include "demo/artwork.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr QPoint kNeighbours[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};

} // namespace

MapView::MapView(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("Map"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize MapView::sizeHint() const
{
    return mMap ? (QSizeF(mMap->size) * edge()).toSize() : QSize();
}

void MapView::setCell(const QPoint& cell)
{
    mCell = cell;
    update();
}

void MapView::setMap(GameMap* map)
{
    mMap = map;
    mCell = {};
    mBefore.clear();
    resize(sizeHint());
    update();
}

void MapView::setStart(std::optional<QPoint> start)
{
    mStart = start;
    update();
}

void MapView::setEventMode(bool on)
{
    mEventMode = on;
    update();
}

void MapView::setZoom(int percent)
{
    mZoom = percent;
    resize(sizeHint());
    update();
}

void MapView::setGrid(int percent)
{
    mGrid = percent;
    update();
}

double MapView::edge() const
{
    return Artwork::kTileEdge * mZoom / 100.0;
}

QPoint MapView::cellAt(const QPoint& point) const
{
    return {int(point.x() / edge()), int(point.y() / edge())};
}

bool MapView::isWater(const QPoint& cell) const
{
    return !mMap->contains(cell) || mMap->at(cell) == Tile::Water || mMap->at(cell) == Tile::Bridge;
}

void MapView::paintEvent(QPaintEvent* event)
{
    if (!mMap)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(mZoom / 100.0, mZoom / 100.0);
    const QRect cells(cellAt(event->rect().topLeft()), cellAt(event->rect().bottomRight()));
    const QRect shown = cells & QRect(QPoint(), mMap->size);
    for (int y = shown.top(); y <= shown.bottom(); ++y) {
        for (int x = shown.left(); x <= shown.right(); ++x)
            paintCell(painter, {x, y});
    }
    paintMarks(painter);
}

void MapView::paintCell(QPainter& painter, const QPoint& cell) const
{
    constexpr double kEdge = Artwork::kTileEdge;
    painter.save();
    painter.translate(cell * Artwork::kTileEdge);
    painter.setClipRect(QRectF(0, 0, kEdge, kEdge));
    Artwork::paintTile(painter, mMap->at(cell));

    if (mMap->at(cell) == Tile::Water) {
        // Foam along the shore.
        painter.setPen(QPen(QColor(255, 255, 255, 170), 5));
        const QLineF shores[] = {
            {kEdge, 0, kEdge, kEdge}, {0, kEdge, kEdge, kEdge}, {0, 0, 0, kEdge}, {0, 0, kEdge, 0}};
        for (int side = 0; side < 4; ++side) {
            if (!isWater(cell + kNeighbours[side]))
                painter.drawLine(shores[side]);
        }
    }
    if (mGrid > 0) {
        painter.setPen(QPen(QColor(20, 40, 60, mGrid * 255 / 100), 1));
        painter.drawLine(QPointF(0, 0.5), QPointF(kEdge, 0.5));
        painter.drawLine(QPointF(0.5, 0), QPointF(0.5, kEdge));
    }
    painter.restore();
}

void MapView::paintMarks(QPainter& painter) const
{
    const auto atCell = [&painter](const QPoint& cell, const QColor& colour) {
        painter.save();
        painter.translate(cell * Artwork::kTileEdge);
        Artwork::paintPerson(painter, colour);
        painter.restore();
    };
    for (const MapEvent& event : mMap->events)
        atCell(event.cell, QColor(0x8e, 0x5b, 0xc0));
    if (mStart)
        atCell(*mStart, QColor(0x2d, 0x7d, 0xd2));

    const QSize tile(Artwork::kTileEdge, Artwork::kTileEdge);
    painter.setBrush(Qt::NoBrush);
    if (mEventMode) {
        for (const MapEvent& event : mMap->events) {
            painter.setPen(QPen(QColor(255, 255, 255, 220), 2));
            painter.drawRoundedRect(
                QRect(event.cell * Artwork::kTileEdge, tile).adjusted(2, 2, -2, -2), 4, 4);
        }
        painter.setPen(QPen(QColor(0xff, 0xb3, 0x00), 3));
        painter.drawRoundedRect(
            QRect(mCell * Artwork::kTileEdge, tile).adjusted(1, 1, -1, -1), 4, 4);
    } else if (!mBefore.isEmpty() && mTool == Tool::Rectangle) {
        const QRect drawn = QRect(mPressed, mCell).normalized();
        painter.setPen(QPen(QColor(0xff, 0xb3, 0x00), 3));
        painter.drawRect(
            QRect(drawn.topLeft() * Artwork::kTileEdge, drawn.size() * Artwork::kTileEdge));
    }
}

void MapView::mousePressEvent(QMouseEvent* event)
{
    const QPoint cell = cellAt(event->pos());
    if (!mMap || !mMap->contains(cell))
        return;
    mCell = mPressed = cell;
    if (event->button() == Qt::LeftButton && !mEventMode) {
        mBefore = mMap->tiles;
        draw(cell);
    }
    update();
}

void MapView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint cell = cellAt(event->pos());
    if (!mMap || !mMap->contains(cell))
        return;
    emit hovered(cell);
    if (!mBefore.isEmpty()) {
        mCell = cell;
        draw(cell);
        update();
    }
}

void MapView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || mBefore.isEmpty())
        return;
    const QVector<Tile> before = mBefore;
    mBefore.clear();
    update();
    if (before != mMap->tiles)
        emit drawn(before);
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (mEventMode && event->button() == Qt::LeftButton && mMap)
        emit eventActivated(mCell);
    else
        mousePressEvent(event);
}

void MapView::contextMenuEvent(QContextMenuEvent* event)
{
    if (mMap)
        emit menuRequested(mCell, event->globalPos());
}

void MapView::draw(const QPoint& cell)
{
    switch (mTool) {
    case Tool::Pencil:
        mMap->at(cell) = mTile;
        break;
    case Tool::Rectangle: {
        mMap->tiles = mBefore;
        const QRect drawn = QRect(mPressed, cell).normalized();
        for (int y = drawn.top(); y <= drawn.bottom(); ++y) {
            for (int x = drawn.left(); x <= drawn.right(); ++x)
                mMap->at({x, y}) = mTile;
        }
        break;
    }
    case Tool::FloodFill:
        floodFill(cell);
        break;
    }
}

void MapView::floodFill(const QPoint& cell)
{
    const Tile old = mMap->at(cell);
    if (old == mTile)
        return;
    QVector<QPoint> open{cell};
    while (!open.isEmpty()) {
        const QPoint next = open.takeLast();
        if (!mMap->contains(next) || mMap->at(next) != old)
            continue;
        mMap->at(next) = mTile;
        for (const QPoint& step : kNeighbours)
            open << next + step;
    }
}
