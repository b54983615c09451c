// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/packet.h"

#include <QFile>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QtTest>

// The tutorial's end of a host's link, in the test itself: the program that the
// host starts only tells its connection id.
class GuestLink : public QObject {
public:
    GuestLink()
    {
        QFile file(program());
        if (!file.open(QIODevice::WriteOnly))
            qFatal("%s cannot be written", qPrintable(program()));
        file.write(
            QStringLiteral("#!/bin/sh\n[ \"$1\" = --version ] && echo tutorial " PROJECT_VERSION
                           " && exit\necho $1 > '%1.new'; mv '%1.new' '%1'\nexec sleep 100\n")
                .arg(idFile())
                .toUtf8());
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        connect(&mSocket, &QLocalSocket::readyRead, this, [this] {
            // The decoder knows the other direction's tag.
            const QByteArray bytes = mSocket.readAll();
            received += mDecoder.feed(
                QByteArray(bytes).replace(QByteArray("0\x02", 2), QByteArray("1\x02", 2)));
        });
    }

    QString program() const { return mFolder.filePath(QStringLiteral("tutorial")); }

    // Connects to the host that starts the program.
    bool connectToHost()
    {
        if (!QTest::qWaitFor([this] { return QFile::exists(idFile()); }, 10000))
            return false;
        QFile file(idFile());
        if (!file.open(QIODevice::ReadOnly))
            return false;
        mSocket.connectToServer(
            QStringLiteral("vemo") + QString::fromUtf8(file.readAll().trimmed()));
        return mSocket.waitForConnected();
    }
    void send(const QStringList& fields) { mSocket.write(encodedAsGuest(fields)); }

    // The fields of the last message that begins so; nothing when there is none.
    QStringList last(const QString& name, const QString& verb) const
    {
        for (int i = received.size() - 1; i >= 0; --i) {
            if (received.at(i).value(0) == name && received.at(i).value(1) == verb)
                return received.at(i);
        }
        return {};
    }

    QVector<QStringList> received;

private:
    QString idFile() const { return mFolder.filePath(QStringLiteral("id")); }
    static QByteArray encodedAsGuest(const QStringList& fields)
    {
        QByteArray packet = TutorialHost::encodePacket({fields});
        packet[0] = '1';
        return packet;
    }

    QTemporaryDir mFolder;
    QLocalSocket mSocket;
    TutorialHost::PacketDecoder mDecoder;
};
