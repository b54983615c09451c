// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QProcess>

class QLocalSocket;

// A program that connects to a host, and the host that it connects to, which
// does nothing but measure. It ends with its Guest.
class Guest {
public:
    // Starts the program, with the connection id and then these arguments.
    explicit Guest(const QString& program, const QStringList& arguments = {});
    ~Guest();

    // Milliseconds from the start of the program until it was connected.
    double connectMs() const { return mConnectMs; }
    // Processor time of all its threads so far, in milliseconds.
    double processorMs() const;
    // The most memory that it held at a time, in MiB.
    double peakMiB() const;
    // The memory of its own that it holds now, without files, in MiB.
    double memoryMiB() const;

    // A packet of messages, the fields of each separated by '|'.
    static QByteArray packet(const QStringList& messages);
    // Writes each message in a packet of its own.
    void send(const QStringList& messages);
    // Begins to write bytes.
    void write(const QByteArray& bytes);
    // Waits so long for the next of them to leave. Returns whether all have left.
    bool flush(int timeoutMs);
    // What has arrived; when that is nothing, waits so long for something.
    QByteArray receive(int timeoutMs);

private:
    // An entry of one of its files in /proc.
    double kiBOf(const char* file, const char* entry) const;

    QLocalServer mServer;
    QProcess mProcess;
    QLocalSocket* mSocket = nullptr;
    double mConnectMs = 0;
};
