// SPDX-License-Identifier: MIT
#include "openscenario.h"

#include "editor/document/recoverycopy.h"
#include "editor/history/stephistory.h"
#include "editor/hostmessages.h"
#include "tests/support/modalboxes.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QCompleter>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPushButton>

using namespace TutorialEditor;

namespace {

QString serverName;

QByteArray packet(const QStringList& fields)
{
    return "0\x02" + fields.join(QChar(0x01)).toUtf8() + '\0';
}

} // namespace

// The authoring tool at the end of a real link.
class tst_HostMessages : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void dropsMalformedMessages_data();
    void dropsMalformedMessages();
    void opensOneAfterTheOther();
    void tooManyWaitForTheAuthor();
    void byeEndsAnOpenQuestion();
    void targetGoesBothWays();

private:
    // What the tool has told the host since, one message an entry, fields with '|'.
    QStringList told()
    {
        QStringList messages;
        for (const QByteArray& packet : mHost->readAll().split('\0')) {
            for (const QByteArray& message : packet.mid(packet.indexOf('\x02') + 1).split('\x02'))
                messages << QString::fromUtf8(message).replace(QChar(0x01), QLatin1Char('|'));
        }
        return messages;
    }
    void send(const QStringList& fields) { mHost->write(packet(fields)); }

    QLocalServer mServer;
    QLocalSocket* mHost = nullptr;
    QPointer<TutorialManager> mManager;
    QScopedPointer<HostMessages> mMessages;
};

void tst_HostMessages::initTestCase()
{
    QApplication::setQuitOnLastWindowClosed(false);
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    QVERIFY(mServer.listen(serverName));
}

void tst_HostMessages::init()
{
    mManager = new TutorialManager(qApp);
    mMessages.reset(new HostMessages(mManager));
    QVERIFY(mServer.hasPendingConnections() || mServer.waitForNewConnection(5000));
    mHost = mServer.nextPendingConnection();
    // Before the connection stands it is dropped.
    QTRY_VERIFY((mManager->send("hello"_s), mHost->bytesAvailable() > 0));
}

void tst_HostMessages::cleanup()
{
    mMessages.reset();
    delete mManager;
    delete mHost;
    // The manager's end has asked the application to quit: no box would open
    // before that is done.
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QApplication::exec();
}

void tst_HostMessages::dropsMalformedMessages_data()
{
    QTest::addColumn<QStringList>("fields");
    const auto add = [](const char* message) {
        QTest::newRow(message) << QString::fromLatin1(message).split(QLatin1Char(' '));
    };
    add("editor open");
    add("editor focus");
    add("editor focus 0 x");
    add("editor coordinates 1 two");
    add("editor condition Wait 1");
    add("editor condition wait 1 2 3 4");
    add("untr hint0");
}

void tst_HostMessages::dropsMalformedMessages()
{
    QFETCH(QStringList, fields);
    OpenScenario scenario(scenarioText("a b"_s));
    scenario.select({1});
    const QString json = scenario.dialog()->getCurrentJson();
    ModalBoxes boxes;
    send(fields);
    // Messages are handled in their order.
    send({"untr"_s, "hint1"_s, "B"_s});
    QTRY_COMPARE(scenario.rows(), "a|B|<>"_s);
    QCOMPARE(scenario.dialog()->getCurrentJson(), json);
    QCOMPARE(scenario.selectedRows(), "B"_s);
    QVERIFY(boxes.seen().isEmpty());
}

void tst_HostMessages::opensOneAfterTheOther()
{
    // It outlives the tool, which asks when its file is gone.
    QTemporaryDir folder;
    OpenScenario scenario(scenarioText("a"_s));
    const QString second = folder.filePath("second.js"_s);
    QVERIFY(QFile::copy(scenario.path(), second));
    const QStringList open{"editor"_s, "open"_s, second};
    scenario.select({0});
    scenario.hint()->setPlainText("b"_s);
    {
        ModalBoxes boxes(QMessageBox::Cancel);
        send(open);
        QTRY_VERIFY(boxes.isDone());
    }
    QCOMPARE(scenario.dialog()->windowTitle(), "scenario[*]"_s);
    QVERIFY(!scenario.hint()->isHidden());

    // The second one comes while the first one's question is open.
    ModalBoxes boxes(QMessageBox::Yes, [&](QMessageBox*) {
        send(open);
        QTest::qWait(200);
    });
    told();
    send(open);
    QTRY_COMPARE(scenario.dialog()->windowTitle(), "second"_s);
    QStringList messages;
    QTRY_VERIFY((messages << told(), messages.contains("editor|opened|"_s + second)));
    QVERIFY2(boxes.isDone(), qPrintable(boxes.seen().join(QLatin1Char(10))));
    QCOMPARE(scenario.rows(), "a|<>"_s);
    QCOMPARE(scenario.fileText(), scenarioText("b"_s));
}

void tst_HostMessages::tooManyWaitForTheAuthor()
{
    OpenScenario scenario(scenarioText("a b"_s));
    scenario.select({0});
    scenario.hint()->setPlainText("c"_s);
    QSignalSpy received(mManager, &TutorialManager::received);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("wait for the author"_s));
    ModalBoxes boxes(QMessageBox::Yes, [&](QMessageBox*) {
        send({"untr"_s, "hint0"_s, "A"_s});
        for (int i = 0; i < 20; ++i)
            send({"untr"_s, "other"_s, QString(1024 * 1024, QLatin1Char('x'))});
        send({"untr"_s, "hint1"_s, "lost"_s});
        QTRY_COMPARE_WITH_TIMEOUT(received.size(), 22, 60000);
    });
    scenario.widget<QPushButton>("save")->click();
    QTRY_COMPARE(scenario.rows(), "A|b|<>"_s);
    send({"untr"_s, "hint1"_s, "B"_s});
    QTRY_COMPARE(scenario.rows(), "A|B|<>"_s);
}

void tst_HostMessages::byeEndsAnOpenQuestion()
{
    OpenScenario scenario(scenarioText("a"_s));
    scenario.select({0});
    scenario.hint()->setPlainText("b"_s);
    bool isAnswered = false;
    QTimer::singleShot(0, [&] { isAnswered = !scenario.dialog()->checkSave(true); });
    QTimer::singleShot(100, [this] { send({"bye"_s}); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(isAnswered);
    QVERIFY(!mManager);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(scenario.fileText(), scenarioText("a"_s));
    // Nobody was asked in the end.
    Manager::mInstance->keepUnsaved();
    const QDir copies(RecoveryCopy::folder());
    QCOMPARE(copies.entryList({"*.json"_s}).size(), 1);
}

void tst_HostMessages::targetGoesBothWays()
{
    const QString target = "MainWindow/save"_s;
    {
        OpenScenario scenario(scenarioText("a b"_s));
        QUndoStack* stack = scenario.dialog()->history()->stack();
        scenario.select({0});
        const auto jsonOf = [&] { return scenario.item({0})->json(); };
        const QString before = jsonOf();
        told();

        // The point and its name are one act.
        send({"editor"_s, "coordinates"_s, "5"_s, "6"_s});
        send({"editor"_s, "target"_s, target});
        QTRY_VERIFY(jsonOf().contains(target));
        QCOMPARE(scenario.widget<QLineEdit>("target")->text(), target);
        QVERIFY(scenario.widget<QLineEdit>("target")->isVisible());
        QStringList messages;
        const QString point = "indicator|updateXYFollowWindow|5|6|70"_s;
        QTRY_VERIFY((messages << told(), messages.lastIndexOf(point) > 0));
        const int named = int(messages.indexOf("editor|target|"_s + target));
        QVERIFY2(named >= 0, qPrintable(messages.join(QLatin1Char(' '))));
        QCOMPARE(messages.value(named + 1), point);
        QCOMPARE(stack->count(), 1);
        stack->undo();
        QCOMPARE(jsonOf(), before);
        stack->redo();
        QVERIFY(jsonOf().contains(target));

        // A point without a name takes the former name away.
        send({"editor"_s, "coordinates"_s, "7"_s, "8"_s});
        send({"editor"_s, "target"_s, QString()});
        QTRY_VERIFY(!jsonOf().contains("target"_s));
        QCOMPARE(stack->count(), 2);
        QTRY_VERIFY((messages << told(), messages.contains("editor|target|"_s)));

        send({"editor"_s, "names"_s, "targets"_s, target, "Other"_s});
        QTRY_VERIFY(scenario.widget<QLineEdit>("target")->completer());
        QCOMPARE(scenario.widget<QLineEdit>("target")->completer()->model()->rowCount(), 2);
    }
    QStringList messages;
    QTRY_VERIFY((messages << told(), messages.contains("editor|closed"_s)));
}

int main(int argc, char** argv)
{
    // The manager takes its connection id from the first argument.
    const QByteArray id = QByteArray::number(QCoreApplication::applicationPid());
    serverName = "vemo"_s + QString::fromLatin1(id);
    QByteArray program(argv[0]);
    QByteArray connection(id);
    char* arguments[] = {program.data(), connection.data(), nullptr};
    int count = 2;
    QApplication application(count, arguments);
    tst_HostMessages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hostmessages.moc"
