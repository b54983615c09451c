#include "demo/condition.h"
#include "tests/demo/fakestate.h"

#include <QtTest>

using namespace Tutorial;

class tst_Condition : public QObject {
    Q_OBJECT

private slots:
    void states_data();
    void states();
    void events_data();
    void events();
    void eventsOfOtherWindows();
    void faults_data();
    void faults();
};

void tst_Condition::states_data()
{
    QTest::addColumn<bool>("met");
    const auto row = [](const char* condition, bool met) { QTest::newRow(condition) << met; };
    // Options was closed with OK, NewProject is open, About was never open.
    row("windowState,NewProject,open", true);
    row("windowState,NewProject,close", false);
    row("windowState,NewProject,ok", false);
    row("windowState,Options,open", false);
    row("windowState,Options,close", true);
    row("windowState,Options,ok", true);
    row("windowState,Options,cancel", false);
    row("windowState,About,close", true);
    row("windowState,About,ok", false);
    // Four letters.
    row("textLength,=,4", true);
    row("textLength,=,5", false);
    row("textLength,<,4", false);
    row("textLength,<,5", true);
    row("textLength,<=,4", true);
    row("textLength,>,4", false);
    row("textLength,>,3", true);
    row("textLength,>=,4", true);
    row("textLength,!=,4", false);
    row("textLength,!=,3", true);
    // Row 2, checked, no spin box that ever had the focus.
    row("comboBox,trigger,2", true);
    row("comboBox,trigger,0", false);
    row("comboBox,other,2", false);
    row("checked,walkAnime,1", true);
    row("checked,walkAnime,0", false);
    row("checked,other,0", false);
    row("spinBox,>=,0", false);
    // These are about events.
    row("click,", false);
    row("list,-1", false);
    row("Wait,1", false);
}

void tst_Condition::states()
{
    FakeState state;
    state.states = {
        {Window_NewProject, QStringLiteral("open")}, {Window_Options, QStringLiteral("ok")}};
    state.length = 4;
    state.row = 2;
    state.checked = true;
    const Condition condition = Condition::fromText(QLatin1String(QTest::currentDataTag()));
    QFETCH(bool, met);
    QCOMPARE(isMet(condition, Window_NewProject, state), met);
}

void tst_Condition::events_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<bool>("met");
    const auto row = [](const char* event, const char* condition, bool met) {
        QTest::addRow("%s for %s", event, condition) << QString::fromLatin1(condition) << met;
    };
    row("mouseEvent,Map,click", "mouseEvent,Map,click", true);
    row("mouseEvent,Map,doubleClick", "mouseEvent,Map,click", false);
    row("mouseEvent,listBox1,click", "mouseEvent,Map,click", false);
    row("popup,Map", "popup,Map", true);
    row("popup,Map", "popup,*", true);
    row("popup,listBox1", "popup,Map", false);
    row("list,3", "list,3", true);
    row("list,3", "list,-1", true);
    row("list,2", "list,3", false);
    row("action,Map", "action,Map", true);
    row("action,Map", "action,Map,left over", true);
    row("action,Event", "action,Map", false);
    row("pressed,1,0", "pressed,1,0", true);
    row("pressed,1,0", "pressed,1,0,left over", true);
    row("pressed,1,0", "pressed,0,0", false);
    row("popup,Map", "mouseEvent,Map,click", false);
}

void tst_Condition::events()
{
    QFETCH(QString, condition);
    QFETCH(bool, met);
    const Condition happened = Condition::fromText(
        QString::fromLatin1(QTest::currentDataTag()).section(QLatin1String(" for "), 0, 0));
    const HostEvent event{happened.kind, happened.parameters, {Window_MainWindow}};
    QCOMPARE(isMetBy(Condition::fromText(condition), Window_MainWindow, event), met);
}

// A row that is chosen in a dialog is not the one that the step waits for in
// the main window; in a panel of the main window it is.
void tst_Condition::eventsOfOtherWindows()
{
    const Condition condition = Condition::fromText(QStringLiteral("list,-1"));
    const QStringList row{QStringLiteral("0")};
    const HostEvent inDialog{Condition_list, row, {Window_DatabaseMain}};
    const HostEvent inPanel{Condition_list, row, {Window_MapEditLeftPanelItem, Window_MainWindow}};
    QVERIFY(!isMetBy(condition, Window_MainWindow, inDialog));
    QVERIFY(isMetBy(condition, Window_DatabaseMain, inDialog));
    QVERIFY(isMetBy(condition, Window_MainWindow, inPanel));
    QVERIFY(isMetBy(condition, Window_MapEditLeftPanelItem, inPanel));
    QVERIFY(isMetBy(condition, WindowKindCount, inDialog));
}

void tst_Condition::faults_data()
{
    QTest::addColumn<bool>("faulty");
    // What the authoring tool proposes for each kind.
    for (const char* sound :
        {"windowState,MainWindow,open", "wait,1", "wait,0.5", "mouseEvent,listBox1,click",
            "textLength,>=,1", "popup,*", "list,-1", "click,", "action,Map,", "pressed,0,0",
            "comboBox,trigger,0", "checked,walkAnime,1", "spinBox,>=,0", "yesNo,,"})
        QTest::newRow(sound) << false;
    for (const char* faulty : {"", "fly,1", "windowState,Cellar,open", "windowState,Options,ajar",
             "wait,soon", "wait,-1", "mouseEvent,click,click", "textLength,~,1", "textLength,>=,",
             "popup,Cellar", "list,first", "action,", "pressed,0", "comboBox,,0",
             "checked,walkAnime,yes", "spinBox,>=,much"})
        QTest::newRow(faulty) << true;
}

void tst_Condition::faults()
{
    QFETCH(bool, faulty);
    const Condition condition = Condition::fromText(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(!condition.fault().isEmpty(), faulty);
}

QTEST_APPLESS_MAIN(tst_Condition)
#include "tst_condition.moc"
