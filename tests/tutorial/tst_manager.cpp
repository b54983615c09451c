// SPDX-License-Identifier: MIT
#include "overlay/tutorialindicator.h"
#include "overlay/tutoriallog.h"
#include "overlay/tutorialtooltip.h"
#include "tests/support/testhost.h"
#include "tests/support/windows.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalSpy>
#include <QtTest>

#include <limits>
#include <unistd.h>

using namespace Tutorial;

namespace {

// The manager takes its connection id from the application's arguments.
char* arguments[3] = {};

QStringList fields(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QStringList visibleButtons()
{
    QStringList texts;
    for (QPushButton* button : windows<QPushButton>()) {
        if (button->isVisible())
            texts << button->text();
    }
    texts.sort();
    return texts;
}

} // namespace

// The manager in this process at the end of a real socket.
class tst_Manager : public QObject {
    Q_OBJECT

public:
    static inline TestHost* sHost = nullptr;

private slots:
    void init();
    void cleanup();

    void aMessageIsSentOnceConnected();
    void anotherUsersServer();
    void aHostThatDoesNotRead();
    void aReadThatEndsBehindATag();
    void messagesBeforeStartAreIgnored();
    void startStopStart();
    void hostRect();
    void windowStack();
    void windowPosition();
    void shortMessagesChangeNothing();
    void target();
    void hiddenByTheHost();
    void hiddenWithoutAHost();

private:
    void receive(const QStringList& message);

    TutorialManager* mManager = nullptr;
};

void tst_Manager::init()
{
    mManager = new TutorialManager(qApp);
    QTRY_COMPARE(sHost->connections(), 1);
}

void tst_Manager::cleanup()
{
    mManager->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!TutorialManager::mInstance);
    for (QWidget* window : QApplication::topLevelWidgets())
        QVERIFY(!window->isVisible());
    qDeleteAll(windows<TutorialIndicator>());
    qDeleteAll(windows<TutorialTooltip>());
    qDeleteAll(windows<TutorialLog>());
    sHost->reset();
}

void tst_Manager::receive(const QStringList& message)
{
    mManager->handleRead(TestHost::packet({message}));
}

void tst_Manager::aMessageIsSentOnceConnected()
{
    mManager->send(QStringLiteral("next"));
    mManager->startFromActionIndexList({0, 3, 1});
    mManager->startFromActionIndexList({});
    mManager->requestUntr(QStringLiteral("hint"), QStringLiteral("50%2 \"x\""));
    mManager->requestCoordinates();
    mManager->updateIndicator(1, -2, Window_Options, QString(), 0, Icon_click);
    const QByteArray expected = bytes("1\2next\0"
                                      "1\2start\1"
                                      "0\1"
                                      "3\1"
                                      "1\0"
                                      "1\2start\1\0"
                                      "1\2untr\1hint\1"
                                      "50%2 \"x\"\0"
                                      "1\2coordinates\1request\0"
                                      "1\2indicator\1updateXYFollowWindow\1"
                                      "1\1-2\1"
                                      "64\0");
    QTRY_COMPARE(sHost->receivedWithoutAlive(), expected);
}

// It gets no word, nothing that it says is heard, and the process ends as it
// does without a server.
void tst_Manager::anotherUsersServer()
{
    if (geteuid() != 0)
        QSKIP("only root can listen as another user");
    QByteArray id = TestHost::randomId().toLatin1();
    const QScopedValueRollback<char*> argument(arguments[1], id.data());
    QLocalServer server;
    QVERIFY(seteuid(65534) == 0);
    const bool isListening = server.listen(QStringLiteral("vemo") + QLatin1String(id));
    QVERIFY(seteuid(0) == 0);
    QVERIFY2(isListening, qPrintable(server.errorString()));

    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(QStringLiteral("%1.*user 65534").arg(QLatin1String(id))));
    auto* manager = new TutorialManager(qApp);
    QSignalSpy ended(manager, &QObject::destroyed);
    QVERIFY(server.waitForNewConnection(5000));
    QLocalSocket* host = server.nextPendingConnection();
    host->write(TestHost::packet({{QStringLiteral("start")}}));
    host->flush();
    QTRY_COMPARE(host->state(), QLocalSocket::UnconnectedState);
    QVERIFY(ended.isEmpty());
    for (int tick = 0; tick < 300; ++tick) {
        QTimerEvent event(0);
        QCoreApplication::sendEvent(manager, &event);
    }
    QTRY_COMPARE(ended.size(), 1);
    QVERIFY(windows<TutorialTooltip>().isEmpty());
    QCOMPARE(host->readAll(), QByteArray());
}

// What is kept for it has a limit, and what is kept arrives whole.
void tst_Manager::aHostThatDoesNotRead()
{
    const QString text(1024 * 1024, QLatin1Char('x'));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("host does not read")));
    for (int i = 0; i < 80; ++i)
        mManager->send(text);
    const QByteArray packet = "1\2" + text.toLatin1() + '\0';
    QTRY_VERIFY_WITH_TIMEOUT(sHost->receivedBytes().size() >= 64 * packet.size(), 60000);
    mManager->send(QStringLiteral("next"));
    QTRY_VERIFY(sHost->receivedWithoutAlive().endsWith(bytes("1\2next\0")));
    const QByteArray received = sHost->receivedWithoutAlive();
    const int kept = received.size() / packet.size();
    QVERIFY(kept < 80);
    QVERIFY(received == packet.repeated(kept) + bytes("1\2next\0"));
}

// More than one read takes, so that a tag is left for a read of its own.
void tst_Manager::aReadThatEndsBehindATag()
{
    QSignalSpy received(mManager, &TutorialManager::received);
    sHost->sendBytes(bytes("0\2alive\0").repeated(512) + '0');
    QTRY_COMPARE(received.size(), 512);
    QTest::qWait(100);
    sHost->sendBytes(bytes("\2alive\0"));
    QTRY_COMPARE(received.size(), 513);
}

void tst_Manager::messagesBeforeStartAreIgnored()
{
    receive(fields("windowStack push 5"));
    receive(fields("windowPosition 5 7 8"));
    receive(fields("indicator update 1 2 0 hint 1 0"));
    receive(fields("stop"));
    QCOMPARE(mManager->getLastWindowKind(0), WindowKindCount);
    QCOMPARE(mManager->getXy(Window_EventCommandTexts), QPoint());
    QVERIFY(windows<TutorialIndicator>().isEmpty());
}

void tst_Manager::startStopStart()
{
    receive(fields("start"));
    QCOMPARE(windows<TutorialIndicator>().size(), 1);
    QVERIFY(!windows<TutorialIndicator>().first()->isVisible());
    QVERIFY(windows<TutorialTooltip>().first()->isVisible());
    QVERIFY(windows<TutorialLog>().first()->isVisible());

    receive(fields("windowStack push 3"));
    receive(fields("indicator update 1 2 0 hint 2 0"));
    QCOMPARE(visibleButtons(), fields("No Yes"));
    receive(fields("start"));
    QCOMPARE(mManager->getLastWindowKind(0), Window_ImageSelector);

    receive(fields("stop"));
    QVERIFY(!windows<TutorialTooltip>().first()->isVisible());
    QVERIFY(!windows<TutorialLog>().first()->isVisible());
    QCOMPARE(visibleButtons(), QStringList());
    QCOMPARE(mManager->getLastWindowKind(0), Window_ImageSelector);

    receive(fields("start"));
    QCOMPARE(windows<TutorialIndicator>().size(), 1);
    QCOMPARE(visibleButtons(), fields("No Yes"));
    QCOMPARE(mManager->getLastWindowKind(0), WindowKindCount);
    receive(fields("indicator update 1 2 0 hint 1 0"));
    QCOMPARE(visibleButtons(), fields("Next"));
}

void tst_Manager::hostRect()
{
    receive(fields("start 10 20 300 200"));
    QCOMPARE(mManager->hostRect(), QRect(QPoint(10, 20), QPoint(309, 219)));
    receive(fields("start 1 2 3"));
    QCOMPARE(mManager->hostRect().left(), 10);
    receive(fields("start 2147483647 0 2147483647 1"));
    QCOMPARE(mManager->hostRect().right(), std::numeric_limits<int>::max());
}

void tst_Manager::windowStack()
{
    receive(fields("start"));
    QCOMPARE(mManager->getCurrentWindowKind(), Window_MainWindow);
    receive(fields("windowStack pop"));
    for (const char* kind : {"2", "10", "7"})
        receive({QStringLiteral("windowStack"), QStringLiteral("push"), QLatin1String(kind)});
    QCOMPARE(int(mManager->getLastWindowKind(0)), 7);
    QCOMPARE(int(mManager->getLastWindowKind(2)), 2);
    QCOMPARE(int(mManager->getLastWindowKind(3)), 70);
    QCOMPARE(int(mManager->getLastWindowKind(-1)), 70);

    mManager->popWindowStack(Window_EventCommand);
    QCOMPARE(mManager->getCurrentWindowKind(), Window_Popup);
    mManager->popWindowStack(Window_Popup);
    QCOMPARE(mManager->getCurrentWindowKind(), Window_EventEditorMain);
    receive(fields("windowStack push 10"));
    mManager->reorderWindow();
    mManager->reorderWindow();
    QCOMPARE(mManager->getCurrentWindowKind(), Window_EventEditorMain);

    // A kind of a newer host is kept, so that its "pop" finds its own entry.
    receive(fields("windowStack push 99"));
    receive(fields("windowStack pop 99"));
    QCOMPARE(mManager->getCurrentWindowKind(), Window_EventEditorMain);
}

void tst_Manager::windowPosition()
{
    receive(fields("start"));
    receive(fields("windowPosition 64 -5 7"));
    QCOMPARE(mManager->getXy(Window_Options), QPoint(-5, 7));
    for (const char* kind : {"70", "-1", "2147483647", "-2147483648"}) {
        receive({QStringLiteral("windowPosition"), QLatin1String(kind), QStringLiteral("1"),
            QStringLiteral("1")});
        QCOMPARE(mManager->getXy(static_cast<EnumWindowKind>(atoi(kind))), QPoint());
    }
}

void tst_Manager::shortMessagesChangeNothing()
{
    receive(fields("start"));
    receive(fields("windowPosition 64 5 7"));
    receive(fields("indicator update 11 12 0 hint 0 0"));
    for (const char* text : {"windowPosition 64 9", "windowStack push", "windowStack", "indicator",
             "indicator update 1 2 0 other 0", "indicator updateXy 1", "state", "state x", "log",
             ""})
        receive(fields(text));
    QCOMPARE(mManager->getXy(Window_Options), QPoint(5, 7));
    QCOMPARE(mManager->getLastWindowKind(0), WindowKindCount);
    TutorialIndicator* indicator = windows<TutorialIndicator>().first();
    QCOMPARE(indicator->targetWindowOffset(), QPoint(11, 12));
    QCOMPARE(indicator->hint(), QStringLiteral("hint"));
    QVERIFY(windows<TutorialTooltip>().first()->isVisible());
}

void tst_Manager::target()
{
    receive(fields("start"));
    TutorialIndicator* indicator = windows<TutorialIndicator>().first();
    receive(fields("windowPosition 66 100 40"));
    mManager->updateIndicator(5, 6, Window_MapEditTreeBox, QString(), 0, Icon_click);
    QCOMPARE(indicator->targetWindowOffset(), QPoint(105, 46));
    QVERIFY(indicator->isArrowVisible());
    mManager->updateIndicator(5, 6, Window_Options, QString(), HideArrowFlag, Icon_click);
    QCOMPARE(indicator->targetWindowOffset(), QPoint(5, 6));
    QVERIFY(!indicator->isArrowVisible());
    mManager->updateIndicator(-9999, -9999, Window_MapEditTreeBox, QString(), 0, Icon_click);
    QCOMPARE(indicator->targetWindowOffset(), QPoint(-9999, -9999));
    QVERIFY(!indicator->isArrowVisible());

    receive(fields("windowPosition 66 2147483647 -2147483648"));
    receive(fields("indicator update 5 -6 65 hint 0 77"));
    QCOMPARE(indicator->targetWindowOffset(),
        QPoint(std::numeric_limits<int>::max(), std::numeric_limits<int>::min()));
    QVERIFY(indicator->icon(1).isNull());
}

void tst_Manager::hiddenByTheHost()
{
    receive(fields("start"));
    receive(fields("indicator update 1 2 0 hint 1 0"));
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    receive(fields("state hide"));
    QCOMPARE(visibleButtons(), QStringList());
    QVERIFY(!windows<TutorialTooltip>().first()->isVisible());
    QVERIFY(!windows<TutorialLog>().first()->isVisible());
    mManager->onApplicationStateChanged(Qt::ApplicationSuspended);
    QVERIFY(!windows<TutorialTooltip>().first()->isVisible());
    mManager->onApplicationStateChanged(Qt::ApplicationActive);
    QVERIFY(windows<TutorialTooltip>().first()->isVisible());
    QCOMPARE(visibleButtons(), fields("Next"));
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    QVERIFY(!windows<TutorialTooltip>().first()->isVisible());
    receive(fields("state show"));
    QVERIFY(windows<TutorialLog>().first()->isVisible());
}

void tst_Manager::hiddenWithoutAHost()
{
    receive(fields("start"));
    receive(fields("indicator update 1 2 0 hint 3 0"));
    sHost->hangUp();
    QTRY_COMPARE(visibleButtons(), QStringList());
    // The author goes on, and writes to nobody.
    mManager->onApplicationStateChanged(Qt::ApplicationActive);
    mManager->updateIndicator(1, 2, Window_MainWindow, QStringLiteral("hint"), 3, Icon_click);
    for (QWidget* window : QApplication::topLevelWidgets())
        QVERIFY(!window->isVisible());
}

int main(int argc, char** argv)
{
    QByteArray id = TestHost::randomId().toLatin1();
    arguments[0] = argv[0];
    arguments[1] = id.data();
    int count = 2;
    QApplication application(count, arguments);
    TestHost host(QString::fromLatin1(id));
    tst_Manager::sHost = &host;
    tst_Manager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_manager.moc"
