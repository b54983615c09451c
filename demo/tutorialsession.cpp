#include "demo/tutorialsession.h"

#include "demo/hint.h"
#include "demo/windowregistry.h"
#include "editor/scenarioreader.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>

using namespace Tutorial;

namespace {

// A learner who only passes by, or a window of the tutorial that takes the
// activation for a moment, must not make the tutorial flicker.
constexpr int kHideMs = 300;
constexpr int kReclaimMs = 2000;
// Where the arrow's tip is, seen from the point that is sent.
constexpr QPoint kTip(38, 165);
// Where the middle of a hint of a few lines is, seen from the same point.
constexpr QPoint kHintMiddle(204, 100);

QStringList pushMessage(EnumWindowKind kind)
{
    return {QStringLiteral("windowStack"), QStringLiteral("push"), QString::number(kind)};
}

QStringList positionMessage(EnumWindowKind kind, const QPoint& position)
{
    return {QStringLiteral("windowPosition"), QString::number(kind), QString::number(position.x()),
        QString::number(position.y())};
}

QStringList xyMessage(const QPoint& point)
{
    return {QStringLiteral("indicator"), QStringLiteral("updateXy"), QString::number(point.x()),
        QString::number(point.y())};
}

} // namespace

TutorialSession::TutorialSession(const QString& program, WindowRegistry& registry, QObject* parent)
    : QObject(parent), mRegistry(registry), mObserver(registry), mPlayer(mObserver), mLink(program)
{
    connect(&registry, &WindowRegistry::pushed, this,
        [this](EnumWindowKind kind) { sendUnlessIdle(pushMessage(kind)); });
    connect(&registry, &WindowRegistry::popped, this, [this] {
        sendUnlessIdle({QStringLiteral("windowStack"), QStringLiteral("pop")});
    });
    connect(&registry, &WindowRegistry::moved, this,
        [this](EnumWindowKind kind, const QPoint& position) {
            sendUnlessIdle(positionMessage(kind, position));
            if (mPlayer.isPlaying() && mPlayer.isShown())
                sendUnlessIdle(xyMessage(sentPointOf(mPlayer.step())));
        });

    connect(&registry, &WindowRegistry::minimized, this, [this](EnumWindowKind kind, bool on) {
        if (kind == Window_MainWindow)
            setMinimized(on);
    });

    connect(&mObserver, &HostObserver::happened, &mPlayer, &ScenarioPlayer::onEvent);
    connect(&mObserver, &HostObserver::changed, &mPlayer, &ScenarioPlayer::onStateChanged);

    connect(&mPlayer, &ScenarioPlayer::presetDataRequested, this,
        &TutorialSession::presetDataRequested);
    connect(&mPlayer, &ScenarioPlayer::stepShown, this, [this](const Step& step) {
        sendStep(step);
        emit stepShown(step);
    });
    connect(&mPlayer, &ScenarioPlayer::stepDone, this, &TutorialSession::stepDone);
    connect(&mPlayer, &ScenarioPlayer::notice, this, &TutorialSession::notice);
    connect(&mPlayer, &ScenarioPlayer::finished, this, [this] {
        stop();
        emit finished();
    });

    connect(&mLink, &HostLink::connected, this, [this] { mPlayer.start(mScenario); });
    connect(&mLink, &HostLink::received, this, &TutorialSession::onReceived);
    connect(&mLink, &HostLink::failed, this, [this](const QString& reason) {
        mPlayer.stop();
        mStarted = false;
        emit failed(reason);
    });

    mReclaimTimer.setInterval(kReclaimMs);
    mReclaimTimer.setSingleShot(true);
    mHideTimer.setInterval(kHideMs);
    mHideTimer.setSingleShot(true);
    connect(&mHideTimer, &QTimer::timeout, this, [this] {
        sendUnlessIdle({QStringLiteral("state"), QStringLiteral("hide")});
    });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
        &TutorialSession::onApplicationStateChanged);
}

bool TutorialSession::play(const QString& path)
{
    stop();
    QJsonArray steps;
    QStringList errors;
    TutorialEditor::readScenarioFile(path, &steps, &errors);
    for (const QString& error : qAsConst(errors))
        emit notice(error);
    if (steps.isEmpty()) {
        emit notice(tr("There is no scenario to play in “%1”.").arg(path));
        return false;
    }
    mScenario = Scenario::fromJson(steps);
    mContext = QFileInfo(path).completeBaseName();
    mRegistry.forgetResults();
    if (mLink.isConnected())
        mPlayer.start(mScenario);
    else
        mLink.open();
    return true;
}

void TutorialSession::stop()
{
    mPlayer.stop();
    sendUnlessIdle({QStringLiteral("stop")});
    mStarted = false;
}

QPoint TutorialSession::targetOf(const Step& step) const
{
    if (!step.point) {
        const QWidget* window = mRegistry.window(step.window);
        if (!window)
            window = mRegistry.window(Window_MainWindow);
        return window ? window->mapToGlobal(window->rect().center()) : QPoint();
    }
    // A target in the map tree is given relative to the panel around it.
    const EnumWindowKind origin =
        step.window == Window_MapEditTreeBox ? Window_MapEditLeftPanelItem : step.window;
    return mRegistry.positions().value(origin) + *step.point;
}

QPoint TutorialSession::sentPointOf(const Step& step) const
{
    return targetOf(step) - (step.point ? kTip : kHintMiddle);
}

void TutorialSession::onReceived(const QStringList& fields)
{
    static const QStringList kAnswers = {
        QStringLiteral("next"), QStringLiteral("yes"), QStringLiteral("no")};
    if (!kAnswers.contains(fields.first()))
        return;
    mPlayer.onAnswer(fields.first());
    // The click may have taken the activation to the tutorial's button.
    mReclaimTimer.start();
    if (QGuiApplication::applicationState() != Qt::ApplicationActive)
        activateTopWindow();
}

void TutorialSession::onApplicationStateChanged(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive) {
        mHideTimer.stop();
        sendUnlessIdle({QStringLiteral("state"), QStringLiteral("show")});
        return;
    }
    mHideTimer.start();
    if (mReclaimTimer.isActive())
        activateTopWindow();
}

void TutorialSession::setMinimized(bool on)
{
    if (mMinimized == on)
        return;
    mMinimized = on;
    if (on) {
        // "hide" alone would not do: with the host out of the way the window
        // manager activates one of the tutorial's windows.
        sendUnlessIdle({QStringLiteral("state"), QStringLiteral("hide")});
        sendUnlessIdle({QStringLiteral("stop")});
        mStarted = false;
    } else if (mPlayer.isPlaying() && mPlayer.isShown()) {
        sendStep(mPlayer.step());
    }
}

void TutorialSession::sendStep(const Step& step)
{
    if (mMinimized)
        return;
    // In one packet, so that the tutorial has a text and a target from the
    // first picture that it paints.
    QVector<QStringList> messages;
    if (!mStarted)
        messages = startMessages();
    mStarted = true;
    const QPoint offset = step.point.value_or(QPoint(kNoCoordinate, kNoCoordinate));
    messages << QStringList{QStringLiteral("indicator"), QStringLiteral("update"),
        QString::number(offset.x()), QString::number(offset.y()), QString::number(step.window),
        hintText(step.hint, mContext), QString::number(step.indicatorFlags()),
        QString::number(step.icon)};
    messages << xyMessage(sentPointOf(step));
    mLink.send(messages);
}

QVector<QStringList> TutorialSession::startMessages()
{
    const QWidget* top = mRegistry.topWindow();
    const QScreen* screen = top ? top->screen() : QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    QVector<QStringList> messages{
        {QStringLiteral("start"), QString::number(area.x()), QString::number(area.y()),
            QString::number(area.width()), QString::number(area.height())},
        {QStringLiteral("state"), QStringLiteral("show")}};
    for (EnumWindowKind kind : mRegistry.stack())
        messages << pushMessage(kind);
    const auto& positions = mRegistry.positions();
    for (auto it = positions.begin(); it != positions.end(); ++it)
        messages << positionMessage(it.key(), it.value());
    // The first start takes the activation.
    mReclaimTimer.start();
    return messages;
}

void TutorialSession::sendUnlessIdle(const QStringList& message)
{
    if (mStarted)
        mLink.send({message});
}

void TutorialSession::activateTopWindow()
{
    const QList<EnumWindowKind>& stack = mRegistry.stack();
    for (int i = stack.size() - 1; i >= 0; --i) {
        if (stack.at(i) != Window_Popup) {
            mRegistry.window(stack.at(i))->activateWindow();
            return;
        }
    }
}
