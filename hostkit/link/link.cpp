// SPDX-License-Identifier: MIT
#include "hostkit/link/link.h"

#include "tutorial/vocabulary/qtcompat.h"

#include <QUuid>

using namespace TutorialHost;
namespace {

constexpr int kAliveMs = 1000;
constexpr int kConnectMs = 10000;
constexpr int kByeMs = 2000;
constexpr int kSilentTicks = 5; // of kAliveMs

// The first two numbers of "tutorial 0.1.2".
QStringList majorAndMinor(const QString& version)
{
    return version.trimmed().section(QLatin1Char(' '), -1).split(QLatin1Char('.')).mid(0, 2);
}

} // namespace

Link::Link(const QString& program, const QStringList& arguments, QObject* parent)
    : QObject(parent), mProgram(program), mArguments(arguments)
{
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&mServer, &QLocalServer::newConnection, this, &Link::onNewConnection);

    mProcess.setProcessChannelMode(QProcess::ForwardedChannels);
    for (QProcess* process : {&mProcess, &mVersionProcess}) {
        connect(
            process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
                if (error == QProcess::FailedToStart)
                    giveUp(Failure::NotStarted,
                        tr("The tutorial “%1” could not be started: %2")
                            .arg(mProgram, process->errorString()));
            });
    }
    connect(&mProcess, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
        [this] { giveUp(Failure::Lost, tr("The tutorial has ended unexpectedly.")); });
    connect(&mVersionProcess, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
        &Link::onVersionTold);

    mAliveTimer.setInterval(kAliveMs);
    connect(&mAliveTimer, &QTimer::timeout, this, &Link::onAliveTick);

    mConnectTimer.setInterval(kConnectMs);
    mConnectTimer.setSingleShot(true);
    connect(&mConnectTimer, &QTimer::timeout, this,
        [this] { giveUp(Failure::Lost, tr("The tutorial has not connected.")); });
}

Link::~Link()
{
    disconnect(&mProcess, nullptr, this, nullptr);
    disconnect(&mVersionProcess, nullptr, this, nullptr);
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
    if (mProcess.state() != QProcess::NotRunning || mVersionProcess.state() != QProcess::NotRunning)
        return;
    if (mVersion.isEmpty()) {
        start();
        return;
    }
    mConnectTimer.start();
    mVersionProcess.start(mProgram, {QStringLiteral("--version")});
}

void Link::onVersionTold()
{
    const QString version = QString::fromUtf8(mVersionProcess.readAllStandardOutput()).trimmed();
    if (majorAndMinor(version) == majorAndMinor(mVersion)) {
        start();
        return;
    }
    giveUp(Failure::WrongVersion,
        tr("The tutorial “%1” is not of version %2 (it says “%3”).")
            .arg(mProgram, mVersion, version));
}

void Link::start()
{
    const QString id = QUuid::createUuid().toString(QUuid::Id128);
    if (!mServer.listen(QStringLiteral("vemo%1").arg(id))) {
        giveUp(Failure::Lost,
            tr("The tutorial's server could not be opened: %1").arg(mServer.errorString()));
        return;
    }
    mConnectTimer.start();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Its debug lines are nothing to the host's output.
    const QString rules = QStringLiteral("QT_LOGGING_RULES");
    environment.insert(
        rules, QStringLiteral("*.debug=false;") + environment.value(rules, QString()));
    // Another Qt, or a host that asks for it in its code, would scale in another
    // way, and points would not agree.
    const QString scaling = QStringLiteral("QT_ENABLE_HIGHDPI_SCALING");
    if (!environment.contains(scaling)
        && !environment.contains(QStringLiteral("QT_AUTO_SCREEN_SCALE_FACTOR")))
        environment.insert(scaling, QString::number(int(scalesByDensity())));
    mProcess.setProcessEnvironment(environment);
    mProcess.start(mProgram, QStringList(id) + mArguments);
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
    mSilentTicks = 0;
    connect(mSocket, &QLocalSocket::readyRead, this, &Link::onReadyRead);
    connect(mSocket, &QLocalSocket::disconnected, this,
        [this] { giveUp(Failure::Lost, tr("The tutorial has left the link.")); });
    mAliveTimer.start();
    emit connected();
}

void Link::onAliveTick()
{
    if (mSilentTicks++ >= kSilentTicks)
        giveUp(Failure::Lost, tr("The tutorial has given no sign of life."));
    else
        send({{QStringLiteral("alive")}});
}

void Link::onReadyRead()
{
    mSilentTicks = 0;
    const QVector<QStringList> messages = mDecoder.feed(mSocket->readAll());
    for (const QStringList& fields : messages)
        emit received(fields);
}

void Link::giveUp(Failure failure, const QString& reason)
{
    mFailure = failure;
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
    for (QProcess* process : {&mVersionProcess, &mProcess}) {
        const QSignalBlocker blocker(process);
        process->kill();
        process->waitForFinished();
    }
    emit failed(reason);
}
