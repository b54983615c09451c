// SPDX-License-Identifier: MIT
#include "overlay/motion.h"

#include <QtTest>

#include <limits>

namespace {

constexpr int kArrowWidth = 76;
constexpr int kAreaRight = 1279;
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr int kLowest = std::numeric_limits<int>::min();

} // namespace

class tst_Motion : public QObject {
    Q_OBJECT

private slots:
    void glide_data();
    void glide();
    void sides_data();
    void sides();
};

void tst_Motion::glide_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QVector<int>>("steps");
    QTest::newRow("upwards stops short")
        << 0 << 100 << QVector<int>{25, 43, 57, 67, 75, 81, 85, 88, 91, 93, 94, 95, 96, 97, 97, 97};
    QTest::newRow("downwards arrives")
        << 200 << 100
        << QVector<int>{175, 156, 142, 131, 123, 117, 112, 109, 106, 104, 103, 100, 100};
    QTest::newRow("through zero") << -10 << 10 << QVector<int>{-5, -1, 1, 3, 4, 5, 6, 7, 7};
    // Nothing overflows on the way to the end of all numbers and beyond, and
    // windows stay where their sizes can be added.
    QTest::newRow("far") << (1 << 30) << kHighest << QVector<int>{1 << 30};
    QTest::newRow("far back") << -(1 << 30) << kLowest << QVector<int>{-(1 << 30)};
}

void tst_Motion::glide()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QVector<int>, steps);
    BalloonMotion motion;
    motion.current = QPoint(from, from);
    motion.target = QPoint(to, to);
    QVector<int> found;
    for (int i = 0; i < steps.size(); ++i) {
        motion.current = motion.nextPosition(kArrowWidth);
        QCOMPARE(motion.current.x(), motion.current.y());
        found << motion.current.x();
    }
    QCOMPARE(found, steps);
}

void tst_Motion::sides_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<bool>("wasUp");
    QTest::addColumn<bool>("wasLeft");
    QTest::addColumn<bool>("up");
    QTest::addColumn<bool>("left");
    const auto row = [](const char* tag, int x, int y, const char* before, const char* after) {
        QTest::newRow(tag) << QPoint(x, y) << (before[0] == 'u') << (before[1] == 'l')
                           << (after[0] == 'u') << (after[1] == 'l');
    };
    row("top edge holds", 100, 0, "d-", "d-");
    row("above the screen", 100, -1, "d-", "u-");
    row("back only from 65", 100, 64, "u-", "u-");
    row("back", 100, 65, "u-", "d-");
    row("text just fits", kAreaRight + 1 - 256 - 76, 100, "d-", "d-");
    row("text does not fit", kAreaRight + 2 - 256 - 76, 100, "d-", "dl");
    row("back only with room to spare", kAreaRight - 63 - 218 - 76, 100, "dl", "dl");
    row("room to spare", kAreaRight - 64 - 218 - 76, 100, "dl", "d-");
    row("both at once", 1200, -5, "d-", "ul");
    row("beyond all numbers", kHighest, kLowest, "d-", "ul");
}

void tst_Motion::sides()
{
    QFETCH(QPoint, target);
    QFETCH(bool, wasUp);
    QFETCH(bool, wasLeft);
    QFETCH(bool, up);
    QFETCH(bool, left);
    BalloonMotion motion;
    motion.target = target;
    motion.flippedVertically = wasUp;
    motion.flippedHorizontally = wasLeft;
    const BalloonMotion::WidePoint goal = motion.effectiveTarget(kArrowWidth);

    // From far away nothing changes, one pixel nearer everything does.
    motion.current = QPoint(int(goal.x - 257), int(goal.y));
    QVERIFY(!motion.updateSides(kArrowWidth, kAreaRight));
    motion.current.rx() += 1;
    QCOMPARE(motion.updateSides(kArrowWidth, kAreaRight), up != wasUp || left != wasLeft);
    QCOMPARE(motion.flippedVertically, up);
    QCOMPARE(motion.flippedHorizontally, left);
}

QTEST_APPLESS_MAIN(tst_Motion)
#include "tst_motion.moc"
