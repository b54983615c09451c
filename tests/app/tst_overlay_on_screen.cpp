// SPDX-License-Identifier: MIT
#include "tests/support/overlaywindows.h"
#include "tests/support/testhost.h"
#include "tests/support/xdotool.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <QtTest>

#include <csignal>
#include <cstring>

namespace {

constexpr int kDeadlineMs = 20000;
// Well before the 30 silent seconds after which the program ends by itself.
constexpr int kPromptMs = 10000;
const QColor kBackground(0, 90, 160);

// From the target that is sent to the place that the arrow points at, in px.
const QPoint kTip(38, 165);

QImage screenshot()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

// The part of an area that is not background; empty when all of it is.
QRect painted(const QImage& image, const QRect& area)
{
    QRect bounds;
    const QRect visible = area & image.rect();
    for (int y = visible.top(); y <= visible.bottom(); ++y) {
        for (int x = visible.left(); x <= visible.right(); ++x) {
            if (image.pixelColor(x, y) != kBackground)
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

QStringList updateXy(const QPoint& target)
{
    return {QStringLiteral("indicator"), QStringLiteral("updateXy"), QString::number(target.x()),
        QString::number(target.y())};
}

QStringList update(const QString& hint, int flags, int icon)
{
    return {QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("0"),
        QStringLiteral("0"), QStringLiteral("0"), hint, QString::number(flags),
        QString::number(icon)};
}

} // namespace

// The real program above this window, which plays the host, under a window
// manager.
class tst_OverlayOnScreen : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void tipStandsOnItsPointOnEverySide_data();
    void tipStandsOnItsPointOnEverySide();
    void iconChangesOnBothSides_data();
    void iconChangesOnBothSides();
    void hostIsSeenBesideTheParts_data();
    void hostIsSeenBesideTheParts();
    void typingIsNotInterrupted();
    void overlayStaysAboveWindowsThatOpenLater();
    void nothingStaysOnTheScreen_data();
    void nothingStaysOnTheScreen();

private:
    // Whether nothing of the overlay can be seen in this window.
    bool isClean() const;
    bool waitForOverlay(bool shown) const;

    QScopedPointer<TestHost> mHost;
    QScopedPointer<QWidget> mWindow;
    QLineEdit* mEdit = nullptr;
};

void tst_OverlayOnScreen::init()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    mWindow.reset(new QWidget);
    mWindow->setWindowFlags(Qt::FramelessWindowHint);
    QPalette palette;
    palette.setColor(QPalette::Window, kBackground);
    mWindow->setPalette(palette);
    // Window managers put a window that fills the screen above all others.
    mWindow->setGeometry(screen.adjusted(0, 0, 0, -20));
    mEdit = new QLineEdit(mWindow.data());
    mEdit->setGeometry(20, mWindow->height() - 60, 400, 30);
    mWindow->show();
    mWindow->activateWindow();
    mEdit->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.data(), kDeadlineMs));

    mHost.reset(new TestHost);
    QVERIFY(mHost->startAndConnect());
    mHost->send({{QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"),
                     QString::number(screen.width()), QString::number(screen.height())},
        update(QStringLiteral("hint"), 0, 0), updateXy({400, 300})});
    // A first start takes the activation once; the host takes it back.
    QTRY_VERIFY_WITH_TIMEOUT(!mWindow->isActiveWindow(), kDeadlineMs);
    mWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.data(), kDeadlineMs));
}

void tst_OverlayOnScreen::cleanup()
{
    mHost.reset();
    mWindow.reset();
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
}

bool tst_OverlayOnScreen::isClean() const
{
    const QRect area = mWindow->rect().adjusted(0, 0, 0, -100);
    return painted(screenshot(), area).isEmpty();
}

bool tst_OverlayOnScreen::waitForOverlay(bool shown) const
{
    return QTest::qWaitFor([this, shown] { return isClean() != shown; }, kDeadlineMs);
}

void tst_OverlayOnScreen::tipStandsOnItsPointOnEverySide_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<bool>("up");
    QTest::newRow("down, text to the right") << QPoint(400, 400) << false;
    QTest::newRow("up, text to the right") << QPoint(400, 60) << true;
    QTest::newRow("down, text to the left") << QPoint(1200, 400) << false;
    QTest::newRow("up, text to the left") << QPoint(1200, 60) << true;
}

void tst_OverlayOnScreen::tipStandsOnItsPointOnEverySide()
{
    QFETCH(QPoint, point);
    QFETCH(bool, up);
    mHost->send({updateXy(point - kTip)});

    // The icon is turned off, so that nothing but the arrow stands in the strip
    // around its tip; the arrow rests half of the time and dips in the other.
    mHost->send({update(QString(), 0, Tutorial::IconKindCount), updateXy(point - kTip)});
    const QRect strip(point - QPoint(10, up ? 10 : 60), QSize(21, 71));
    const auto distance = [&] {
        const QRect tip = painted(screenshot(), strip);
        if (tip.isEmpty())
            return QPoint(9999, 9999);
        const int y = up ? tip.top() : tip.bottom() + 1;
        const QRect row = painted(screenshot(), QRect(strip.left(), up ? y : y - 1, 21, 1));
        return QPoint((row.left() + row.right() + 1) / 2 - point.x(), y - point.y());
    };
    QPoint last;
    QVERIFY2(QTest::qWaitFor(
                 [&] {
                     last = distance();
                     return qAbs(last.x()) <= 3 && qAbs(last.y()) <= 3;
                 },
                 kDeadlineMs),
        qPrintable(QStringLiteral("tip is off by %1, %2").arg(last.x()).arg(last.y())));

    // It never goes beyond its point: over a whole bounce the farthest is rest.
    QElapsedTimer bounce;
    bounce.start();
    int farthest = -9999;
    while (bounce.elapsed() < 2200) {
        const QPoint now = distance();
        farthest = qMax(farthest, up ? -now.y() : now.y());
        QTest::qWait(20);
    }
    QVERIFY2(qAbs(farthest) <= 3, qPrintable(QString::number(farthest)));
}

void tst_OverlayOnScreen::iconChangesOnBothSides_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<int>("iconLeft"); // from the target
    QTest::newRow("right of the arrow") << QPoint(300, 200) << 76;
    // The balloon's left edge is 180 px and an arrow's width before the target.
    QTest::newRow("left of the arrow") << QPoint(1100, 200) << 200 - 180 - 76;
}

void tst_OverlayOnScreen::iconChangesOnBothSides()
{
    QFETCH(QPoint, target);
    QFETCH(int, iconLeft);
    // Inside of the icon's square by the pixels that the glide may stop short.
    const QRect square(target + QPoint(iconLeft + 4, 4), QSize(48, 48));
    for (int icon : {0, int(Tutorial::IconKindCount), 5, int(Tutorial::IconKindCount)}) {
        mHost->send({update(QString(), 0, icon), updateXy(target)});
        const QSize expected = icon == Tutorial::IconKindCount ? QSize(0, 0) : square.size();
        QTRY_COMPARE_WITH_TIMEOUT(painted(screenshot(), square).size(), expected, kDeadlineMs);
    }
}

void tst_OverlayOnScreen::hostIsSeenBesideTheParts_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("buttons");
    const QString hint = QStringLiteral("hint");
    QTest::newRow("next") << hint << int(Tutorial::ShowNextFlag) << 1;
    QTest::newRow("yes and no") << hint << int(Tutorial::ShowYesNoFlag) << 2;
    QTest::newRow("another hint") << hint + QStringLiteral(" of its own") << 0 << 0;
}

// Of the balloon nothing covers the host but arrow, icon, text and buttons.
void tst_OverlayOnScreen::hostIsSeenBesideTheParts()
{
    QFETCH(QString, hint);
    QFETCH(int, flags);
    QFETCH(int, buttons);
    const QPoint corner(300, 150);
    mHost->send({update(hint, flags, 0), updateXy(corner)});
    QTRY_COMPARE_WITH_TIMEOUT(overlayWindows(kButtonSize).size(), buttons, kDeadlineMs);
    // The glide may stop a few pixels short.
    const auto away = [&] {
        return (overlayWindows(kBalloonSize).value(0).topLeft() - corner).manhattanLength();
    };
    QTRY_VERIFY_WITH_TIMEOUT(away() < 8, kDeadlineMs);
    const auto covered = [&](const QRect& part) {
        return painted(screenshot(), part.translated(corner).adjusted(8, 8, -8, -8));
    };
    const auto isBare = [&](const QRect& part) { return covered(part).isEmpty(); };
    // While it bounces, and for as long as a compositor is looked for.
    QElapsedTimer bounce;
    for (bounce.start(); bounce.elapsed() < 2200;) {
        QTRY_VERIFY_WITH_TIMEOUT(
            isBare({340, 0, 300, 480}) && isBare({0, 240, 640, 240}) && isBare({140, 0, 500, 56}),
            kDeadlineMs);
    }
    QVERIFY(!isBare({0, 0, 76, 240}) && !isBare({76, 0, 56, 56}) && !isBare({76, 56, 256, 30}));
    for (const QRect& button : overlayWindows(kButtonSize))
        QCOMPARE(painted(screenshot(), button), button);
}

void tst_OverlayOnScreen::typingIsNotInterrupted()
{
    int activationChanges = 0;
    connect(qApp, &QApplication::applicationStateChanged, mWindow.data(),
        [&activationChanges] { ++activationChanges; });
    const QString text = QStringLiteral("the quick brown fox jumps over the lazy dog");
    QProcess learner;
    learner.start(QStringLiteral("xdotool"),
        {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("50"), text});
    for (int i = 0; learner.state() != QProcess::NotRunning; ++i) {
        mHost->send({update(QStringLiteral("hint %1").arg(i), i % 8, i % 7),
            updateXy({100 + i * 40 % 1100, 60 * i % 400 - 50})});
        if (i % 5 == 0)
            mHost->send({{QStringLiteral("stop")}, {QStringLiteral("start")}});
        QTest::qWait(100);
    }
    QTRY_COMPARE_WITH_TIMEOUT(mEdit->text(), text, kDeadlineMs);
    QCOMPARE(activationChanges, 0);
}

void tst_OverlayOnScreen::overlayStaysAboveWindowsThatOpenLater()
{
    const QPoint point(400, 400);
    const QStringList step = update(QString(), 0, Tutorial::IconKindCount);
    mHost->send({step, updateXy(point - kTip)});
    QVERIFY(waitForOverlay(true));
    QDialog dialog(mWindow.data());
    dialog.setPalette(mWindow->palette());
    dialog.setGeometry(200, 200, 500, 400);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog, kDeadlineMs));
    mHost->send({{QStringLiteral("windowStack"), QStringLiteral("push"), QStringLiteral("11")}});
    const QRect strip(point - QPoint(10, 60), QSize(21, 60));
    QTRY_VERIFY_WITH_TIMEOUT(!painted(screenshot(), strip).isEmpty(), kDeadlineMs);

    // A menu is not in the window manager's hands: it opens above all others,
    // and the step that points into it comes after.
    QWidget menu(&dialog, Qt::ToolTip);
    menu.setPalette(mWindow->palette());
    menu.setGeometry(dialog.geometry());
    menu.show();
    QTRY_VERIFY_WITH_TIMEOUT(painted(screenshot(), strip).isEmpty(), kDeadlineMs);
    mHost->send({step});
    QTRY_VERIFY_WITH_TIMEOUT(!painted(screenshot(), strip).isEmpty(), kDeadlineMs);
}

void tst_OverlayOnScreen::nothingStaysOnTheScreen_data()
{
    QTest::addColumn<int>("signalNumber"); // 0 for "bye"
    QTest::addColumn<bool>("endsInOrder");
    QTest::addColumn<bool>("asksAuthor");
    QTest::newRow("bye") << 0 << true << false;
    for (int number : {SIGTERM, SIGINT, SIGHUP})
        QTest::newRow(strsignal(number)) << number << true << false;
    for (int number : {SIGSEGV, SIGABRT, SIGKILL})
        QTest::newRow(strsignal(number)) << number << false << false;
    QTest::newRow("Terminated under a question") << int(SIGTERM) << true << true;
}

void tst_OverlayOnScreen::nothingStaysOnTheScreen()
{
    QFETCH(int, signalNumber);
    QFETCH(bool, endsInOrder);
    QFETCH(bool, asksAuthor);
    QTemporaryDir folder;
    const QString id = QString::number(mHost->process().processId());
    const auto hasWindows = [&id] {
        return !xdotool({QStringLiteral("search"), QStringLiteral("--pid"), id}).isEmpty();
    };
    mHost->send({update(QStringLiteral("Go on"), Tutorial::ShowNextFlag, 0)});
    if (asksAuthor) {
        // To open a file again is a question when one of its steps has changed.
        const QString scenario = folder.filePath(QStringLiteral("scenario.js"));
        QVERIFY(QFile::copy(QFINDTESTDATA("../../demo/scenarios/first-steps.js"), scenario));
        const auto editor = [](const char* fields) {
            return QStringLiteral("editor %1").arg(QLatin1String(fields)).split(QLatin1Char(' '));
        };
        const QStringList open = editor("open") << scenario;
        mHost->send({open, editor("focus 0 0"), editor("coordinates 7 7"), open});
        QVERIFY(waitForWindow(QStringLiteral("^Save$")));
    }
    QVERIFY(waitForOverlay(true));
    QTRY_VERIFY_WITH_TIMEOUT(hasWindows(), kDeadlineMs);

    if (signalNumber == 0)
        mHost->send({{QStringLiteral("bye")}});
    else
        kill(mHost->process().processId(), signalNumber);
    QTRY_COMPARE_WITH_TIMEOUT(mHost->process().state(), QProcess::NotRunning, kPromptMs);
    if (endsInOrder) {
        QCOMPARE(mHost->process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(mHost->process().exitCode(), 0);
    }
    QTRY_VERIFY_WITH_TIMEOUT(isClean() && !hasWindows(), kPromptMs);

    // The next one, with the same connection id.
    mHost->reset();
    QVERIFY(mHost->startAndConnect());
    mHost->send({{QStringLiteral("start")}, updateXy({400, 300})});
    QVERIFY(waitForOverlay(true));
}

QTEST_MAIN(tst_OverlayOnScreen)
#include "tst_overlay_on_screen.moc"
