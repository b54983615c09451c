// SPDX-License-Identifier: MIT
#include "tutorial/runtime/tutorialmanager.h"

#include "overlay/tutorialindicator.h"
#include "overlay/tutoriallog.h"

#include <QApplication>
#include <QLocalSocket>

namespace {

constexpr int kTickMs = 100;
// Bytes of one read. What a host floods the link with waits in the system, and
// between two reads the timers have their turn.
constexpr int kLargestRead = 4 * 1024;

QString joined(const QStringList& fields)
{
    return fields.join(QChar(0x01));
}

} // namespace

TutorialManager* TutorialManager::mInstance = nullptr;

TutorialManager::TutorialManager(QApplication* application) : mApplication(application)
{
    if (!mInstance)
        mInstance = this;

    QString connectionId = QStringLiteral("20160802-1100");
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() >= 2)
        connectionId = arguments.at(1);
    if (connectionId.isEmpty()) {
        deleteLater();
        return;
    }

    mSocket = new QLocalSocket(this);
    mSocket->setReadBufferSize(kLargestRead);
    connect(mSocket, SIGNAL(readyRead()), this, SLOT(onReadyRead()));
    connect(mSocket, SIGNAL(connected()), this, SLOT(onConnected()));
    connect(mSocket, &QLocalSocket::errorOccurred, this, &TutorialManager::onSocketError);
    // Without its host an arrow would point at an empty desktop.
    connect(mSocket, &QLocalSocket::disconnected, this, &TutorialManager::stop);
    connect(this, &TutorialManager::received, this, &TutorialManager::onReceived);
    mSocket->connectToServer(QStringLiteral("vemo%1").arg(connectionId), QIODevice::ReadWrite);
    connect(mApplication, SIGNAL(applicationStateChanged(Qt::ApplicationState)), this,
        SLOT(onApplicationStateChanged(Qt::ApplicationState)));
    mTimerId = startTimer(kTickMs, Qt::CoarseTimer);
}

TutorialManager::~TutorialManager()
{
    if (mInstance == this)
        mInstance = nullptr;
    delete mSocket;
    mSocket = nullptr;
    if (mTimerId != 0)
        killTimer(mTimerId);
    mTimerId = 0;
    // With Qt 6 quit() would first ask every window whether it may be closed,
    // and an authoring tool with unsaved work would say no.
    QCoreApplication::exit();
}

void TutorialManager::init() { }

void TutorialManager::close()
{
    if (mSocket) {
        // This may run inside of the socket's own signal, so the socket has to
        // live until the event loop is reached again.
        mSocket->disconnect(this);
        mSocket->abort();
        mSocket->deleteLater();
        mSocket = nullptr;
    }
    if (mIndicator) {
        mIndicator->close();
        mIndicator = nullptr;
    }
    if (mLog) {
        mLog->close();
        mLog = nullptr;
    }
    deleteLater();
}

void TutorialManager::start()
{
    if (mRunning)
        return;
    mRunning = true;
    mWindowStack.clear();
    if (mIndicator) {
        mIndicator->showTooltip();
        mIndicator->showButton();
    } else {
        mIndicator = new TutorialIndicator(nullptr, this);
    }
    if (mLog)
        mLog->show();
    else
        mLog = new TutorialLog(nullptr, this);
}

void TutorialManager::stop()
{
    if (!mRunning)
        return;
    mRunning = false;
    hideOverlay();
}

void TutorialManager::setupTutorial()
{
    if (!mScenarioHandle)
        return;
    mScenarioHandle = nullptr;
    mScenarioStepIndex = -1;
}

int TutorialManager::passedTime() const
{
    return mIndicator ? static_cast<int>(mIndicator->GetElapsed()) : 0;
}

void TutorialManager::startFromActionIndexList(const QList<int>& indexList)
{
    QStringList indices;
    for (int index : indexList)
        indices << QString::number(index);
    send(joined({QStringLiteral("start"), joined(indices)}));
}

void TutorialManager::requestUntr(const QString& first, const QString& second)
{
    send(joined({QStringLiteral("untr"), first, second}));
}

void TutorialManager::requestCoordinates()
{
    send(joined({QStringLiteral("coordinates"), QStringLiteral("request")}));
}

void TutorialManager::sendEditor(const QStringList& fields)
{
    send(joined(QStringList(QStringLiteral("editor")) + fields));
}

void TutorialManager::requestCheckMapEditTreeBox(bool followsTreeBox)
{
    Q_UNUSED(followsTreeBox)
}

bool TutorialManager::isToBeShown() const
{
    return !mHiddenByHost || mApplicationActive;
}

void TutorialManager::updateVisibility()
{
    if (mRunning && isToBeShown())
        showOverlay();
    else
        hideOverlay();
}

void TutorialManager::updateIndicator(int x, int y, Tutorial::EnumWindowKind windowKind,
    const QString& hint, int flags, Tutorial::EnumIconKind iconKind)
{
    send(joined({QStringLiteral("indicator"), QStringLiteral("updateXYFollowWindow"),
        QString::number(x), QString::number(y), QString::number(windowKind)}));
    if (mIndicator && !isHostLost())
        pointIndicator(x, y, windowKind, hint, flags, iconKind);
}

void TutorialManager::onApplicationStateChanged(Qt::ApplicationState state)
{
    if (state != Qt::ApplicationActive && state != Qt::ApplicationInactive)
        return;
    mApplicationActive = state == Qt::ApplicationActive;
    updateVisibility();
}

void TutorialManager::pointIndicator(int x, int y, Tutorial::EnumWindowKind windowKind,
    const QString& hint, int flags, Tutorial::EnumIconKind iconKind)
{
    mIndicator->setTargetWindowOffset(x, y, windowKind, flags & Tutorial::HideArrowFlag);
    mIndicator->setHint(hint);
    mIndicator->init(flags & Tutorial::ShowNextFlag, flags & Tutorial::ShowYesNoFlag);
    mIndicator->setIconKind(iconKind);
    mIndicator->showTooltip();
}

void TutorialManager::showOverlay()
{
    if (mIndicator) {
        mIndicator->showTooltip();
        mIndicator->showButton();
    }
    if (mLog)
        mLog->show();
}

void TutorialManager::hideOverlay()
{
    if (mIndicator) {
        mIndicator->hideTooltip();
        mIndicator->hideButton();
    }
    if (mLog)
        mLog->hide();
}
