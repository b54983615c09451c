// SPDX-License-Identifier: MIT
#include "openscenario.h"

#include "tests/support/modalboxes.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>

using namespace TutorialEditor;

namespace {

const QString kGeometry = "TutorialEditor.geometry"_s;

// A file with one step of these keys, and a second step.
QString withStep(const char* keys)
{
    return "var scenario = [\n{\n%1\n},\n{\n\"hint\": \"other\"\n}\n];"_s.arg(
        QString::fromUtf8(keys));
}

// The names of the widgets that are shown, out of a list of names.
QString shownOf(const OpenScenario& scenario, const QString& names)
{
    QStringList shown;
    for (const QString& name : names.split(QLatin1Char(' '))) {
        if (!scenario.dialog()->findChild<QWidget*>(name)->isHidden())
            shown << name;
    }
    return shown.join(QLatin1Char(' '));
}

} // namespace

class tst_Dialog : public QObject {
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }
    void cleanup();

    void conditions_data();
    void conditions();
    void lookingChangesNothing_data();
    void lookingChangesNothing();

    void formLetsGoOfItems();
    void keepsTheFormerFile();
    void escapeAsks();
    void canBeReadWhenFirstOpened();
};

void tst_Dialog::cleanup()
{
    for (const QWidget* window : QApplication::topLevelWidgets())
        QVERIFY2(!qobject_cast<const Dialog*>(window), "a dialog survived");
}

void tst_Dialog::conditions_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("shown");
    const auto add = [](const char* kind, const char* written, const char* shown) {
        QTest::newRow(kind) << QString::fromUtf8(written) << QString::fromUtf8(shown);
    };
    add("windowState", "windowState,MainWindow,open", "conditionWindow windowState");
    add("wait", "wait,1", "parameter1");
    add("mouseEvent", "mouseEvent,listBox1,click", "list mouseEvent");
    add("textLength", "textLength,>=,1", "comparison parameter2");
    add("popup", "popup,*", "parameter1");
    add("list", "list,-1", "parameter1");
    add("click", "click,", "parameter1");
    add("action", "action,Map,", "hostAction");
    add("pressed", "pressed,0,0", "parameter1 parameter2");
    add("comboBox", "comboBox,trigger,0", "parameter1 parameter2");
    add("checked", "checked,walkAnime,1", "parameter1 parameter2");
    add("spinBox", "spinBox,>=,0", "comparison parameter2");
    add("yesNo", "yesNo,,", "parameter1 parameter2");
}

void tst_Dialog::conditions()
{
    QFETCH(QString, written);
    QFETCH(QString, shown);
    const QString views = "conditionWindow windowState list mouseEvent comparison "
                          "hostAction parameter1 parameter2 parameter3"_s;
    OpenScenario scenario(withStep("\"hint\": \"h\",\n\"condition\": \"no such kind,1\""));
    scenario.select({0});
    QCOMPARE(shownOf(scenario, views), QString());
    scenario.widget<QComboBox>("condition")
        ->setCurrentText(QString::fromUtf8(QTest::currentDataTag()));
    const QString json = scenario.item({0})->json();
    QCOMPARE(json, "{\"condition\":\"%1\",\"hint\":\"h\"}"_s.arg(written));
    QCOMPARE(shownOf(scenario, views), shown);

    // Away and back again: the same form, and the step as it was.
    scenario.select({1});
    QCOMPARE(shownOf(scenario, views), QString());
    scenario.select({0});
    QCOMPARE(shownOf(scenario, views), shown);
    QCOMPARE(scenario.item({0})->json(), json);
}

void tst_Dialog::lookingChangesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing the form knows") << withStep(
        "\"hint\": \"h\",\n\"followWindow\": \"NoSuch\",\n\"icon\": \"eye\",\n\"condition\": "
        "\"never,1,2,3,4\",\n\"command\": \"fly,1\",\n\"option\": 7,\n\"extra\": true");
    QTest::newRow("more than the form shows")
        << withStep("\"hint\": \"h\",\n\"condition\": \"wait,1,2,3,4\",\n\"command\": "
                    "\"presetData,1,2\",\n\"x\": 3");
    QTest::newRow("rows that the boxes lack")
        << withStep("\"hint\": \"h\",\n\"condition\": \"mouseEvent,tree,drag\"");
}

void tst_Dialog::lookingChangesNothing()
{
    QFETCH(QString, text);
    OpenScenario scenario(text);
    const QString before = scenario.item({0})->json();
    scenario.select({0});
    scenario.select({1});
    scenario.select({0});
    QCOMPARE(scenario.item({0})->json(), before);
    // What is not touched stays when something else is.
    scenario.hint()->setPlainText("new"_s);
    QCOMPARE(scenario.item({0})->json(),
        QString(before).replace(QLatin1String("\"h\""), QLatin1String("\"new\"")));
}

void tst_Dialog::formLetsGoOfItems()
{
    OpenScenario scenario(scenarioText(QStringLiteral("[g a b ] c")));
    QTextEdit* hint = scenario.hint();
    scenario.select({0, 1});
    scenario.model()->removeRow(0);
    QVERIFY(hint->isHidden());
    scenario.select({0});
    QVERIFY(!hint->isHidden());
    scenario.dialog()->setLastJson(scenario.dialog()->getCurrentJson());
    scenario.write(scenarioText(QStringLiteral("d")));
    Manager::setContents(scenario.path());
    QVERIFY(hint->isHidden());
    hint->setPlainText(QStringLiteral("lost"));
    QCOMPARE(scenario.rows(), QStringLiteral("d|<>"));
}

void tst_Dialog::keepsTheFormerFile()
{
    OpenScenario scenario(scenarioText("a [g b c ]"_s));
    scenario.select({1, 1});
    const QString before = scenario.fileText();
    // The second time the file that can be read is the kept one already.
    for (const char* hint : {"qsTr(\"half", "qsTr(\"half typed"}) {
        scenario.hint()->setPlainText(QString::fromUtf8(hint));
        ModalBoxes boxes(
            QList<ModalBoxes::Answer>{{QMessageBox::Yes, nullptr}, {QMessageBox::Ok, nullptr}});
        scenario.widget<QPushButton>("save")->click();
        QVERIFY(boxes.isDone());
        QVERIFY2(
            boxes.seen().last().contains(QLatin1String("1,1")), qPrintable(boxes.seen().last()));
        QVERIFY(scenario.fileText().contains(QString::fromUtf8(hint) + QLatin1Char('\n')));
        QFile kept(scenario.path() + QLatin1String(".bak"));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(kept.readAll()), before);
    }
}

void tst_Dialog::escapeAsks()
{
    OpenScenario scenario(scenarioText("a"_s));
    const QPointer<Dialog> dialog = scenario.dialog();
    scenario.select({0});
    scenario.hint()->setPlainText("b"_s);
    // Return presses no button.
    QTest::keyClick(scenario.widget<QLineEdit>("x"), Qt::Key_Return);
    {
        ModalBoxes boxes(QMessageBox::Cancel);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(boxes.isDone());
        QVERIFY(dialog->isVisible());
        QVERIFY(!QSettings().contains(kGeometry));
    }
    ModalBoxes boxes(QMessageBox::No);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(boxes.isDone());
    QVERIFY(QSettings().contains(kGeometry));
    QTRY_VERIFY(!dialog);
    QCOMPARE(scenario.fileText(), scenarioText("a"_s));
    QVERIFY(Manager::mInstance->checkSave(true));
}

// At first it is as large as its fields want; then as the author left it.
void tst_Dialog::canBeReadWhenFirstOpened()
{
    const QRect small(30, 40, 210, 310);
    for (const QPoint& corner : {QPoint(200, 200), small.topLeft()}) {
        OpenScenario scenario(scenarioText("a"_s));
        const auto* area = scenario.dialog()->findChild<QScrollArea*>();
        QCOMPARE(scenario.dialog()->geometry().topLeft(), corner);
        const bool isFirst = corner != small.topLeft();
        const bool isReadable = area->width() >= area->widget()->sizeHint().width()
            || scenario.dialog()->geometry().right() == area->screen()->geometry().right();
        QCOMPARE(isReadable, isFirst);
        QCOMPARE(scenario.dialog()->size() == small.size(), !isFirst);
        scenario.dialog()->setGeometry(small);
        scenario.dialog()->close();
    }
}

QTEST_MAIN(tst_Dialog)
#include "tst_dialog.moc"
