// SPDX-License-Identifier: MIT
#include "tests/support/overlaywindows.h"
#include "tests/support/xdotool.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int kDeadlineMs = 20000;
constexpr QPoint kTip(38, 165);
// The balloon stops short by a few pixels when it comes from the left or above.
constexpr int kTolerance = 3;

} // namespace

// The host without Qt, as its user and the tutorial see it.
class tst_PlainSocket : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void playsToItsEnd();
    void findsAFolder_data();
    void findsAFolder();
    void tellsWhatFails();

private:
    void start(const QStringList& arguments);
    // Waits until so many buttons are on show and the arrow is at this offset
    // in the window.
    bool waitForStep(int buttons, const QPoint& offset);

    QProcess mHost;
    QProcessEnvironment mEnvironment;
};

void tst_PlainSocket::init()
{
    mEnvironment = QProcessEnvironment::systemEnvironment();
}

void tst_PlainSocket::cleanup()
{
    mHost.kill();
    mHost.waitForFinished();
}

void tst_PlainSocket::start(const QStringList& arguments)
{
    mHost.setProcessEnvironment(mEnvironment);
    mHost.start(QStringLiteral(PYTHON), QStringList(QStringLiteral(EXAMPLE)) + arguments);
}

bool tst_PlainSocket::waitForStep(int buttons, const QPoint& offset)
{
    return QTest::qWaitFor(
        [&] {
            const QString host = windowTitled(QStringLiteral("^Guests$"));
            const QVector<QRect> balloon = overlayWindows(kBalloonSize);
            if (host.isEmpty() || balloon.isEmpty())
                return false;
            const QPoint away =
                geometryOf(host).topLeft() + offset - kTip - balloon.first().topLeft();
            return away.manhattanLength() <= 2 * kTolerance
                && overlayWindows(kButtonSize).size() == buttons;
        },
        kDeadlineMs);
}

void tst_PlainSocket::playsToItsEnd()
{
    const QPoint name(110, 33);
    const QPoint add(320, 33);
    const QPoint list(210, 120);
    const auto host = [](const QPoint& offset) {
        return geometryOf(windowTitled(QStringLiteral("^Guests$"))).topLeft() + offset;
    };
    start({QStringLiteral("--tutorial"),
        QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial")});
    QVERIFY(waitForStep(1, list));
    // What is typed arrives whole, although a button of another program was
    // pressed before.
    clickAt(overlayWindows(kButtonSize).first().center());
    QVERIFY(waitForStep(0, name));
    for (const char* guest : {"Wind", "Sand"}) {
        type(QString::fromLatin1(guest));
        QVERIFY(waitForStep(0, add));
        clickAt(host(add));
        QVERIFY(waitForStep(2, list));
        // The two overlap in the middle.
        const QVector<QRect> buttons = overlayWindows(kButtonSize);
        const bool yes = qstrcmp(guest, "Sand") == 0;
        clickAt(yes ? buttons.first().center() - QPoint(16, 0)
                    : buttons.last().center() + QPoint(16, 0));
        if (!yes)
            QVERIFY(waitForStep(0, name));
    }
    // The arrow follows the window.
    xdotool({QStringLiteral("windowmove"), windowTitled(QStringLiteral("^Guests$")),
        QStringLiteral("400"), QStringLiteral("300")});
    QVERIFY(waitForStep(1, QPoint(210, 160) - QPoint(204, 100) + kTip));
    clickAt(overlayWindows(kButtonSize).first().center());
    QVERIFY(mHost.waitForFinished(kDeadlineMs));
    QCOMPARE(mHost.exitCode(), 0);
    QVERIFY(overlayWindows(kBalloonSize).isEmpty());
}

void tst_PlainSocket::findsAFolder_data()
{
    QTest::addColumn<QString>("runtime");
    QTest::addColumn<QString>("temporary");
    QTest::newRow("none of its own") << QString() << QString();
    QTest::newRow("TMPDIR") << QString() << QStringLiteral("FOLDER");
    QTest::newRow("a runtime folder that is gone")
        << QStringLiteral("/nowhere/at/all") << QStringLiteral("FOLDER");
    QTest::newRow("a runtime folder that differs")
        << QStringLiteral("FOLDER") << QStringLiteral("/tmp");
}

void tst_PlainSocket::findsAFolder()
{
    QFETCH(QString, runtime);
    QFETCH(QString, temporary);
    const QTemporaryDir folder;
    for (const auto& [name, value] : {std::pair(QStringLiteral("XDG_RUNTIME_DIR"), runtime),
             std::pair(QStringLiteral("TMPDIR"), temporary)}) {
        mEnvironment.remove(name);
        if (!value.isEmpty())
            mEnvironment.insert(
                name, QString(value).replace(QStringLiteral("FOLDER"), folder.path()));
    }
    start({QStringLiteral("--tutorial"),
        QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial")});
    QVERIFY(waitForStep(1, {210, 120}));
    // Nothing is left of the socket once the two have found each other.
    QCOMPARE(QDir(folder.path()).entryList({QStringLiteral("vemo*")}, QDir::System), QStringList());
    xdotool({QStringLiteral("windowclose"), windowTitled(QStringLiteral("^Guests$"))});
    QVERIFY(mHost.waitForFinished(kDeadlineMs));
}

void tst_PlainSocket::tellsWhatFails()
{
    start({QStringLiteral("--tutorial"), QStringLiteral("/no/such/program")});
    QVERIFY(mHost.waitForFinished(kDeadlineMs));
    QCOMPARE(mHost.exitCode(), 1);
    QCOMPARE(mHost.readAllStandardError().count('\n'), 1);

    // A program that never connects is not waited for until the end of days.
    start({QStringLiteral("--tutorial"), QStringLiteral("true")});
    QVERIFY(mHost.waitForFinished(kDeadlineMs));
    QCOMPARE(mHost.exitCode(), 1);
    QVERIFY(mHost.readAllStandardError().contains("has ended"));
}

QTEST_GUILESS_MAIN(tst_PlainSocket)
#include "tst_plainsocket.moc"
