// SPDX-License-Identifier: MIT
#include "openscenario.h"

#include "editor/history/stephistory.h"

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

using namespace TutorialEditor;

using Between = std::function<void(OpenScenario*)>;
Q_DECLARE_METATYPE(Between)

namespace {

QUndoStack* stackOf(const OpenScenario& scenario)
{
    return scenario.dialog()->history()->stack();
}

// By the keys, with the focus where it is.
void undo(const OpenScenario& scenario)
{
    QTest::keyClick(scenario.dialog()->focusWidget(), Qt::Key_Z, Qt::ControlModifier);
}

void redo(const OpenScenario& scenario)
{
    QTest::keyClick(
        scenario.dialog()->focusWidget(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

QString hintOf(const OpenScenario& scenario, const QList<int>& rows)
{
    return scenario.item(rows)->step().value("hint"_s).toString();
}

} // namespace

class tst_History : public QObject {
    Q_OBJECT

private slots:
    void typingIsOneAct_data();
    void typingIsOneAct();
    void undoLeadsToTheField();
    void keysWorkInEveryField_data();
    void keysWorkInEveryField();
    void actsOfTheForm();
    void menuNamesTheAct();
    void titleTellsOfChanges();
    void openGroupsStayOpen();
    void answersAreNoActs();
    void reloadCanBeUndone();
    void linesHaveNoHistoryOfTheirOwn();
};

void tst_History::typingIsOneAct_data()
{
    QTest::addColumn<Between>("between");
    QTest::addColumn<int>("acts");
    QTest::newRow("nothing") << Between([](OpenScenario*) {}) << 1;
    QTest::newRow("a pause") << Between([](OpenScenario*) { QTest::qWait(2100); }) << 2;
    QTest::newRow("a save") << Between([](OpenScenario* scenario) {
        Manager::save(scenario->dialog()->getCurrentJson());
    }) << 2;
    QTest::newRow("another field") << Between([](OpenScenario* scenario) {
        scenario->tree()->setFocus();
        scenario->hint()->setFocus();
    }) << 2;
    QTest::newRow("another step") << Between([](OpenScenario* scenario) {
        scenario->select({1});
        scenario->select({0});
        scenario->hint()->moveCursor(QTextCursor::End);
    }) << 2;
    QTest::newRow("undo and redo") << Between([](OpenScenario* scenario) {
        undo(*scenario);
        redo(*scenario);
        scenario->hint()->moveCursor(QTextCursor::End);
    }) << 2;
}

void tst_History::typingIsOneAct()
{
    QFETCH(Between, between);
    OpenScenario scenario(scenarioText("a b"_s));
    scenario.select({0});
    scenario.hint()->setFocus();
    scenario.hint()->moveCursor(QTextCursor::End);
    QTest::keyClicks(scenario.hint(), "bc"_s);
    between(&scenario);
    QTest::keyClicks(scenario.hint(), "de"_s);
    QCOMPARE(hintOf(scenario, {0}), "abcde"_s);
    QTEST(stackOf(scenario)->count(), "acts");
    undo(scenario);
    QCOMPARE(hintOf(scenario, {0}), stackOf(scenario)->canUndo() ? "abc"_s : "a"_s);
    redo(scenario);
    QCOMPARE(hintOf(scenario, {0}), "abcde"_s);
}

// Typed and deleted again is no act.
void tst_History::undoLeadsToTheField()
{
    OpenScenario scenario(scenarioText("a [g b ]"_s));
    scenario.select({0});
    QTest::keyClick(scenario.hint(), Qt::Key_X);
    QTest::keyClick(scenario.hint(), Qt::Key_Backspace);
    QCOMPARE(stackOf(scenario)->count(), 0);

    scenario.select({1, 0});
    scenario.hint()->setFocus();
    QTest::keyClicks(scenario.hint(), "x"_s);
    scenario.select({0});
    scenario.tree()->collapseAll();
    scenario.tree()->setFocus();
    undo(scenario);
    QCOMPARE(scenario.selectedRows(), "b"_s);
    QVERIFY(scenario.tree()->isExpanded(scenario.item({1})->index()));
    QCOMPARE(scenario.hint()->toPlainText(), "b"_s);
    QVERIFY(scenario.hint()->hasFocus());
}

void tst_History::keysWorkInEveryField_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
        {"steps", "x", "hint", "hintTranslation", "followWindow", "label", "save"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_History::keysWorkInEveryField()
{
    QFETCH(QString, name);
    OpenScenario scenario("var scenario = [\n{\n\"hint\": \"h\",\n\"x\": 1,\n\"y\": 2,\n"
                          "\"label\": \"l\",\n\"followWindow\": \"MainWindow\"\n}\n];"_s);
    const QString before = scenario.dialog()->getCurrentJson();
    scenario.select({0});
    scenario.widget<QLineEdit>("label")->setText("m"_s);
    scenario.widget<QLineEdit>("x")->setText("3"_s);
    auto* widget = scenario.dialog()->findChild<QWidget*>(name);
    widget->setFocus();
    undo(scenario);
    undo(scenario);
    QCOMPARE(scenario.dialog()->getCurrentJson(), before);
    redo(scenario);
    QCOMPARE(scenario.widget<QLineEdit>("label")->text(), "m"_s);
}

void tst_History::actsOfTheForm()
{
    OpenScenario scenario(scenarioText("a"_s));
    scenario.select({0});
    QStringList states{scenario.dialog()->getCurrentJson()};
    const auto act = [&](const std::function<void()>& work) {
        work();
        states << scenario.dialog()->getCurrentJson();
        return stackOf(scenario)->count() == states.size() - 1;
    };
    QVERIFY(act([] { Manager::setCoordinates(3, 4); }));
    QVERIFY(act([] { Manager::setCondition({"wait"_s, "7"_s}); }));
    QVERIFY(act([&] { scenario.widget<QPushButton>("refWindow")->click(); }));
    QVERIFY(act([&] {
        auto* menu = scenario.widget<QPushButton>("addField")->menu();
        emit menu->aboutToShow();
        for (QAction* action : menu->actions()) {
            if (action->text() == "Target"_s)
                action->trigger();
        }
    }));
    auto* target = scenario.widget<QLineEdit>("target");
    QVERIFY(!target->isHidden() && target->hasFocus());
    QVERIFY(act([&] { QTest::keyClicks(target, "find/ok"_s); }));
    QVERIFY2(states.last().contains("\"target\": \"find\\/ok\""_s), qPrintable(states.last()));
    QVERIFY(act([&] { scenario.widget<QComboBox>("condition")->setCurrentText("click"_s); }));

    for (int i = states.size() - 2; i >= 0; --i) {
        undo(scenario);
        QCOMPARE(scenario.dialog()->getCurrentJson(), states.at(i));
        QCOMPARE(target->isHidden(), i < 4);
    }
    QVERIFY(scenario.dialog()->isSaved());
    for (int i = 1; i < states.size(); ++i) {
        redo(scenario);
        QCOMPARE(scenario.dialog()->getCurrentJson(), states.at(i));
    }
    QCOMPARE(target->text(), "find/ok"_s);
}

void tst_History::menuNamesTheAct()
{
    OpenScenario scenario(scenarioText("[g a b ] c"_s));
    auto* undoAction = scenario.widget<QAction>("undo");
    QVERIFY(!undoAction->isEnabled());
    scenario.select({0});
    QTest::keyClick(scenario.tree(), Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(scenario.tree(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(undoAction->text().remove(QLatin1Char('&')), "Undo Paste of 3 Steps"_s);
    undoAction->trigger();
    QCOMPARE(undoAction->text().remove(QLatin1Char('&')), "Undo Cut of 3 Steps"_s);
    QCOMPARE(scenario.widget<QAction>("redo")->text().remove(QLatin1Char('&')),
        "Redo Paste of 3 Steps"_s);
    QVERIFY(scenario.dialog()->layout()->menuBar());
}

void tst_History::titleTellsOfChanges()
{
    OpenScenario scenario(scenarioText("a"_s));
    const QString title = scenario.dialog()->windowTitle();
    const auto isMarked = [&] {
        return scenario.dialog()->isWindowModified()
            && scenario.dialog()->windowTitle() == title + "[*]"_s;
    };
    QVERIFY(!isMarked());
    scenario.select({0});
    scenario.hint()->setPlainText("b"_s);
    QVERIFY(isMarked());
    Manager::save(scenario.dialog()->getCurrentJson());
    QCOMPARE(scenario.dialog()->windowTitle(), title);
    undo(scenario);
    QVERIFY(isMarked());
    redo(scenario);
    QVERIFY(!isMarked());
    // By hand to what is saved.
    scenario.hint()->setPlainText("c"_s);
    QVERIFY(isMarked());
    scenario.widget<QLineEdit>("label")->setFocus();
    scenario.hint()->setPlainText("b"_s);
    QTRY_VERIFY(!isMarked());
}

void tst_History::openGroupsStayOpen()
{
    OpenScenario scenario(scenarioText("a [g b [h c ] [i d ] ] e"_s));
    const auto isOpen = [&](const QList<int>& rows) {
        return scenario.tree()->isExpanded(scenario.item(rows)->index());
    };
    scenario.tree()->collapse(scenario.item({1, 1})->index());
    scenario.select({1});
    QTest::keyClick(scenario.tree(), Qt::Key_X, Qt::ControlModifier);
    undo(scenario);
    QVERIFY(isOpen({1}) && !isOpen({1, 1}) && isOpen({1, 2}));
    redo(scenario);
    QTest::keyClick(scenario.tree(), Qt::Key_V, Qt::ControlModifier);
    QVERIFY(isOpen({1}) && !isOpen({1, 1}) && isOpen({1, 2}));
    scenario.select({1, 2});
    QTest::keyClick(scenario.tree(), Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), "a|g|.b|.h|..c|..<>|.d|.<>|e|<>"_s);
    undo(scenario);
    QVERIFY(isOpen({1}) && !isOpen({1, 1}) && isOpen({1, 2}));
}

void tst_History::answersAreNoActs()
{
    OpenScenario scenario(scenarioText("a b"_s));
    scenario.select({0});
    Manager::untrCallback("hint"_s, "A"_s);
    Manager::untrCallback("hint1"_s, "B"_s);
    QCOMPARE(scenario.rows(), "A|B|<>"_s);
    QVERIFY(!stackOf(scenario)->canUndo());
    QVERIFY(scenario.dialog()->isSaved());
    // It comes back with the row.
    scenario.select({1});
    QTest::keyClick(scenario.tree(), Qt::Key_Delete);
    undo(scenario);
    QCOMPARE(scenario.rows(), "A|B|<>"_s);
}

void tst_History::linesHaveNoHistoryOfTheirOwn()
{
    OpenScenario scenario(scenarioText("a"_s));
    scenario.select({0});
    auto* x = scenario.widget<QLineEdit>("x");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(x, &event);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts << action->text();
    menu->close();
    QVERIFY2(texts.filter("Undo"_s).isEmpty(), qPrintable(texts.join(QLatin1Char('|'))));
    QVERIFY2(!texts.filter("Paste"_s).isEmpty(), qPrintable(texts.join(QLatin1Char('|'))));
}

void tst_History::reloadCanBeUndone()
{
    OpenScenario scenario(scenarioText("a [g b ]"_s));
    scenario.select({1, 0});
    scenario.hint()->setPlainText("c"_s);
    const QString changed = scenario.dialog()->getCurrentJson();
    scenario.write(scenarioText("new a [g b ]"_s));
    scenario.dialog()->reload();
    QCOMPARE(scenario.rows(), "new|a|g|.b|.<>|<>"_s);
    QVERIFY(scenario.dialog()->isSaved());
    undo(scenario);
    QCOMPARE(scenario.dialog()->getCurrentJson(), changed);
    QVERIFY(!scenario.dialog()->isSaved());
    QVERIFY(scenario.tree()->isExpanded(scenario.item({1})->index()));
    undo(scenario);
    QCOMPARE(hintOf(scenario, {1, 0}), "b"_s);
    redo(scenario);
    redo(scenario);
    QVERIFY(scenario.dialog()->isSaved());
}

QTEST_MAIN(tst_History)
#include "tst_history.moc"
