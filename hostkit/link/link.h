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
    // program: path or name of the tutorial's executable.
    explicit Link(const QString& program, QObject* parent = nullptr);
    ~Link() override;

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
    // The tutorial could not be started, or it ended without being told to.
    // open() starts another one.
    void failed(const QString& reason);

private:
    void onNewConnection();
    void onReadyRead();
    void giveUp(const QString& reason);

    QString mProgram;
    QLocalServer mServer;
    QProcess mProcess;
    QPointer<QLocalSocket> mSocket;
    PacketDecoder mDecoder;
    QTimer mAliveTimer;
    QTimer mConnectTimer;
};

} // namespace TutorialHost
