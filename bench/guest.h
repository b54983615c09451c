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

    // Writes each message, its fields separated by '|', in a packet of its own.
    void send(const QStringList& messages);

private:
    QLocalServer mServer;
    QProcess mProcess;
    QLocalSocket* mSocket = nullptr;
    double mConnectMs = 0;
};
