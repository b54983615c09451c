// SPDX-License-Identifier: MIT
#include "hostkit/link/link.h"

#include <QUuid>

using namespace TutorialHost;
namespace {

constexpr int kAliveMs = 1000;
constexpr int kConnectMs = 10000;
constexpr int kByeMs = 2000;

} // namespace

Link::Link(const QString& program, QObject* parent) : QObject(parent), mProgram(program)
{
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&mServer, &QLocalServer::newConnection, this, &Link::onNewConnection);

    mProcess.setProcessChannelMode(QProcess::ForwardedChannels);
    connect(&mProcess, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            giveUp(tr("The tutorial “%1” could not be started: %2")
                       .arg(mProgram, mProcess.errorString()));
    });
    connect(&mProcess, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
        [this] { giveUp(tr("The tutorial has ended unexpectedly.")); });

    mAliveTimer.setInterval(kAliveMs);
    connect(&mAliveTimer, &QTimer::timeout, this, [this] { send({{QStringLiteral("alive")}}); });

    mConnectTimer.setInterval(kConnectMs);
    mConnectTimer.setSingleShot(true);
    connect(&mConnectTimer, &QTimer::timeout, this,
        [this] { giveUp(tr("The tutorial has not connected.")); });
}

Link::~Link()
{
    disconnect(&mProcess, nullptr, this, nullptr);
    if (mSocket) {
        disconnect(mSocket, nullptr, this, nullptr);
        send({{QStringLiteral("bye")}});
        mSocket->waitForBytesWritten(kByeMs);
        mProcess.waitForFinished(kByeMs);
    }
    if (mProcess.state() != QProcess::NotRunning) {
        mProcess.kill();
        mProcess.waitForFinished();
    }
}

void Link::open()
{
    if (mProcess.state() != QProcess::NotRunning)
        return;
    const QString id = QUuid::createUuid().toString(QUuid::Id128);
    if (!mServer.listen(QStringLiteral("vemo%1").arg(id))) {
        giveUp(tr("The tutorial's server could not be opened: %1").arg(mServer.errorString()));
        return;
    }
    mConnectTimer.start();
    mProcess.start(mProgram, {id});
}

void Link::send(const QVector<QStringList>& messages)
{
    if (mSocket)
        mSocket->write(encodePacket(messages));
}

void Link::onNewConnection()
{
    mSocket = mServer.nextPendingConnection();
    // One tutorial a connection id: nobody else gets in.
    mServer.close();
    mConnectTimer.stop();
    mDecoder = {};
    connect(mSocket, &QLocalSocket::readyRead, this, &Link::onReadyRead);
    connect(mSocket, &QLocalSocket::disconnected, this,
        [this] { giveUp(tr("The tutorial has left the link.")); });
    mAliveTimer.start();
    emit connected();
}

void Link::onReadyRead()
{
    const QVector<QStringList> messages = mDecoder.feed(mSocket->readAll());
    for (const QStringList& fields : messages)
        emit received(fields);
}

void Link::giveUp(const QString& reason)
{
    mServer.close();
    mConnectTimer.stop();
    mAliveTimer.stop();
    if (mSocket) {
        disconnect(mSocket, nullptr, this, nullptr);
        mSocket->deleteLater();
        mSocket = nullptr;
    }
    // Killing a process that still runs ends in finished(), not in a second
    // report.
    const QSignalBlocker blocker(mProcess);
    mProcess.kill();
    mProcess.waitForFinished();
    emit failed(reason);
}
