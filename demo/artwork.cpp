// SPDX-License-Identifier: MIT
#include "demo/artwork.h"

#include <QHash>
#include <QPainterPath>
#include <QPixmapCache>

#include <functional>

namespace {

const QColor kInk(0x2f, 0x3b, 0x4c);
const QColor kAccent(0x2d, 0x7d, 0xd2);
const QColor kLeaf(0x4c, 0xa6, 0x5b);

void dot(QPainter& painter, const QColor& colour, double x, double y, double rx, double ry)
{
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(x, y), rx, ry);
}

void bar(QPainter& painter, const QColor& colour, double x, double y, double w, double h,
    double round = 0)
{
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(x, y, w, h), round, round);
}

void polygon(QPainter& painter, const QColor& colour, const QVector<QPointF>& points)
{
    painter.setBrush(colour);
    painter.drawPolygon(points);
}

void grass(QPainter& painter)
{
    bar(painter, QColor(0x9c, 0xd0, 0x7a), 0, 0, 32, 32);
    for (const QPointF& tuft : {QPointF(6, 9), QPointF(22, 5), QPointF(14, 21), QPointF(27, 25)})
        polygon(painter, QColor(0x86, 0xbf, 0x68),
            QVector<QPointF>{tuft, tuft + QPointF(2, -4), tuft + QPointF(4, 0)});
}

void flowers(QPainter& painter)
{
    grass(painter);
    const QColor colours[] = {QColor(0xf2, 0x6d, 0x7e), QColor(0xff, 0xd1, 0x4f), Qt::white};
    int i = 0;
    for (const QPointF& at : {QPointF(8, 15), QPointF(20, 12), QPointF(24, 22), QPointF(11, 26)}) {
        dot(painter, colours[i++ % 3], at.x(), at.y(), 3, 3);
        dot(painter, QColor(0xd9, 0x95, 0x2b), at.x(), at.y(), 1, 1);
    }
}

void forest(QPainter& painter)
{
    grass(painter);
    dot(painter, QColor(0, 0, 0, 40), 16, 28, 11, 3);
    bar(painter, QColor(0x8a, 0x5f, 0x3c), 14, 21, 4, 8, 1);
    dot(painter, QColor(0x3f, 0x8f, 0x4f), 16, 15, 12, 11);
    dot(painter, QColor(0x57, 0xa9, 0x5f), 13, 11, 7, 6);
}

void hills(QPainter& painter)
{
    grass(painter);
    polygon(painter, QColor(0x8d, 0x84, 0x7a), {{2, 29}, {13, 6}, {22, 29}});
    polygon(painter, QColor(0xa5, 0x9b, 0x8f), {{13, 29}, {22, 12}, {31, 29}});
    polygon(painter, Qt::white, {{13, 6}, {9.5, 13}, {13, 12}, {16, 14}});
}

void water(QPainter& painter)
{
    bar(painter, QColor(0x6c, 0xbd, 0xe8), 0, 0, 32, 32);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 110), 1.6, Qt::SolidLine, Qt::RoundCap));
    for (const QPointF& at : {QPointF(5, 10), QPointF(19, 20)}) {
        painter.drawArc(QRectF(at, QSizeF(5, 4)), 0, 180 * 16);
        painter.drawArc(QRectF(at + QPointF(5, 0), QSizeF(5, 4)), 0, 180 * 16);
    }
    painter.restore();
}

void sand(QPainter& painter)
{
    bar(painter, QColor(0xf3, 0xdf, 0xa6), 0, 0, 32, 32);
    for (const QPointF& at : {QPointF(7, 7), QPointF(23, 11), QPointF(12, 19), QPointF(26, 27)})
        dot(painter, QColor(0xe0, 0xc5, 0x83), at.x(), at.y(), 1.2, 1.2);
}

void path(QPainter& painter)
{
    bar(painter, QColor(0xdc, 0xc0, 0x95), 0, 0, 32, 32);
    for (const QPointF& at : {QPointF(9, 10), QPointF(24, 7), QPointF(18, 23)})
        dot(painter, QColor(0xc7, 0xa8, 0x7a), at.x(), at.y(), 4, 2.4);
}

void bridge(QPainter& painter)
{
    water(painter);
    bar(painter, QColor(0xb3, 0x80, 0x4e), 0, 5, 32, 22);
    for (int x = 0; x < 32; x += 8)
        bar(painter, QColor(0x93, 0x66, 0x3b), x + 7, 5, 1, 22);
    bar(painter, QColor(0x7d, 0x55, 0x31), 0, 4, 32, 3);
    bar(painter, QColor(0x7d, 0x55, 0x31), 0, 25, 32, 3);
}

void house(QPainter& painter)
{
    grass(painter);
    bar(painter, QColor(0xf6, 0xe8, 0xd0), 5, 14, 22, 16);
    polygon(painter, QColor(0xd9, 0x5d, 0x4e), {{2, 16}, {16, 3}, {30, 16}});
    bar(painter, QColor(0x8a, 0x5f, 0x3c), 13, 20, 6, 10, 1);
    bar(painter, QColor(0x9b, 0xd3, 0xef), 21, 18, 4, 4);
}

void fence(QPainter& painter)
{
    grass(painter);
    bar(painter, QColor(0xc9, 0x9a, 0x66), 0, 13, 32, 3);
    bar(painter, QColor(0xc9, 0x9a, 0x66), 0, 21, 32, 3);
    for (int x : {4, 20})
        bar(painter, QColor(0xa8, 0x7a, 0x4a), x, 8, 6, 20, 2);
}

// Drawn once for each name: what Qt keeps of an icon, scaled or grey, belongs to
// its pixmap, and would pile up with a new one each time that a list is filled.
QPixmap square(
    const QString& name, int edge, int drawnEdge, const std::function<void(QPainter&)>& draw)
{
    const QString key = QStringLiteral("%1 %2").arg(name).arg(edge);
    QPixmap pixmap(edge, edge);
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(double(edge) / drawnEdge, double(edge) / drawnEdge);
    draw(painter);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

// The icons are drawn in a square of 24.

void line(QPainter& painter, const QColor& colour, const QVector<QPointF>& points, double width = 2)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(points);
    painter.restore();
}

void sheet(QPainter& painter)
{
    bar(painter, kInk, 4, 2, 15, 20, 2);
    bar(painter, Qt::white, 6, 4, 11, 16, 1);
    bar(painter, kLeaf, 13, 13, 9, 9, 4.5);
    bar(painter, Qt::white, 16.7, 14.8, 1.6, 5.4);
    bar(painter, Qt::white, 14.8, 16.7, 5.4, 1.6);
}

void turn(QPainter& painter)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kAccent, 2.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(5, 7, 14, 13), -60 * 16, 200 * 16);
    painter.restore();
    polygon(painter, kAccent, {{1.5, 10}, {9.5, 11}, {5.5, 17}});
}

void turnBack(QPainter& painter)
{
    painter.translate(24, 0);
    painter.scale(-1, 1);
    turn(painter);
}

void mapSheet(QPainter& painter)
{
    polygon(painter, kLeaf, {{2, 6}, {9, 3}, {9, 19}, {2, 22}});
    polygon(painter, QColor(0x7c, 0xc8, 0x88), {{9, 3}, {16, 6}, {16, 22}, {9, 19}});
    polygon(painter, kLeaf, {{16, 6}, {22, 3}, {22, 19}, {16, 22}});
}

void person(QPainter& painter)
{
    dot(painter, kAccent, 12, 7, 4.5, 4.5);
    QPainterPath body;
    body.moveTo(3, 22);
    body.cubicTo(3, 11, 21, 11, 21, 22);
    painter.setBrush(kAccent);
    painter.drawPath(body);
}

void pencil(QPainter& painter)
{
    polygon(painter, QColor(0xf5, 0xb9, 0x3d), {{16, 3}, {21, 8}, {9, 20}, {4, 15}});
    polygon(painter, QColor(0xf2, 0x6d, 0x7e), {{16, 3}, {18, 1}, {23, 6}, {21, 8}});
    polygon(painter, kInk, {{4, 15}, {9, 20}, {2, 22}});
}

void frame(QPainter& painter)
{
    bar(painter, QColor(0x2d, 0x7d, 0xd2, 70), 3, 5, 18, 14);
    line(painter, kAccent, {{3, 5}, {21, 5}, {21, 19}, {3, 19}, {3, 5}});
}

void bucket(QPainter& painter)
{
    polygon(painter, kInk, {{10, 2}, {19, 11}, {10, 20}, {1, 11}});
    polygon(painter, kAccent, {{4, 11}, {16, 11}, {10, 17}});
    QPainterPath drop;
    drop.moveTo(20.5, 13);
    drop.cubicTo(25, 19, 23, 22, 20.5, 22);
    drop.cubicTo(18, 22, 16, 19, 20.5, 13);
    painter.setBrush(kAccent);
    painter.drawPath(drop);
}

void lens(QPainter& painter, bool plus, bool minus)
{
    dot(painter, kInk, 10, 10, 8, 8);
    dot(painter, Qt::white, 10, 10, 5.8, 5.8);
    line(painter, kInk, {{16, 16}, {21, 21}}, 3.4);
    if (plus || minus)
        bar(painter, kAccent, 6.6, 9, 6.8, 2, 1);
    if (plus)
        bar(painter, kAccent, 9, 6.6, 2, 6.8, 1);
    if (!plus && !minus)
        dot(painter, kAccent, 10, 10, 2.4, 2.4);
}

void drum(QPainter& painter)
{
    bar(painter, kInk, 3, 4, 18, 17, 4);
    for (double y : {4.0, 10.0, 16.0})
        dot(painter, y == 4.0 ? QColor(0x7c, 0xb4, 0xe8) : QColor(0x55, 0x66, 0x7c), 12, y + 1, 9,
            3);
}

void gear(QPainter& painter)
{
    painter.save();
    painter.translate(12, 12);
    for (int i = 0; i < 8; ++i) {
        bar(painter, kInk, -2.2, -11, 4.4, 6, 1.2);
        painter.rotate(45);
    }
    painter.restore();
    dot(painter, kInk, 12, 12, 7.6, 7.6);
    dot(painter, Qt::white, 12, 12, 3.2, 3.2);
}

void bin(QPainter& painter)
{
    bar(painter, kInk, 4, 5, 16, 2.4, 1);
    bar(painter, kInk, 9, 2, 6, 3, 1);
    polygon(painter, kInk, {{5.5, 9}, {18.5, 9}, {17.3, 22}, {6.7, 22}});
}

void signpost(QPainter& painter)
{
    line(painter, kInk, {{6, 22}, {6, 3}}, 2.6);
    polygon(painter, QColor(0xd9, 0x5d, 0x4e), {{6, 3}, {21, 7.5}, {6, 12}});
}

void question(QPainter& painter)
{
    dot(painter, kAccent, 12, 12, 10.5, 10.5);
    QPainterPath mark;
    QFont font;
    font.setBold(true);
    font.setPixelSize(17);
    mark.addText(7, 18, font, QStringLiteral("?"));
    painter.setBrush(Qt::white);
    painter.drawPath(mark);
}

} // namespace

void Artwork::paintTile(QPainter& painter, Tile tile)
{
    static void (*const kTiles[kTileCount])(QPainter&) = {
        grass, flowers, forest, hills, water, sand, path, bridge, house, fence};
    painter.setPen(Qt::NoPen);
    kTiles[int(tile)](painter);
}

void Artwork::paintPerson(QPainter& painter, const QColor& colour)
{
    painter.setPen(Qt::NoPen);
    dot(painter, QColor(0, 0, 0, 60), 16, 28, 8, 2.6);
    QPainterPath body;
    body.moveTo(8, 28);
    body.cubicTo(8, 13, 24, 13, 24, 28);
    painter.setBrush(colour);
    painter.drawPath(body);
    dot(painter, QColor(0xfb, 0xdc, 0xbb), 16, 11, 6, 6);
    painter.setBrush(QColor(0x6a, 0x45, 0x2c));
    painter.drawChord(QRectF(9.6, 3.6, 12.8, 12), 10 * 16, 160 * 16);
}

QIcon Artwork::tileIcon(Tile tile)
{
    return square(QStringLiteral("tile %1").arg(int(tile)), kTileEdge, kTileEdge,
        [tile](QPainter& painter) { paintTile(painter, tile); });
}

QIcon Artwork::actionIcon(const QString& name)
{
    static const QHash<QString, std::function<void(QPainter&)>> kIcons = {
        {QStringLiteral("New Project"), sheet},
        {QStringLiteral("Undo"), turn},
        {QStringLiteral("Redo"), turnBack},
        {QStringLiteral("Map"), mapSheet},
        {QStringLiteral("Event"), person},
        {QStringLiteral("Pencil"), pencil},
        {QStringLiteral("Rectangle"), frame},
        {QStringLiteral("Flood Fill"), bucket},
        {QStringLiteral("Zoom In"), [](QPainter& painter) { lens(painter, true, false); }},
        {QStringLiteral("Zoom Out"), [](QPainter& painter) { lens(painter, false, true); }},
        {QStringLiteral("Actual Size"), [](QPainter& painter) { lens(painter, false, false); }},
        {QStringLiteral("Database"), drum},
        {QStringLiteral("Options"), gear},
        {QStringLiteral("Delete"), bin},
        {QStringLiteral("Set Starting Position Player"), signpost},
        {QStringLiteral("Tutorial"), question},
    };
    const auto draw = kIcons.value(name);
    if (!draw)
        return {};
    QIcon icon;
    for (int edge : {24, 48})
        icon.addPixmap(square(name, edge, 24, draw));
    return icon;
}

QIcon Artwork::applicationIcon()
{
    return square(QStringLiteral("application"), 64, 24, mapSheet);
}
