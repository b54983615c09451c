// SPDX-License-Identifier: MIT
#include "tests/support/overlaywindows.h"
#include "tests/support/xdotool.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

namespace {

constexpr int kDeadlineMs = 20000;
constexpr int kSteadyMs = 700;

} // namespace

// The host that the page on the link ends with.
class tst_SmallHost : public QObject {
    Q_OBJECT

private slots:
    void playsAsItIsPrinted();
};

void tst_SmallHost::playsAsItIsPrinted()
{
    const QString folder = QCoreApplication::applicationDirPath();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"),
        folder + QLatin1Char(':') + environment.value(QStringLiteral("PATH")));
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(folder + QStringLiteral("/smallhost"), QStringList());

    QTRY_COMPARE_WITH_TIMEOUT(overlayWindows(kButtonSize).size(), 1, kDeadlineMs);
    // It used to ask for the activation before "start" took it away, and lost it.
    const QString window = xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
        QStringLiteral("--classname"), QStringLiteral("^smallhost$")});
    QVERIFY(!window.isEmpty());
    QElapsedTimer steady;
    const auto isActiveForLong = [&] {
        if (xdotool({QStringLiteral("getactivewindow")}) != window)
            steady.invalidate();
        else if (!steady.isValid())
            steady.start();
        return steady.isValid() && steady.hasExpired(kSteadyMs);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isActiveForLong(), kDeadlineMs);

    // The arrow follows the window.
    xdotool({QStringLiteral("windowmove"), window, QStringLiteral("300"), QStringLiteral("250")});
    const auto away = [&] {
        const QVector<QRect> balloon = overlayWindows(kBalloonSize);
        const QPoint target = geometryOf(window).topLeft() + QPoint(20, 20) - QPoint(38, 165);
        return balloon.size() == 1 ? (balloon.first().topLeft() - target).manhattanLength() : 9999;
    };
    QTRY_VERIFY_WITH_TIMEOUT(geometryOf(window).y() > 200 && away() <= 6, kDeadlineMs);
    clickAt(overlayWindows(kButtonSize).first().center());
    QVERIFY(host.waitForFinished(kDeadlineMs));
    QCOMPARE(host.exitCode(), 0);
    QVERIFY(overlayWindows(kBalloonSize).isEmpty());
}

QTEST_GUILESS_MAIN(tst_SmallHost)
#include "tst_smallhost.moc"
