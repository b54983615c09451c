#include "demo/condition.h"
#include "tests/demo/fakestate.h"

#include <QtTest>

using namespace Tutorial;

class tst_Condition : public QObject {
    Q_OBJECT

private slots:
    void conditions_data();
    void conditions();
    void eventsOfOtherWindows();
};

void tst_Condition::conditions_data()
{
    QTest::addColumn<QString>("event"); // none for what the state tells
    QTest::addColumn<QString>("condition");
    QTest::addColumn<bool>("met");
    const auto row = [](const char* event, const char* condition, bool met) {
        QTest::addRow("%s for %s", event, condition)
            << QString::fromLatin1(event) << QString::fromLatin1(condition) << met;
    };
    // Options was closed with OK, NewProject is open, About was never open.
    row("", "windowState,NewProject,open", true);
    row("", "windowState,NewProject,close", false);
    row("", "windowState,Options,close", true);
    row("", "windowState,Options,ok", true);
    row("", "windowState,Options,cancel", false);
    row("", "windowState,About,close", true);
    // Four letters.
    row("", "textLength,=,4", true);
    row("", "textLength,<,4", false);
    row("", "textLength,<=,4", true);
    row("", "textLength,>,4", false);
    row("", "textLength,>=,4", true);
    row("", "textLength,!=,4", false);
    // Row 2, checked, no spin box that ever had the focus.
    row("", "comboBox,trigger,2", true);
    row("", "checked,walkAnime,1", true);
    row("", "spinBox,>=,0", false);

    row("mouseEvent,Map,click", "mouseEvent,Map,click", true);
    row("mouseEvent,Map,doubleClick", "mouseEvent,Map,click", false);
    row("popup,Map", "popup,*", true);
    row("popup,listBox1", "popup,Map", false);
    row("list,3", "list,-1", true);
    row("list,2", "list,3", false);
    row("action,Map", "action,Map,left over", true);
    row("pressed,1,0", "pressed,0,0", false);
    row("popup,Map", "mouseEvent,Map,click", false);
}

void tst_Condition::conditions()
{
    FakeState state;
    state.states = {
        {Window_NewProject, QStringLiteral("open")}, {Window_Options, QStringLiteral("ok")}};
    state.length = 4;
    state.row = 2;
    state.checked = true;
    QFETCH(QString, event);
    QFETCH(QString, condition);
    QFETCH(bool, met);
    const Condition expected = Condition::fromText(condition);
    const Condition happened = Condition::fromText(event);
    QCOMPARE(event.isEmpty() ? isMet(expected, Window_NewProject, state)
                             : isMetBy(expected, Window_MainWindow,
                                 {happened.kind, happened.parameters, {Window_MainWindow}}),
        met);
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
    QVERIFY(isMetBy(condition, Window_MainWindow, inPanel));
}

QTEST_APPLESS_MAIN(tst_Condition)
#include "tst_condition.moc"
