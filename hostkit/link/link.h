// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/packet.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QTimer>

namespace TutorialHost {

// The host's end of the link: starts the tutorial as a process of its own with
// a fresh connection id, serves it through a local server that only this user
// may connect to, keeps it alive, and sees it off with "bye".
class Link : public QObject {
    Q_OBJECT

public:
    // Why there is no tutorial.
    enum class Failure { NotStarted, WrongVersion, Lost };

    // program: path or name of the tutorial's executable. arguments: what it is
    // given behind the connection id.
    explicit Link(
        const QString& program, const QStringList& arguments = {}, QObject* parent = nullptr);
    ~Link() override;

    // Has the program's version asked for before it is started: its first two
    // numbers have to be those of this one, "0.1" for example.
    void require(const QString& version) { mVersion = version; }

    // Why failed() was emitted last.
    Failure failure() const { return mFailure; }
    bool isConnected() const { return mSocket; }
    // Process id of the running tutorial; 0 when there is none.
    qint64 processId() const { return mProcess.processId(); }

    // Starts the tutorial unless it runs already. connected() or failed() tells
    // how that went.
    void open();
    // Sends the messages, given as their fields, in one packet and one write.
    // Without a connection they are dropped.
    void send(const QVector<QStringList>& messages);

signals:
    void connected();
    void received(const QStringList& fields);
    // The tutorial could not be started, it ended without being told to, or it
    // was ended because it gave no sign of life for five seconds.
    // open() starts another one.
    void failed(const QString& reason);

private:
    void onNewConnection();
    void onReadyRead();
    void onVersionTold();
    void onAliveTick();
    void start();
    void giveUp(Failure failure, const QString& reason);

    QString mProgram;
    QStringList mArguments;
    QString mVersion;
    Failure mFailure = Failure::Lost;
    QLocalServer mServer;
    QProcess mProcess;
    QProcess mVersionProcess;
    QPointer<QLocalSocket> mSocket;
    PacketDecoder mDecoder;
    QTimer mAliveTimer;
    QTimer mConnectTimer;
    // Ticks of the timer above since the tutorial was heard last. Ticks, not
    // time: a host that was asleep itself has not listened.
    int mSilentTicks = 0;
};

} // namespace TutorialHost
