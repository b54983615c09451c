// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QPointer>
#include <QProcess>
#include <QStringList>

class QLocalSocket;

// The bytes of a literal, with the zero bytes in it.
template <int size>
QByteArray bytes(const char (&text)[size])
{
    return QByteArray(text, size - 1);
}

// A host for tests: a server, the bytes of the link, and, when asked for, the
// real program at its other end.
class TestHost : public QObject {
public:
    static QString randomId();
    explicit TestHost(const QString& connectionId = randomId());
    ~TestHost() override;

    QString connectionId() const { return mConnectionId; }
    // Everything that arrived so far.
    const QByteArray& receivedBytes() const { return mReceived; }
    // What arrived but for the packets that say "alive".
    QByteArray receivedWithoutAlive() const;
    // Forgets what arrived, and who connected.
    void reset();
    // How many have connected; messages go to the last one.
    int connections() const { return mConnections; }
    QProcess& process() { return mProcess; }

    // Starts the program with these arguments. Returns whether it started.
    bool startProgram(const QStringList& arguments);
    // The same with this host's connection id, and waits for the connection.
    bool startAndConnect();

    void sendBytes(const QByteArray& data);
    // Sends messages, each a list of fields, in one packet.
    void send(const QList<QStringList>& messages);
    // Closes the connection, as a host does that crashes.
    void hangUp();
    static QByteArray packet(const QList<QStringList>& messages);

private:
    QString mConnectionId;
    QLocalServer mServer;
    QPointer<QLocalSocket> mSocket;
    int mConnections = 0;
    QByteArray mReceived;
    QProcess mProcess;
};
