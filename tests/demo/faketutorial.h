#pragma once

#include <QApplication>
#include <QByteArray>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStringList>
#include <QtTest>

// The tutorial's end of the link, in the test's hands. The host starts a
// process, and so that is the test's own program once more: started by the
// host, it hands the bytes of the link through to the test.
class FakeTutorial : public QObject {
    Q_OBJECT

public:
    // Takes the place of the tutorial that is started next.
    FakeTutorial();

    // What the host has sent, without "alive": a packet an entry, its messages
    // separated by "; " and their fields by blanks.
    const QStringList& packets() const { return mPackets; }
    void clear() { mPackets.clear(); }
    void send(const QStringList& fields);

    // The main() of a test program.
    template <typename Test>
    static int runTest(int argc, char** argv)
    {
        if (isStartedByHost(argc))
            return passThrough(argc, argv);
        QApplication application(argc, argv);
        Test test;
        return QTest::qExec(&test, argc, argv);
    }

private:
    static bool isStartedByHost(int argc);
    static int passThrough(int argc, char** argv);

    QLocalServer mServer;
    QLocalSocket* mSocket = nullptr;
    QByteArray mReceived;
    QStringList mPackets;
};
