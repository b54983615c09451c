// SPDX-License-Identifier: MIT
#include "tests/support/testhost.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QTest>
#include <QUuid>

namespace {

constexpr int kDeadlineMs = 20000;

} // namespace

QString TestHost::randomId()
{
    return QUuid::createUuid().toString(QUuid::Id128);
}

TestHost::TestHost(const QString& connectionId) : mConnectionId(connectionId)
{
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    if (!mServer.listen(QStringLiteral("vemo%1").arg(mConnectionId)))
        qFatal("the test's server does not listen");
    connect(&mServer, &QLocalServer::newConnection, this, [this] {
        QLocalSocket* socket = mServer.nextPendingConnection();
        connect(socket, &QLocalSocket::readyRead, this,
            [this, socket] { mReceived += socket->readAll(); });
        mSocket = socket;
        ++mConnections;
    });
    mProcess.setProcessChannelMode(QProcess::ForwardedChannels);
}

TestHost::~TestHost()
{
    if (mProcess.state() == QProcess::NotRunning)
        return;
    mProcess.kill();
    mProcess.waitForFinished();
}

QByteArray TestHost::receivedWithoutAlive() const
{
    QByteArray rest = mReceived;
    return rest.replace(::bytes("1\2alive\0"), QByteArray());
}

void TestHost::reset()
{
    mReceived.clear();
    mConnections = 0;
}

bool TestHost::startProgram(const QStringList& arguments)
{
    mProcess.start(QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial"), arguments);
    return mProcess.waitForStarted(kDeadlineMs);
}

bool TestHost::startAndConnect()
{
    return startProgram({mConnectionId})
        && QTest::qWaitFor([this] { return mConnections > 0; }, kDeadlineMs);
}

void TestHost::sendBytes(const QByteArray& data)
{
    mSocket->write(data);
    mSocket->flush();
}

void TestHost::send(const QList<QStringList>& messages)
{
    sendBytes(packet(messages));
}

void TestHost::hangUp()
{
    delete mSocket;
}

QByteArray TestHost::packet(const QList<QStringList>& messages)
{
    QByteArray data("0");
    for (const QStringList& fields : messages)
        data += '\2' + fields.join(QChar(0x01)).toUtf8();
    return data + '\0';
}
