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
    QFile status(QStringLiteral("/proc/%1/status").arg(mProcess.processId()));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("%s has ended", qUtf8Printable(mProcess.program()));
    static const QRegularExpression peak(QStringLiteral("VmHWM:\\s*(\\d+) kB"));
    return peak.match(QString::fromLatin1(status.readAll())).captured(1).toDouble() / 1024;
}

void Guest::send(const QStringList& messages)
{
    for (const QString& message : messages) {
        QByteArray packet = "0\x02" + message.toUtf8() + '\0';
        mSocket->write(packet.replace('|', '\x01'));
    }
    mSocket->flush();
}
