#include "demo/hostlink.h"

#include <QStandardPaths>
#include <QtTest>

#include <csignal>

// The host's end of the link, with the real tutorial at the other one.
class tst_HostLink : public QObject {
    Q_OBJECT

private slots:
    void playsAndSaysGoodbye();
    void aCrashIsReportedOnceAndRecovered();
    void aProgramThatIsNotThere();
    void aProgramThatEndsAtOnce();
};

namespace {

QString tutorial()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial");
}

bool isRunning(qint64 processId)
{
    return kill(pid_t(processId), 0) == 0;
}

} // namespace

void tst_HostLink::playsAndSaysGoodbye()
{
    auto link = std::make_unique<HostLink>(tutorial());
    QSignalSpy connected(link.get(), &HostLink::connected);
    QSignalSpy received(link.get(), &HostLink::received);
    link->open();
    QTRY_COMPARE_WITH_TIMEOUT(connected.size(), 1, 20000);
    QVERIFY(link->isConnected());
    link->open();
    // The tutorial is alive, and takes what is sent.
    QTRY_VERIFY_WITH_TIMEOUT(!received.isEmpty(), 20000);
    QCOMPARE(received.first().first().toStringList(), {QStringLiteral("alive")});
    QCOMPARE(connected.size(), 1);

    const qint64 processId = link->processId();
    QVERIFY(isRunning(processId));
    QElapsedTimer time;
    time.start();
    link.reset();
    QVERIFY(!isRunning(processId));
    // It went because of "bye", not because it was killed in the end.
    QVERIFY2(time.elapsed() < 1500, qPrintable(QString::number(time.elapsed())));
}

void tst_HostLink::aCrashIsReportedOnceAndRecovered()
{
    HostLink link(tutorial());
    QSignalSpy connected(&link, &HostLink::connected);
    QSignalSpy failed(&link, &HostLink::failed);
    link.open();
    QTRY_COMPARE_WITH_TIMEOUT(connected.size(), 1, 20000);
    kill(pid_t(link.processId()), SIGKILL);
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(!link.isConnected());
    link.send({{QStringLiteral("stop")}});

    link.open();
    QTRY_COMPARE_WITH_TIMEOUT(connected.size(), 2, 20000);
    QCOMPARE(failed.size(), 1);
}

void tst_HostLink::aProgramThatIsNotThere()
{
    HostLink link(QStringLiteral("/no/such/program"));
    QSignalSpy failed(&link, &HostLink::failed);
    link.open();
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(failed.first().first().toString().contains(QStringLiteral("/no/such/program")));
}

void tst_HostLink::aProgramThatEndsAtOnce()
{
    HostLink link(QStandardPaths::findExecutable(QStringLiteral("true")));
    QSignalSpy failed(&link, &HostLink::failed);
    link.open();
    QTRY_COMPARE(failed.size(), 1);
}

QTEST_GUILESS_MAIN(tst_HostLink)
#include "tst_hostlink.moc"
