// SPDX-License-Identifier: MIT
#include "tests/support/testhost.h"

#include <QElapsedTimer>
#include <QtTest>

namespace {

constexpr int kDeadlineMs = 20000;

bool hasEnded(QProcess* process)
{
    return process->state() == QProcess::NotRunning;
}

} // namespace

// The real program as its host sees it: the process and the bytes.
class tst_Process : public QObject {
    Q_OBJECT

private slots:
    void emptyConnectionId();
    void answersWithoutADisplay();
    void aliveEverySecond();
    void byeEndsIt_data();
    void byeEndsIt();
    void silenceEndsIt();
};

void tst_Process::emptyConnectionId()
{
    TestHost host{QString()};
    QVERIFY(host.startProgram({QString(), host.connectionId()}));
    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(&host.process()), kDeadlineMs);
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QCOMPARE(host.connections(), 0);
}

void tst_Process::answersWithoutADisplay()
{
    const auto outputOf = [](const QStringList& arguments) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("DISPLAY"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        program.setProcessEnvironment(environment);
        program.start(
            QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial"), arguments);
        if (!program.waitForFinished(kDeadlineMs) || program.exitStatus() != QProcess::NormalExit
            || program.exitCode() != 0)
            return QByteArray("failed");
        return program.readAllStandardOutput();
    };
    QCOMPARE(outputOf({QStringLiteral("--version")}), QByteArray("tutorial " PROJECT_VERSION "\n"));
    QVERIFY(outputOf({QStringLiteral("--help")}).startsWith("Usage: tutorial "));
    // Behind a connection id it is nothing but a further argument.
    QCOMPARE(outputOf({QStringLiteral("id"), QStringLiteral("--version")}), QByteArray("failed"));
}

void tst_Process::aliveEverySecond()
{
    TestHost host;
    QVERIFY(host.startAndConnect());
    QElapsedTimer clock;
    clock.start();
    host.send({{QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"),
        QStringLiteral("800"), QStringLiteral("600")}});
    const QByteArray alive("1\2alive\0", 8);
    QTRY_COMPARE_WITH_TIMEOUT(host.receivedBytes(), alive + alive + alive, kDeadlineMs);
    QVERIFY2(clock.elapsed() > 2000 && clock.elapsed() < 6000,
        qPrintable(QStringLiteral("three in %1 ms").arg(clock.elapsed())));
}

void tst_Process::byeEndsIt_data()
{
    QTest::addColumn<QList<QByteArray>>("writes");
    QTest::newRow("at once") << QList<QByteArray>{bytes("0\2bye\0")};
    QTest::newRow("while a tutorial runs, with more behind it")
        << QList<QByteArray>{bytes("0\2start\2indicator\1update\1"
                                   "1\1"
                                   "1\1"
                                   "0\1hint\1"
                                   "3\1"
                                   "0\0"),
               bytes("0\2bye\2start\0"
                     "0\2start\0")};
    // A burst ends with what has arrived, however long the reads are.
    QTest::newRow("after a full read of something else")
        << QList<QByteArray>{QByteArray(4096, 'x'), bytes("0\2bye\0")};
    QTest::newRow("behind a packet that is too long")
        << QList<QByteArray>{"0\2" + QByteArray(17 * 1024 * 1024, 'x')
               + bytes("\0"
                       "0\2bye\0")};
    QTest::newRow("unless it stands behind what is no packet")
        << QList<QByteArray>{QByteArray(8192, 'x') + bytes("0\2bye\0"), bytes("0\2bye\0")};
    QTest::newRow("over two reads") << QList<QByteArray>{bytes("0\2start\0"
                                                               "0\2b"),
        bytes("ye\0")};
}

void tst_Process::byeEndsIt()
{
    QFETCH(QList<QByteArray>, writes);
    TestHost host;
    QVERIFY(host.startAndConnect());
    for (const QByteArray& bytes : writes) {
        host.sendBytes(bytes);
        // The next "alive" shows that the write before it has been read.
        const int before = host.receivedBytes().size();
        if (&bytes != &writes.last())
            QTRY_VERIFY_WITH_TIMEOUT(host.receivedBytes().size() > before, kDeadlineMs);
    }
    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(&host.process()), kDeadlineMs);
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QCOMPARE(host.receivedWithoutAlive(), QByteArray());
}

void tst_Process::silenceEndsIt()
{
    // One is refused and never hears anything, one loses its connection at once
    // and goes on writing, one hears its last at 2 seconds.
    TestHost refused;
    TestHost deserted;
    TestHost silent;
    QElapsedTimer clock;
    clock.start();
    refused.process().setProcessChannelMode(QProcess::SeparateChannels);
    const QString nobody = TestHost::randomId();
    QVERIFY(refused.startProgram({nobody}));
    QVERIFY(deserted.startAndConnect());
    deserted.hangUp();
    QVERIFY(silent.startAndConnect());
    QTRY_COMPARE_WITH_TIMEOUT(silent.receivedBytes().size(), 16, kDeadlineMs);
    silent.sendBytes("x");
    const qint64 lastSign = clock.elapsed();

    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(&refused.process()), 45000);
    const qint64 refusedMs = clock.elapsed();
    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(&deserted.process()), 15000);
    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(&silent.process()), 15000);
    const qint64 silentMs = clock.elapsed() - lastSign;
    for (qint64 ms : {refusedMs, silentMs}) {
        QVERIFY2(ms > 28000 && ms < 36000,
            qPrintable(QStringLiteral("refused %1 ms, silent %2 ms").arg(refusedMs).arg(silentMs)));
    }
    QCOMPARE(refused.process().exitCode(), 0);
    const QByteArray complaint = refused.process().readAllStandardError();
    QVERIFY2(complaint.count("vemo" + nobody.toLatin1() + " cannot be reached: ") == 1, complaint);
    QCOMPARE(deserted.process().exitCode(), 0);
    QCOMPARE(silent.process().exitCode(), 0);
    QVERIFY(silent.receivedBytes().size() >= 8 * 28);
}

QTEST_GUILESS_MAIN(tst_Process)
#include "tst_process.moc"
