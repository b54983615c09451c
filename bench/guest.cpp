// SPDX-License-Identifier: MIT
#include "bench/guest.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QUuid>

#include <ctime>

namespace {

constexpr int kDeadlineMs = 10000;

} // namespace

Guest::Guest(const QString& program, const QStringList& arguments)
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    if (!mServer.listen(QStringLiteral("vemo") + id))
        qFatal("no server: %s", qUtf8Printable(mServer.errorString()));

    mProcess.setProcessChannelMode(QProcess::ForwardedChannels);
    QElapsedTimer elapsed;
    elapsed.start();
    mProcess.start(program, QStringList(id) + arguments);
    if (!mServer.waitForNewConnection(kDeadlineMs))
        qFatal("%s did not connect", qUtf8Printable(program));
    mConnectMs = elapsed.nsecsElapsed() / 1e6;
    mSocket = mServer.nextPendingConnection();
}

Guest::~Guest()
{
    send({QStringLiteral("bye")});
    if (!mProcess.waitForFinished(kDeadlineMs))
        qFatal("%s did not end", qUtf8Printable(mProcess.program()));
    if (mProcess.exitStatus() != QProcess::NormalExit || mProcess.exitCode() != 0)
        qFatal("%s failed", qUtf8Printable(mProcess.program()));
}

double Guest::processorMs() const
{
    clockid_t clock;
    timespec time;
    if (clock_getcpuclockid(mProcess.processId(), &clock) != 0 || clock_gettime(clock, &time) != 0)
        qFatal("%s has ended", qUtf8Printable(mProcess.program()));
    return time.tv_sec * 1e3 + time.tv_nsec / 1e6;
}

double Guest::peakMiB() const
{
    return kiBOf("status", "VmHWM") / 1024;
}

double Guest::memoryMiB() const
{
    return kiBOf("smaps_rollup", "Anonymous") / 1024;
}

QByteArray Guest::packet(const QStringList& messages)
{
    return "0\x02" + messages.join(QChar(0x02)).toUtf8().replace('|', '\x01') + '\0';
}

void Guest::send(const QStringList& messages)
{
    QByteArray packets;
    for (const QString& message : messages)
        packets += packet({message});
    write(packets);
    while (!flush(kDeadlineMs)) { }
}

void Guest::write(const QByteArray& bytes)
{
    mSocket->write(bytes);
}

bool Guest::flush(int timeoutMs)
{
    return mSocket->bytesToWrite() == 0
        || (mSocket->waitForBytesWritten(timeoutMs) && mSocket->bytesToWrite() == 0);
}

QByteArray Guest::receive(int timeoutMs)
{
    if (mSocket->bytesAvailable() == 0 && !mSocket->waitForReadyRead(timeoutMs)
        && mSocket->state() != QLocalSocket::ConnectedState) {
        mProcess.waitForFinished(kDeadlineMs);
        qFatal("%s has ended with %d", qUtf8Printable(mProcess.program()), mProcess.exitCode());
    }
    return mSocket->readAll();
}

double Guest::kiBOf(const char* file, const char* entry) const
{
    QFile status(QStringLiteral("/proc/%1/%2").arg(mProcess.processId()).arg(QLatin1String(file)));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("%s has ended", qUtf8Printable(mProcess.program()));
    const QRegularExpression line(QStringLiteral("^%1:\\s*(\\d+) kB").arg(QLatin1String(entry)),
        QRegularExpression::MultilineOption);
    return line.match(QString::fromLatin1(status.readAll())).captured(1).toDouble();
}
