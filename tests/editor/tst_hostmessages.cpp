#include "openscenario.h"

#include "editor/hostmessages.h"
#include "tests/support/modalboxes.h"
#include "tutorial/tutorialmanager.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPushButton>
#include <QTextEdit>

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

    void opensAndFeeds();
    void dropsMalformedMessages_data();
    void dropsMalformedMessages();
    void asksForTranslations();
    void pointsTheOverlay();
    void opensOneAfterTheOther();
    void nothingChangesUnderAQuestion();
    void parseErrorDoesNotHoldTheLink();
    void byeEndsAnOpenQuestion();

private:
    void send(const QStringList& fields) { mHost->write(packet(fields)); }
    // What the tutorial sent, a message a line, fields joined by blanks.
    QString received()
    {
        mRead += mHost->readAll();
        QStringList messages;
        for (QByteArray message : mRead.split('\0')) {
            if (!message.isEmpty() && message.mid(2) != "alive" && message.mid(2) != "hello")
                messages << QString::fromUtf8(message.mid(2).replace('\x01', ' '));
        }
        return messages.join(QLatin1Char('\n'));
    }

    QLocalServer mServer;
    QLocalSocket* mHost = nullptr;
    QByteArray mRead;
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
    mRead.clear();
    // Before the connection stands it is dropped.
    QTRY_VERIFY((mManager->send(QStringLiteral("hello")), mHost->bytesAvailable() > 0));
    mRead.clear();
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

void tst_HostMessages::opensAndFeeds()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    scenario.write(scenarioText(QStringLiteral("b [g c ]")));
    send({QStringLiteral("editor"), QStringLiteral("open"), scenario.path()});
    QTRY_COMPARE(scenario.rows(), QStringLiteral("b|g|.c|.<>|<>"));
    send({QStringLiteral("editor"), QStringLiteral("focus"), QStringLiteral("1"),
        QStringLiteral("0")});
    send({QStringLiteral("editor"), QStringLiteral("coordinates"), QStringLiteral("7"),
        QStringLiteral("-8")});
    send({QStringLiteral("editor"), QStringLiteral("condition"), QStringLiteral("wait"),
        QStringLiteral("9")});
    send({QStringLiteral("untr"), QStringLiteral("hint0"), QStringLiteral("B")});
    QTRY_COMPARE(scenario.item({0})->text(), QStringLiteral("B"));
    QCOMPARE(scenario.item({1, 0})->json(),
        QStringLiteral("{\"condition\":\"wait,9\",\"hint\":\"c\",\"x\":7,\"y\":-8}"));
}

void tst_HostMessages::dropsMalformedMessages_data()
{
    QTest::addColumn<QStringList>("fields");
    const auto add = [](const char* message) {
        QTest::newRow(message) << QString::fromLatin1(message).split(QLatin1Char(' '));
    };
    add("editor");
    add("editor open");
    add("editor open ");
    add("editor close now");
    add("editor focus");
    add("editor focus 0 x");
    add("editor coordinates 1");
    add("editor coordinates 1 2 3");
    add("editor coordinates 1 two");
    add("editor condition");
    add("editor condition Wait 1");
    add("editor condition wait 1 2 3 4");
    add("untr");
    add("untr hint0");
    add("untr hint0 a b");
}

void tst_HostMessages::dropsMalformedMessages()
{
    QFETCH(QStringList, fields);
    OpenScenario scenario(scenarioText(QStringLiteral("a b")));
    scenario.select({1});
    const QString json = scenario.dialog()->getCurrentJson();
    ModalBoxes boxes;
    send(fields);
    // Messages are handled in their order.
    send({QStringLiteral("untr"), QStringLiteral("hint1"), QStringLiteral("B")});
    QTRY_COMPARE(scenario.rows(), QStringLiteral("a|B|<>"));
    QCOMPARE(scenario.dialog()->getCurrentJson(), json);
    QCOMPARE(scenario.selectedRows(), QStringLiteral("B"));
    QVERIFY(boxes.seen().isEmpty());
}

void tst_HostMessages::asksForTranslations()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b ]")));
    QTRY_COMPARE(received(), QStringLiteral("untr hint0 a\nuntr hint1,0 b\nuntr hint1 g"));
    mRead.clear();
    scenario.select({0});
    QTRY_VERIFY(received().startsWith(QLatin1String("untr hint a")));
    send({QStringLiteral("untr"), QStringLiteral("hint"), QStringLiteral("A")});
    auto* translation = scenario.widget<QTextEdit>("hintTranslation");
    QTRY_COMPARE(translation->toPlainText(), QStringLiteral("A"));
    mRead.clear();
    QTest::keyClick(scenario.widget<QTextEdit>("hint"), Qt::Key_X);
    QTRY_VERIFY(received().endsWith(QLatin1String("untr hint xa")));
}

void tst_HostMessages::pointsTheOverlay()
{
    OpenScenario scenario(
        QStringLiteral("[\n{\n\"x\": 3,\n\"y\": 4,\n\"followWindow\": \"Options\",\n\"hint\": "
                       "\"a\"\n},\n{\n\"hint\": \"g\",\n\"group\": [\n]\n},\n{\n\"comment\": "
                       "\"c\",\n\"condition\": \"wait,1\"\n}\n]"));
    QTRY_VERIFY(received().endsWith(QLatin1String("hint1 g")));
    const QString moved = QStringLiteral("indicator updateXYFollowWindow ");
    const auto next = [this] {
        mRead.clear();
        [&] { QTRY_VERIFY(received().contains(QLatin1String("indicator"))); }();
        return received();
    };
    scenario.select({0});
    QCOMPARE(next(), QStringLiteral("untr hint a\n") + moved + QStringLiteral("3 4 64"));
    QTest::keyClicks(scenario.widget<QLineEdit>("x"), QStringLiteral("5"));
    QCOMPARE(next(), moved + QStringLiteral("35 4 64"));
    Manager::setCoordinates(1, 2);
    QCOMPARE(next(), moved + QStringLiteral("1 2 64"));
    // Nothing is sent for a group.
    scenario.select({1});
    scenario.select({2});
    QCOMPARE(next(),
        QStringLiteral("untr hint g\nuntr comment c\n") + moved + QStringLiteral("-9999 -9999 70"));
    scenario.press(Qt::Key_M, Qt::ControlModifier);
    mRead.clear();
    QTRY_COMPARE(received(), QStringLiteral("coordinates request"));
}

void tst_HostMessages::opensOneAfterTheOther()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    QTemporaryDir folder;
    const QString second = folder.filePath(QStringLiteral("second.js"));
    QVERIFY(QFile::copy(scenario.path(), second));
    const QStringList open{QStringLiteral("editor"), QStringLiteral("open"), second};
    scenario.select({0});
    scenario.widget<QTextEdit>("hint")->setPlainText(QStringLiteral("b"));
    {
        ModalBoxes boxes(QMessageBox::Cancel);
        send(open);
        QTRY_VERIFY(boxes.isDone());
    }
    QCOMPARE(scenario.dialog()->windowTitle(), QStringLiteral("scenario"));
    QVERIFY(!scenario.widget<QTextEdit>("hint")->isHidden());

    // The second one comes while the first one's question is open.
    ModalBoxes boxes(QMessageBox::Yes, [&](QMessageBox*) {
        send(open);
        QTest::qWait(200);
    });
    send(open);
    QTRY_COMPARE(scenario.dialog()->windowTitle(), QStringLiteral("second"));
    QVERIFY2(boxes.isDone(), qPrintable(boxes.seen().join(QLatin1Char(10))));
    QCOMPARE(scenario.rows(), QStringLiteral("a|<>"));
    QCOMPARE(scenario.fileText(), scenarioText(QStringLiteral("b")));

    // After the dialog was closed there is a new one.
    scenario.dialog()->close();
    QTRY_VERIFY(!scenario.dialog());
    send(open);
    const auto windows = [] {
        QList<QWidget*> dialogs;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (qobject_cast<Dialog*>(window))
                dialogs << window;
        }
        return dialogs;
    };
    QTRY_COMPARE(windows().size(), 1);
    windows().first()->close();
    QTRY_VERIFY(windows().isEmpty());
}

// The answer to the dialog's own question saves what was asked about.
void tst_HostMessages::nothingChangesUnderAQuestion()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    QTemporaryDir folder;
    const QString second = folder.filePath(QStringLiteral("second.js"));
    QVERIFY(QFile::copy(scenario.path(), second));
    scenario.select({0});
    scenario.widget<QTextEdit>("hint")->setPlainText(QStringLiteral("b"));
    ModalBoxes boxes(QMessageBox::Yes, [&](QMessageBox*) {
        send({QStringLiteral("editor"), QStringLiteral("open"), second});
        send({QStringLiteral("editor"), QStringLiteral("coordinates"), QStringLiteral("1"),
            QStringLiteral("2")});
        QTest::qWait(200);
        QCOMPARE(scenario.dialog()->windowTitle(), QStringLiteral("scenario"));
    });
    scenario.widget<QPushButton>("save")->click();
    QCOMPARE(scenario.fileText(), scenarioText(QStringLiteral("b")));
    QTRY_COMPARE(scenario.dialog()->windowTitle(), QStringLiteral("second"));
}

void tst_HostMessages::parseErrorDoesNotHoldTheLink()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    scenario.write(QStringLiteral("{}"));
    ModalBoxes boxes(QMessageBox::Ok, [&](QMessageBox*) {
        QSignalSpy received(mManager, &TutorialManager::received);
        send({QStringLiteral("alive")});
        QTRY_COMPARE(received.count(), 1);
    });
    send({QStringLiteral("editor"), QStringLiteral("open"), scenario.path()});
    QTRY_VERIFY(boxes.isDone());
}

void tst_HostMessages::byeEndsAnOpenQuestion()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    scenario.select({0});
    scenario.widget<QTextEdit>("hint")->setPlainText(QStringLiteral("b"));
    bool isAnswered = false;
    QTimer::singleShot(0, [&] { isAnswered = !scenario.dialog()->checkSave(true); });
    QTimer::singleShot(100, [this] { send({QStringLiteral("bye")}); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(isAnswered);
    QVERIFY(!mManager);
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(scenario.fileText(), scenarioText(QStringLiteral("a")));
    // Nobody was asked in the end.
    Manager::mInstance->keepUnsaved();
    QFile kept(scenario.path() + QLatin1String(".unsaved"));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(kept.readAll()), scenarioText(QStringLiteral("b")));
}

int main(int argc, char** argv)
{
    // The manager takes its connection id from the first argument.
    const QByteArray id = QByteArray::number(QCoreApplication::applicationPid());
    serverName = QStringLiteral("vemo") + QString::fromLatin1(id);
    QByteArray program(argv[0]);
    QByteArray connection(id);
    char* arguments[] = {program.data(), connection.data(), nullptr};
    int count = 2;
    QApplication application(count, arguments);
    tst_HostMessages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hostmessages.moc"
