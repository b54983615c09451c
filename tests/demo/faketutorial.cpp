#include "tests/demo/faketutorial.h"

#include <QCoreApplication>
#include <QUuid>

namespace {

// Name of the test's server.
const char kVariable[] = "TST_FAKETUTORIAL_SERVER";

} // namespace

FakeTutorial::FakeTutorial()
{
    const QString name = QUuid::createUuid().toString(QUuid::Id128);
    if (!mServer.listen(name))
        qFatal("no server: %s", qPrintable(mServer.errorString()));
    qputenv(kVariable, name.toUtf8());
    connect(&mServer, &QLocalServer::newConnection, this, [this] {
        mSocket = mServer.nextPendingConnection();
        connect(mSocket, &QLocalSocket::readyRead, this, [this] {
            mReceived += mSocket->readAll();
            for (int end; (end = mReceived.indexOf('\0')) >= 0; mReceived.remove(0, end + 1)) {
                const QByteArray packet = mReceived.mid(2, end - 2);
                if (packet != "alive")
                    mPackets << QString::fromUtf8(
                        QByteArray(packet).replace("\2", "; ").replace('\1', ' '));
            }
        });
    });
}

void FakeTutorial::send(const QStringList& fields)
{
    mSocket->write("1\2" + fields.join(QChar(1)).toUtf8() + '\0');
}

bool FakeTutorial::isStartedByHost(int argc)
{
    return argc == 2 && qEnvironmentVariableIsSet(kVariable);
}

int FakeTutorial::passThrough(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QLocalSocket host;
    QLocalSocket test;
    const auto pass = [](QLocalSocket& from, QLocalSocket& to) {
        QObject::connect(&from, &QLocalSocket::readyRead, &to, [&] {
            const QByteArray bytes = from.readAll();
            to.write(bytes);
            to.flush();
            if (bytes.endsWith(QByteArray("\2bye\0", 5)))
                QCoreApplication::quit();
        });
        QObject::connect(&from, &QLocalSocket::disconnected, &to, &QCoreApplication::quit);
    };
    pass(host, test);
    pass(test, host);
    test.connectToServer(qEnvironmentVariable(kVariable));
    host.connectToServer(QStringLiteral("vemo") + QString::fromLocal8Bit(argv[1]));
    return QCoreApplication::exec();
}
