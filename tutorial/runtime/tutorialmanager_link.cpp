// SPDX-License-Identifier: MIT
#include "tutorial/runtime/tutorialmanager.h"

#include "overlay/tutorialindicator.h"
#include "tutorial/runtime/peercredentials.h"
#include "tutorial/runtime/waitingbytes.h"

#include <QLocalSocket>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace {

constexpr char kOwnTag = '1';
constexpr char kMessageSeparator = 0x02;
constexpr QChar kFieldSeparator = QChar(0x01);
constexpr int kSilentTicks = 300; // about 30 seconds
constexpr int kAliveTicks = 10;
// Bytes that wait for the host to read them; whole messages above that are lost.
// A scenario whose hints fill them would hold a million steps.
constexpr qint64 kMostUnread = 64 * 1024 * 1024;

const QString kBye = QStringLiteral("bye");

bool isBye(QStringView message)
{
    return message.startsWith(kBye)
        && (message.size() == kBye.size() || message.at(kBye.size()) == kFieldSeparator);
}

// What stands between the separators, empty parts too. The text is not copied.
QVector<QStringView> parts(QStringView text, QChar separator)
{
    QVector<QStringView> found;
    for (qsizetype end; (end = text.indexOf(separator)) >= 0; text = text.mid(end + 1))
        found << text.left(end);
    return found << text;
}

// A field that is no number counts as 0.
int numberIn(QStringView field)
{
    return field.toString().toInt();
}

int saturated(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(
        value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace

void TutorialManager::send(const QString& message)
{
    if (!mSocket || !mConnected || isHostLost())
        return;
    const bool isBehind = mSocket->bytesToWrite() > kMostUnread;
    if (isBehind && !mHostIsBehind)
        qWarning("The host does not read: what is sent to it is dropped.");
    mHostIsBehind = isBehind;
    if (isBehind)
        return;
    QByteArray packet;
    packet += kOwnTag;
    packet += kMessageSeparator;
    packet += message.toUtf8();
    packet += '\0';
    mSocket->write(packet);
}

QString TutorialManager::getEscapedString(const QString& text)
{
    static const QRegularExpression special(QStringLiteral("([\"\\\\])"));
    return QString(text).replace(special, QStringLiteral("\\\\1"));
}

QString TutorialManager::getUnescapedString(const QString& text)
{
    static const QRegularExpression escaped(
        QStringLiteral("[\\\\](.)"), QRegularExpression::DotMatchesEverythingOption);
    return QString(text).replace(escaped, QStringLiteral("\\1"));
}

void TutorialManager::onConnected()
{
    QString user;
    if (isPeerOfThisUser(mSocket->socketDescriptor(), &user)) {
        mConnected = true;
        return;
    }
    qWarning("The server %s belongs to %s: it is not talked to.",
        qUtf8Printable(mSocket->serverName()), qUtf8Printable(user));
    // From here on all is as if the server had refused. The socket may still be
    // inside of its connectToServer(), which would not survive an abort(): that
    // waits, and whatever arrives until then is heard by nobody.
    mSocket->disconnect(this);
    QMetaObject::invokeMethod(mSocket, &QLocalSocket::abort, Qt::QueuedConnection);
}

void TutorialManager::onSocketError()
{
    if (!mConnected)
        qWarning("The server %s cannot be reached: %s.", qUtf8Printable(mSocket->serverName()),
            qUtf8Printable(mSocket->errorString()));
}

bool TutorialManager::isHostLost() const
{
    return mConnected && mSocket && mSocket->state() == QLocalSocket::UnconnectedState;
}

void TutorialManager::onReadyRead()
{
    const QByteArray data = mSocket->readAll();
    const bool isFull = data.size() >= mSocket->readBufferSize();
    handleRead(data, !isFull || !hasWaitingBytes(mSocket->socketDescriptor()));
}

void TutorialManager::handleRead(const QByteArray& data, bool endsBurst)
{
    mSilenceTicks = 0;
    mPackets.append(data, endsBurst);
    QString text;
    while (mPackets.next(&text)) {
        const QVector<QStringView> messages = parts(text, QLatin1Char(kMessageSeparator));
        for (const QStringView message : messages) {
            if (isBye(message)) {
                close();
                return;
            }
            emit received(message.toString());
            if (!mSocket)
                return; // closed by whoever listened
        }
    }
}

void TutorialManager::timerEvent(QTimerEvent*)
{
    if (!mSocket)
        return;
    if (mSilenceTicks++ >= kSilentTicks - 1) {
        close();
        return;
    }
    if (mAliveTicks++ >= kAliveTicks - 1) {
        mAliveTicks = 0;
        send(QStringLiteral("alive"));
    }
}

void TutorialManager::onReceived(const QString& message)
{
    const Fields fields = parts(message, kFieldSeparator);
    const QStringView name = fields.first();
    if (name == QLatin1String("start")) {
        onStart(fields);
    } else if (name == QLatin1String("stop")) {
        stop();
    } else if (!mRunning) {
        return;
    } else if (name == QLatin1String("windowPosition")) {
        onWindowPosition(fields);
    } else if (name == QLatin1String("windowStack")) {
        onWindowStack(fields);
    } else if (name == QLatin1String("indicator")) {
        onIndicator(fields);
    } else if (name == QLatin1String("state")) {
        onState(fields);
    }
    // The rest asks nothing of this process: "alive" has already done its work
    // by arriving, "contents" is for a process that runs the scenario itself,
    // and the log window shows no text.
}

void TutorialManager::onStart(const Fields& fields)
{
    if (fields.size() >= 5) {
        const int left = numberIn(fields.at(1));
        const int top = numberIn(fields.at(2));
        const int right = saturated(qint64(left) + numberIn(fields.at(3)) - 1);
        const int bottom = saturated(qint64(top) + numberIn(fields.at(4)) - 1);
        mHostRect.setCoords(left, top, right, bottom);
    }
    start();
}

void TutorialManager::onIndicator(const Fields& fields)
{
    if (!mIndicator || fields.size() < 4)
        return;
    const QStringView verb = fields.at(1);
    const int x = numberIn(fields.at(2));
    const int y = numberIn(fields.at(3));
    if (verb == QLatin1String("updateXy")) {
        mIndicator->moveInterpolating(x, y);
    } else if (verb == QLatin1String("update") && fields.size() >= 8) {
        pointIndicator(x, y, static_cast<Tutorial::EnumWindowKind>(numberIn(fields.at(4))),
            fields.at(5).toString(), numberIn(fields.at(6)),
            static_cast<Tutorial::EnumIconKind>(numberIn(fields.at(7))));
    }
}

void TutorialManager::onState(const Fields& fields)
{
    if (!mIndicator || fields.size() < 2)
        return;
    const bool hide = fields.at(1) == QLatin1String("hide");
    if (!hide && fields.at(1) != QLatin1String("show"))
        return;
    mHiddenByHost = hide;
    updateVisibility();
}

void TutorialManager::onWindowStack(const Fields& fields)
{
    if (fields.size() < 2)
        return;
    if (fields.at(1) == QLatin1String("push") && fields.size() >= 3) {
        mWindowStack.append(static_cast<Tutorial::EnumWindowKind>(numberIn(fields.at(2))));
    } else if (fields.at(1) == QLatin1String("pop") && !mWindowStack.isEmpty()) {
        mWindowStack.removeLast();
    }
}

void TutorialManager::onWindowPosition(const Fields& fields)
{
    if (fields.size() < 4)
        return;
    setXy(static_cast<Tutorial::EnumWindowKind>(numberIn(fields.at(1))), numberIn(fields.at(2)),
        numberIn(fields.at(3)));
}
