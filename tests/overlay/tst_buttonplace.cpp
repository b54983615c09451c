// SPDX-License-Identifier: MIT
#include "overlay/buttonplace.h"

#include <QRandomGenerator>
#include <QtTest>

#include <limits>

namespace {

constexpr int kHighest = std::numeric_limits<int>::max();
constexpr int kLowest = std::numeric_limits<int>::min();
const QRect kScreen(0, 0, 1024, 768);
const QRect kSecond(1024, 0, 1280, 800);

// What a balloon shows that stands there, its text so many pixels high.
BalloonParts partsAt(const QPoint& balloon, int textHeight)
{
    const BalloonParts parts{
        {0, 0, 76, 175}, {22, 149, 32, 32}, {76, 0, 56, 56}, {76, 56, 256, textHeight}};
    return parts.translated(balloon);
}

// The way to the nearest place, found by trying all of them; -1 for none.
int leastWay(const QRect& described, const QVector<QRect>& rooms, const QVector<QRect>& obstacles)
{
    int least = -1;
    for (const QRect& room : rooms) {
        for (int y = room.top(); y <= room.bottom() + 1 - described.height(); ++y) {
            for (int x = room.left(); x <= room.right() + 1 - described.width(); ++x) {
                const QRect place(QPoint(x, y), described.size());
                const QPoint way = place.topLeft() - described.topLeft();
                const bool isFree = std::none_of(
                    obstacles.begin(), obstacles.end(), [&place](const QRect& obstacle) {
                        return !obstacle.isEmpty() && obstacle.intersects(place);
                    });
                if (isFree && (least < 0 || QPoint::dotProduct(way, way) < least))
                    least = QPoint::dotProduct(way, way);
            }
        }
    }
    return least;
}

} // namespace

class tst_ButtonPlace : public QObject {
    Q_OBJECT

private slots:
    void placeOnScreens_data();
    void placeOnScreens();
    void noPlaceIsNearer();
};

void tst_ButtonPlace::placeOnScreens_data()
{
    QTest::addColumn<QPoint>("balloon");
    QTest::addColumn<int>("textHeight");
    QTest::addColumn<int>("width");
    QTest::addColumn<QRect>("host");
    QTest::addColumn<QPoint>("place");
    const QRect both = kScreen | kSecond;
    QTest::newRow("as described") << QPoint(100, 100) << 64 << 64 << kScreen << QPoint(176, 220);
    QTest::newRow("just inside") << QPoint(100, 616) << 64 << 64 << kScreen << QPoint(176, 736);
    QTest::newRow("beside the icon")
        << QPoint(-18, 595) << 114 << 64 << kScreen << QPoint(114, 619);
    QTest::newRow("beside the text")
        << QPoint(-18, 395) << 317 << 64 << kScreen << QPoint(314, 736);
    QTest::newRow("on one screen, below the arrow")
        << QPoint(840, 100) << 64 << 120 << both << QPoint(904, 275);
    QTest::newRow("on the other") << QPoint(940, 100) << 64 << 64 << both << QPoint(1024, 220);
    QTest::newRow("host not known") << QPoint(100, 100) << 64 << 64 << QRect() << QPoint(176, 220);
    QTest::newRow("host too small")
        << QPoint(100, 100) << 64 << 64 << QRect(0, 0, 40, 40) << QPoint(176, 220);
    QTest::newRow("host out of sight")
        << QPoint(100, 100) << 64 << 64 << QRect(9000, 0, 100, 100) << QPoint(176, 220);
    QTest::newRow("text everywhere")
        << QPoint(-76, -56) << 800 << 64 << QRect(0, 0, 256, 768) << QPoint(0, 736);
    QTest::newRow("beyond all numbers")
        << QPoint(1 << 30, -(1 << 30)) << 64 << 64
        << QRect(QPoint(kLowest, kLowest), QPoint(kHighest, kHighest)) << QPoint(2240, 0);
}

void tst_ButtonPlace::placeOnScreens()
{
    QFETCH(QPoint, balloon);
    QFETCH(int, textHeight);
    QFETCH(int, width);
    QFETCH(QRect, host);
    const QRect described(balloon + QPoint(76, 56 + textHeight), QSize(width, 32));
    QTEST(buttonPlace(described, host, {kScreen, kSecond}, partsAt(balloon, textHeight)), "place");
}

void tst_ButtonPlace::noPlaceIsNearer()
{
    QRandomGenerator random(20);
    const auto rect = [&random](int most) {
        return QRect(random.bounded(-20, 90), random.bounded(-20, 70), random.bounded(most),
            random.bounded(most));
    };
    for (int i = 0; i < 500; ++i) {
        const QVector<QRect> screens = {{0, 0, 40, 40}, {40, 0, 30, 50}};
        const QRect host = rect(80);
        const QRect described(
            QPoint(random.bounded(-20, 90), random.bounded(-20, 70)), QSize(9, 4));
        const QRect arrow = rect(30);
        const BalloonParts parts{arrow, rect(20) & arrow, rect(10), rect(50)};
        QVector<QRect> shared;
        for (const QRect& screen : screens)
            shared << (host.isEmpty() ? screen : host & screen);

        int least = -1;
        for (const QVector<QRect>& rooms : {shared, screens}) {
            if (least < 0 && leastWay(described, rooms, {}) == 0)
                least = 0; // it stays, whatever stands there
            for (const QVector<QRect>& obstacles :
                {QVector<QRect>{parts.arrow, parts.tip, parts.icon, parts.text},
                    {parts.tip, parts.text}, {parts.tip}}) {
                if (least < 0)
                    least = leastWay(described, rooms, obstacles);
            }
        }
        const QPoint way = buttonPlace(described, host, screens, parts) - described.topLeft();
        QCOMPARE(QPoint::dotProduct(way, way), qMax(0, least));
    }
}

QTEST_APPLESS_MAIN(tst_ButtonPlace)
#include "tst_buttonplace.moc"
