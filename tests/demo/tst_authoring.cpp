#include "demo/authoring.h"
#include "demo/mainwindow.h"
#include "demo/tutorialsession.h"
#include "demo/windowregistry.h"
#include "editor/jsonescape.h"
#include "editor/scenarioreader.h"
#include "tests/demo/faketutorial.h"

#include <QContextMenuEvent>
#include <QJsonArray>
#include <QPushButton>
#include <QTabWidget>
#include <QTranslator>
#include <QWindow>
#include <QtTest>

using namespace Tutorial;

namespace {

const char kScenario[] = R"(var scenario = [
    {
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": "One"
    },
    {
        "hint": "Group",
        "group": [
        {
            "condition": "action,Zoom In,",
            "followWindow": "MainWindow",
            "hint": "Two",
            "icon": "eye",
            "x": 5,
            "y": 6
        }
]
    }
];)";

// What is sent to point at this point.
QString xy(const QPoint& point)
{
    return QStringLiteral("indicator updateXy %1 %2").arg(point.x() - 38).arg(point.y() - 165);
}

QWidget* mapOf(QWidget& window)
{
    return window.findChild<QWidget*>(QStringLiteral("Map"));
}

// What the author does in a window.
using Act = std::function<void(QWidget& window)>;

} // namespace

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(Tutorial::EnumWindowKind)

// What the host does while a scenario is open in the tutorial's editor.
class tst_Authoring : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opensTheEditor();
    void pointsAtTheStepAtWork_data();
    void pointsAtTheStepAtWork();
    void staysWithTheWindow();
    void minimising();
    void looksTextsUp_data();
    void looksTextsUp();
    void triesTheFileOut_data();
    void triesTheFileOut();
    void trialThatCannotBe();
    void stoppingATrial();
    void picksAPoint();
    void escapeEndsPicking();
    void recordsConditions_data();
    void recordsConditions();
    void starterIsAStep();

private:
    QString path() const { return mFolder->filePath(QStringLiteral("first-steps.js")); }
    void write(const QByteArray& scenario) const;
    // The editor selects a step.
    void report(const QPoint& offset, EnumWindowKind kind);
    QString lastPacket() const
    {
        return mTutorial->packets().value(mTutorial->packets().size() - 1);
    }
    QWidget* openDialog(const char* action, EnumWindowKind kind);
    template <typename Control>
    Control* find(const char* name) const
    {
        return mWindow->findChild<Control*>(QLatin1String(name));
    }

    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<FakeTutorial> mTutorial;
    std::unique_ptr<WindowRegistry> mRegistry;
    std::unique_ptr<MainWindow> mWindow;
    std::unique_ptr<TutorialSession> mSession;
    std::unique_ptr<Authoring> mAuthoring;
};

void tst_Authoring::init()
{
    mFolder = std::make_unique<QTemporaryDir>();
    mTutorial = std::make_unique<FakeTutorial>();
    mRegistry = std::make_unique<WindowRegistry>();
    mWindow = std::make_unique<MainWindow>(*mRegistry);
    mSession =
        std::make_unique<TutorialSession>(QCoreApplication::applicationFilePath(), *mRegistry);
    mAuthoring = std::make_unique<Authoring>(*mSession, *mRegistry);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    // The platform's window frame comes without a word.
    mWindow->move(mWindow->pos() + QPoint(10, 10));
    write(kScenario);
    mAuthoring->edit(path());
    QTRY_COMPARE_WITH_TIMEOUT(mTutorial->packets().size(), 2, 20000);
}

void tst_Authoring::cleanup()
{
    mAuthoring.reset();
    mSession.reset();
    mWindow.reset();
    mRegistry.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_Authoring::write(const QByteArray& scenario) const
{
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(scenario) != scenario.size())
        qFatal("no scenario was written");
}

void tst_Authoring::report(const QPoint& offset, EnumWindowKind kind)
{
    mTutorial->clear();
    mTutorial->send({QStringLiteral("indicator"), QStringLiteral("updateXYFollowWindow"),
        QString::number(offset.x()), QString::number(offset.y()), QString::number(kind)});
}

QWidget* tst_Authoring::openDialog(const char* action, EnumWindowKind kind)
{
    find<QAction>(action)->trigger();
    return mRegistry->window(kind);
}

void tst_Authoring::opensTheEditor()
{
    const QStringList messages = mTutorial->packets().first().split(QLatin1String("; "));
    QVERIFY(messages.first().startsWith(QLatin1String("start ")));
    QVERIFY(messages.contains(QStringLiteral("windowStack push 0")));
    // Neither text nor target, until the editor has a step to show.
    QCOMPARE(
        messages.at(messages.size() - 2), QStringLiteral("indicator update -9999 -9999 0  0 6"));
    QCOMPARE(mTutorial->packets().last(), QStringLiteral("editor open ") + path());
    QVERIFY(!mSession->player().isPlaying());

    // The stack is told on: the editor asks for the front window.
    mTutorial->clear();
    openDialog("Options", Window_Options)->close();
    QTRY_VERIFY(mTutorial->packets().contains(QStringLiteral("windowStack pop")));
    QVERIFY(mTutorial->packets().contains(QStringLiteral("windowStack push 64")));
}

void tst_Authoring::pointsAtTheStepAtWork_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<EnumWindowKind>("kind");
    QTest::addColumn<EnumWindowKind>("origin"); // its position; none for the screen's own
    QTest::newRow("window") << QPoint(30, 40) << Window_MainWindow << Window_MainWindow;
    QTest::newRow("tree box") << QPoint(30, 40) << Window_MapEditTreeBox
                              << Window_MapEditLeftPanelItem;
    QTest::newRow("closed window") << QPoint(-3, 4) << Window_Options << Window_MainWindow;
    QTest::newRow("no window") << QPoint(200, 300) << WindowKindCount << WindowKindCount;
}

void tst_Authoring::pointsAtTheStepAtWork()
{
    QFETCH(QPoint, offset);
    QFETCH(EnumWindowKind, kind);
    QFETCH(EnumWindowKind, origin);
    report(offset, kind);
    QTRY_COMPARE(
        mTutorial->packets(), QStringList{xy(mRegistry->positions().value(origin) + offset)});
}

void tst_Authoring::staysWithTheWindow()
{
    report({7, 8}, Window_Options);
    const QPoint inMain = mWindow->mapToGlobal({7, 8});
    QTRY_COMPARE(lastPacket(), xy(inMain));
    QWidget* dialog = openDialog("Options", Window_Options);
    QTRY_COMPARE(lastPacket(), xy(dialog->mapToGlobal({7, 8})));
    dialog->move(dialog->pos() + QPoint(20, 30));
    QTRY_COMPARE(lastPacket(), xy(dialog->mapToGlobal({7, 8})));
    dialog->close();
    QTRY_COMPARE(lastPacket(), xy(inMain));

    mAuthoring->stop();
    QTRY_COMPARE(lastPacket(), QStringLiteral("stop"));
    // The editor goes on working.
    report({1, 2}, Window_MainWindow);
    QTRY_VERIFY(lastPacket().startsWith(QLatin1String("start ")));
    QVERIFY(lastPacket().endsWith(xy(mWindow->mapToGlobal({1, 2}))));
    QVERIFY(!lastPacket().contains(QLatin1String("indicator update ")));
}

void tst_Authoring::minimising()
{
    report({1, 2}, Window_MainWindow);
    mWindow->showMinimized();
    QTRY_COMPARE(lastPacket(), QStringLiteral("stop"));
    mWindow->showNormal();
    QTRY_VERIFY(lastPacket().startsWith(QLatin1String("start ")));
    // The hint is still the one that the editor shows.
    QVERIFY(!lastPacket().contains(QLatin1String("indicator update ")));
}

void tst_Authoring::looksTextsUp_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("found");
    const QString plain = QStringLiteral("\"C:\\new\"\n/Grüße/ \U0001f333");
    QTest::newRow("plain") << plain << plain;
    QTest::newRow("translated") << "qsTr(\"Welcome\")"
                                << "Willkommen";
    QTest::newRow("half-typed") << "qsTr(\"Welcome"
                                << "qsTr(\"Welcome";
}

void tst_Authoring::looksTextsUp()
{
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/translations/tutorial-demo_de.qm")));
    QCoreApplication::installTranslator(&german);
    QFETCH(QString, text);
    mTutorial->clear();
    mTutorial->send({QStringLiteral("untr"), QStringLiteral("hint1,0"), text});
    const QString begin = QStringLiteral("untr hint1,0 ");
    QTRY_VERIFY(lastPacket().startsWith(begin));
    // As the tutorial takes it.
    QTEST(TutorialEditor::lookedUpText(lastPacket().mid(begin.size())), "found");
}

void tst_Authoring::triesTheFileOut_data()
{
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QString>("shown");
    const QString one = QStringLiteral("indicator update -9999 -9999 0 One 1 6");
    const QString two = QStringLiteral("indicator update 5 6 0 Two 0 3");
    QTest::newRow("beginning") << QStringList{QString()} << one;
    QTest::newRow("group") << QStringList{QStringLiteral("1")} << two;
    QTest::newRow("step in a group")
        << QStringList{QStringLiteral("1"), QStringLiteral("0")} << two;
}

void tst_Authoring::triesTheFileOut()
{
    QFETCH(QStringList, path);
    QFETCH(QString, shown);
    mTutorial->clear();
    mTutorial->send(QStringList{QStringLiteral("start")} + path);
    QTRY_VERIFY(lastPacket().contains(shown));
    QCOMPARE(mTutorial->packets().first(), QStringLiteral("stop"));

    // To the end, and back to the step from which the author came.
    mTutorial->send({QStringLiteral("next")});
    QTRY_VERIFY(lastPacket().contains(QLatin1String(" Two ")));
    mTutorial->clear();
    find<QAction>("Zoom In")->trigger();
    QTRY_COMPARE(mTutorial->packets().size(), 2);
    QCOMPARE(mTutorial->packets().first(), QStringLiteral("stop"));
    QVERIFY(lastPacket().startsWith(QLatin1String("start ")));
    QVERIFY(lastPacket().contains(shown));
    report({1, 2}, Window_MainWindow);
    QTRY_COMPARE(mTutorial->packets(), QStringList{xy(mWindow->mapToGlobal({1, 2}))});
}

void tst_Authoring::trialThatCannotBe()
{
    report({1, 2}, Window_MainWindow);
    write("var scenario = [\n];");
    mTutorial->send({QStringLiteral("start"), QStringLiteral("3")});
    QTRY_VERIFY(lastPacket().startsWith(QLatin1String("start ")));
    QVERIFY(lastPacket().endsWith(xy(mWindow->mapToGlobal({1, 2}))));
}

void tst_Authoring::stoppingATrial()
{
    mTutorial->clear();
    mTutorial->send({QStringLiteral("start"), QStringLiteral("0")});
    QTRY_VERIFY(lastPacket().contains(QLatin1String(" One ")));
    // What the author edits meanwhile waits for its turn.
    report({1, 2}, Window_MainWindow);
    mTutorial->send({QStringLiteral("untr"), QStringLiteral("comment"), QString()});
    QTRY_VERIFY(lastPacket().startsWith(QLatin1String("untr")));
    QCOMPARE(mTutorial->packets().size(), 1);
    mAuthoring->stop();
    QTRY_VERIFY(lastPacket().startsWith(QLatin1String("start ")));
    QVERIFY(lastPacket().endsWith(xy(mWindow->mapToGlobal({1, 2}))));
}

void tst_Authoring::picksAPoint()
{
    report({}, Window_MapEditTreeBox);
    QTRY_VERIFY(!mTutorial->packets().isEmpty());
    mTutorial->send({QStringLiteral("coordinates"), QStringLiteral("request")});
    QTRY_VERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::CrossCursor);

    auto* tiles = find<QListWidget>("listBox1");
    const QPoint inTiles = tiles->visualItemRect(tiles->item(3)).center();
    const QPoint onScreen = tiles->viewport()->mapToGlobal(inTiles);
    const QPoint inWindow = mWindow->mapFromGlobal(onScreen);
    const QPoint offset = onScreen - mRegistry->positions().value(Window_MapEditLeftPanelItem);
    QWindow* window = mWindow->windowHandle();
    QTest::mouseMove(window, inWindow);
    QTRY_VERIFY(mWindow->findChild<PickOverlay*>());
    QTRY_COMPARE(mWindow->findChild<PickOverlay*>()->findChild<QLabel*>()->text(),
        QStringLiteral("MapEditLeftPanelItem · listBox1 · MapEditTreeBox · %1, %2")
            .arg(offset.x())
            .arg(offset.y()));

    QTest::mouseClick(window, Qt::LeftButton, {}, inWindow);
    QTRY_COMPARE(
        lastPacket(), QStringLiteral("editor coordinates %1 %2").arg(offset.x()).arg(offset.y()));
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(!mWindow->findChild<PickOverlay*>());
    // The editor has not acted on it, and acts on the next click.
    QCOMPARE(tiles->currentRow(), 0);
    QTest::mouseClick(window, Qt::LeftButton, {}, inWindow);
    QTRY_COMPARE(tiles->currentRow(), 3);
}

void tst_Authoring::escapeEndsPicking()
{
    QWidget* dialog = openDialog("Options", Window_Options);
    QVERIFY(QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }));
    mTutorial->send({QStringLiteral("coordinates"), QStringLiteral("request")});
    QTRY_VERIFY(QApplication::overrideCursor());
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY(!QApplication::overrideCursor());
    QVERIFY(dialog->isVisible());
    QTest::keyPress(dialog->windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY(!mRegistry->window(Window_Options));
    QVERIFY(mTutorial->packets().filter(QStringLiteral("coordinates")).isEmpty());
}

void tst_Authoring::recordsConditions_data()
{
    QTest::addColumn<QString>("action"); // that opens the dialog; none for the main window
    QTest::addColumn<EnumWindowKind>("kind");
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("condition");
    const auto row = [](const char* action, EnumWindowKind kind, const char* condition,
                         const Act& act) {
        QTest::newRow(condition) << QString::fromLatin1(action) << kind << act
                                 << QString::fromLatin1(condition);
    };
    // A click chooses the row, and so does the first half of a double click.
    row("", Window_MainWindow, "list 3", [](QWidget& window) {
        auto* tiles = window.findChild<QListWidget*>(QStringLiteral("listBox1"));
        QTest::mouseClick(
            tiles->viewport(), Qt::LeftButton, {}, tiles->visualItemRect(tiles->item(3)).center());
    });
    row("", Window_MainWindow, "mouseEvent Map click", [](QWidget& window) {
        QTest::mouseClick(mapOf(window), Qt::LeftButton, {}, {50, 50});
    });
    row("", Window_MainWindow, "mouseEvent Map doubleClick", [](QWidget& window) {
        QTest::mouseDClick(mapOf(window), Qt::LeftButton, {}, {50, 50});
    });
    row("", Window_MainWindow, "popup Map", [](QWidget& window) {
        QWidget* map = mapOf(window);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {50, 50}, map->mapToGlobal({50, 50}));
        QApplication::sendEvent(map, &event);
        QApplication::activePopupWidget()->close();
    });
    row("", Window_MainWindow, "action Zoom In",
        [](QWidget& window) { window.findChild<QAction*>(QStringLiteral("Zoom In"))->trigger(); });
    // The menu action is only the way there.
    row("", Window_MainWindow, "windowState Options open",
        [](QWidget& window) { window.findChild<QAction*>(QStringLiteral("Options"))->trigger(); });
    row("Options", Window_Options, "windowState Options ok",
        [](QWidget& window) { window.findChild<QPushButton*>(QStringLiteral("ok"))->click(); });
    row("Options", Window_Options, "windowState Options cancel",
        [](QWidget& window) { window.close(); });
    row("Options", Window_Options, "checked grid 0",
        [](QWidget& window) { window.findChild<QCheckBox*>(QStringLiteral("grid"))->click(); });
    row("Options", Window_Options, "spinBox = 17", [](QWidget& window) {
        auto* box = window.findChild<QSpinBox*>(QStringLiteral("gridStrength"));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Up);
        QTest::keyClick(box, Qt::Key_Up);
    });
    row("Options", Window_Options, "comboBox cells 1", [](QWidget& window) {
        QTest::keyClick(window.findChild<QComboBox*>(QStringLiteral("cells")), Qt::Key_Down);
    });
    row("New Project", Window_NewProject, "textLength >= 3", [](QWidget& window) {
        auto* title = window.findChild<QLineEdit*>(QStringLiteral("title"));
        title->clear();
        QTest::keyClicks(title, QStringLiteral("abc"));
    });
    // It fills the fields with the new entry, which nobody typed.
    row("Database", Window_DatabaseMain, "pressed 0 0", [](QWidget& window) {
        window.findChild<QTabWidget*>()->currentWidget()->findChild<QPushButton*>()->click();
    });
}

void tst_Authoring::recordsConditions()
{
    QFETCH(QString, action);
    QFETCH(EnumWindowKind, kind);
    QFETCH(Act, act);
    QFETCH(QString, condition);
    if (!action.isEmpty())
        openDialog(action.toLatin1().constData(), kind);
    QWidget* window = mRegistry->window(kind);
    QVERIFY(QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }));
    mAuthoring->recordCondition();
    act(*window);
    const QString packet = QStringLiteral("editor condition ") + condition;
    QTRY_COMPARE(
        mTutorial->packets().filter(QStringLiteral("editor condition")), QStringList{packet});
    // Only the next action.
    find<QAction>("Actual Size")->trigger();
    mTutorial->send({QStringLiteral("untr"), QStringLiteral("comment"), QString()});
    QTRY_VERIFY(lastPacket().startsWith(QLatin1String("untr")));
    QCOMPARE(mTutorial->packets().filter(QStringLiteral("editor condition")).size(), 1);
}

// A file that holds one step, and that the writer itself would write so.
void tst_Authoring::starterIsAStep()
{
    QVERIFY(Authoring::writeStarter(path()));
    QJsonArray steps;
    QStringList errors;
    QVERIFY(TutorialEditor::readScenarioFile(path(), &steps, &errors));
    QCOMPARE(steps.size(), 1);
    const Scenario scenario = Scenario::fromJson(steps);
    QCOMPARE(scenario.steps.size(), 1);
    QCOMPARE(scenario.steps.first().fault, QString());
    QVERIFY(!Authoring::writeStarter(mFolder->filePath(QStringLiteral("none/starter.js"))));
}

int main(int argc, char** argv)
{
    return FakeTutorial::runTest<tst_Authoring>(argc, argv);
}

#include "tst_authoring.moc"
