#include "openscenario.h"

#include "tests/support/modalboxes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTextEdit>
#include <QWheelEvent>

using namespace TutorialEditor;

namespace {

const QString kGeometry = QStringLiteral("TutorialEditor.geometry");

// A file with one step of these keys, and a second step.
QString withStep(const char* keys)
{
    return QStringLiteral("var scenario = [\n{\n%1\n},\n{\n\"hint\": \"other\"\n}\n];")
        .arg(QString::fromUtf8(keys));
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

void addField(const OpenScenario& scenario, const char* text)
{
    QMenu* menu = scenario.widget<QPushButton>("addField")->menu();
    menu->popup(QPoint(0, 0));
    const QList<QAction*> actions = menu->actions();
    const auto action = std::find_if(actions.begin(), actions.end(),
        [text](const QAction* candidate) { return candidate->text() == QLatin1String(text); });
    QVERIFY2(action != actions.end(), text);
    (*action)->trigger();
    menu->close();
}

} // namespace

class tst_Dialog : public QObject {
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }
    void cleanup();

    void remembersItsGeometry();
    void tabFollowsTheForm();
    void wheelDoesNotChangeABox();

    void conditions_data();
    void conditions();
    void lookingChangesNothing_data();
    void lookingChangesNothing();
    void stepsDoNotMix();
    void groupsShowHintAndLabel();
    void formLetsGoOfItems();
    void addedFieldsAreWritten();
    void textSurvivesTheBoxes();
    void takesWhatTheHostSends();
    void showsTranslations();

    void savesOnRequest();
    void keepsTheFormerFile();
    void failedSaveLosesNothing();
    void escapeAsks();
    void freshDialogHasNothingToSave();
};

void tst_Dialog::cleanup()
{
    for (const QWidget* window : QApplication::topLevelWidgets())
        QVERIFY2(!qobject_cast<const Dialog*>(window), "a dialog survived");
}

void tst_Dialog::remembersItsGeometry()
{
    {
        OpenScenario scenario(scenarioText(QStringLiteral("a")));
        QCOMPARE(scenario.dialog()->geometry(), QRect(200, 200, 200, 300));
        scenario.dialog()->setGeometry(50, 60, 700, 650);
    }
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    QCOMPARE(scenario.dialog()->geometry(), QRect(50, 60, 700, 650));
    QCOMPARE(scenario.dialog()->windowTitle(), QStringLiteral("scenario"));
}

void tst_Dialog::tabFollowsTheForm()
{
    OpenScenario scenario(withStep(
        "\"x\": 1,\n\"y\": 1,\n\"followWindow\": \"MainWindow\",\n\"comment\": \"c\",\n"
        "\"hint\": \"h\",\n\"condition\": \"windowState,MainWindow,open\",\n\"icon\": \"eye\",\n"
        "\"command\": \"presetData,a\",\n\"label\": \"l\",\n\"option\": 1"));
    scenario.dialog()->resize(800, 800);
    scenario.select({0});
    scenario.tree()->setFocus();
    const QString expected = QStringLiteral(
        "steps x y followWindow refWindow comment hint hintTranslation condition conditionWindow "
        "windowState icon command commandParameter label showArrow addField save steps");
    QStringList names;
    for (int i = 0; i <= expected.count(QLatin1Char(' ')); ++i) {
        names << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names.join(QLatin1Char(' ')), expected);
    for (const QLabel* label : scenario.dialog()->findChildren<QLabel*>()) {
        if (label->objectName().isEmpty())
            QVERIFY2(label->buddy(), qPrintable(label->text()));
    }
}

void tst_Dialog::wheelDoesNotChangeABox()
{
    OpenScenario scenario(withStep("\"hint\": \"h\",\n\"icon\": \"eye\""));
    scenario.select({0});
    auto* icon = scenario.widget<QComboBox>("icon");
    QWheelEvent event(QPointF(5, 5), icon->mapToGlobal(QPointF(5, 5).toPoint()), QPoint(),
        QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(icon, &event);
    QCOMPARE(icon->currentText(), QStringLiteral("eye"));
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
    const QString views = QStringLiteral("conditionWindow windowState list mouseEvent comparison "
                                         "hostAction parameter1 parameter2 parameter3");
    OpenScenario scenario(withStep("\"hint\": \"h\",\n\"condition\": \"no such kind,1\""));
    scenario.select({0});
    QCOMPARE(shownOf(scenario, views), QString());
    scenario.widget<QComboBox>("condition")
        ->setCurrentText(QString::fromUtf8(QTest::currentDataTag()));
    const QString json = scenario.item({0})->json();
    QCOMPARE(json, QStringLiteral("{\"condition\":\"%1\",\"hint\":\"h\"}").arg(written));
    QCOMPARE(shownOf(scenario, views), shown);

    // Away and back again: the same form, and the step as it was.
    scenario.select({1});
    QCOMPARE(shownOf(scenario, views), QString());
    scenario.select({0});
    QCOMPARE(shownOf(scenario, views), shown);
    QCOMPARE(scenario.item({0})->json(), json);

    // Whatever is shown can be changed, and only that changes.
    int parameter = 1;
    for (const QString& name : shown.split(QLatin1Char(' '))) {
        auto* box = scenario.dialog()->findChild<QComboBox*>(name);
        QString text = QStringLiteral("new");
        if (box) {
            text = box->itemText((box->currentIndex() + 1) % box->count());
            box->setCurrentText(text);
        } else {
            scenario.dialog()->findChild<QLineEdit*>(name)->setText(text);
        }
        QStringList parts = written.split(QLatin1Char(','));
        parts[parameter++] = text;
        written = parts.join(QLatin1Char(','));
        QVERIFY2(scenario.item({0})->json().contains(QLatin1Char('"') + written + QLatin1Char('"')),
            qPrintable(scenario.item({0})->json()));
    }
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
    scenario.widget<QTextEdit>("hint")->setPlainText(QStringLiteral("new"));
    QCOMPARE(scenario.item({0})->json(),
        QString(before).replace(QLatin1String("\"h\""), QLatin1String("\"new\"")));
}

void tst_Dialog::stepsDoNotMix()
{
    OpenScenario scenario(
        withStep("\"hint\": \"h\",\n\"label\": \"l\",\n\"comment\": \"c\",\n\"option\": 1,\n\"x\": "
                 "3,\n\"y\": 4,\n\"followWindow\": \"Options\""));
    scenario.select({0});
    QCOMPARE(scenario.widget<QCheckBox>("showArrow")->isChecked(), false);
    scenario.select({1});
    QCOMPARE(
        shownOf(scenario,
            QStringLiteral("x y followWindow comment hint condition icon command label showArrow")),
        QStringLiteral("hint"));
    scenario.widget<QTextEdit>("hint")->setPlainText(QStringLiteral("new"));
    QCOMPARE(scenario.item({1})->json(), QStringLiteral("{\"hint\":\"new\"}"));
    scenario.tree()->clearSelection();
    QCOMPARE(shownOf(scenario, QStringLiteral("hint hintTranslation label")), QString());
}

void tst_Dialog::groupsShowHintAndLabel()
{
    OpenScenario scenario(scenarioText(QStringLiteral("[g a ]")));
    scenario.select({0});
    QCOMPARE(shownOf(scenario, QStringLiteral("x comment hint label condition")),
        QStringLiteral("hint"));
    addField(scenario, "Label");
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("start"));
    QCOMPARE(scenario.item({0})->json(), QStringLiteral("{\"hint\":\"g\",\"label\":\"start\"}"));
    QVERIFY(scenario.dialog()->getCurrentJson().contains(QLatin1String("\"label\": \"start\",\n")));
    QMenu* menu = scenario.widget<QPushButton>("addField")->menu();
    menu->popup(QPoint(0, 0));
    QCOMPARE(menu->actions().size(), 1);
    QVERIFY(!menu->actions().first()->isEnabled());
    menu->close();
}

void tst_Dialog::formLetsGoOfItems()
{
    OpenScenario scenario(scenarioText(QStringLiteral("[g a b ] c")));
    auto* hint = scenario.widget<QTextEdit>("hint");
    scenario.select({0, 1});
    scenario.model()->removeRow(0);
    QVERIFY(hint->isHidden());
    scenario.select({0});
    QVERIFY(!hint->isHidden());
    scenario.write(scenarioText(QStringLiteral("d")));
    Manager::setContents(scenario.path());
    QVERIFY(hint->isHidden());
    hint->setPlainText(QStringLiteral("lost"));
    QCOMPARE(scenario.rows(), QStringLiteral("d|<>"));
}

void tst_Dialog::addedFieldsAreWritten()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    scenario.select({0});
    const char* const names[] = {"Position", "Followed window", "Comment", "Condition", "Icon",
        "Label", "Command", "Hidden arrow"};
    for (const char* name : names) {
        addField(scenario, name);
        QCOMPARE(scenario.item({0})->json(), QStringLiteral("{\"hint\":\"a\"}"));
    }
    scenario.widget<QLineEdit>("y")->setText(QStringLiteral("7"));
    scenario.widget<QComboBox>("followWindow")->setCurrentIndex(1);
    scenario.widget<QTextEdit>("comment")->setPlainText(QStringLiteral("c"));
    scenario.widget<QComboBox>("condition")->setCurrentIndex(1);
    scenario.widget<QComboBox>("icon")->setCurrentIndex(1);
    scenario.widget<QLineEdit>("label")->setText(QStringLiteral("l"));
    scenario.widget<QComboBox>("command")->setCurrentIndex(0);
    scenario.widget<QCheckBox>("showArrow")->click();
    QCOMPARE(scenario.item({0})->json(),
        QStringLiteral("{\"command\":\"presetData,\",\"comment\":\"c\",\"condition\":\"wait,1\","
                       "\"followWindow\":\"NewProject\",\"hint\":\"a\",\"icon\":\"doubleClick\","
                       "\"label\":\"l\",\"option\":1,\"x\":-9999,\"y\":7}"));
    QVERIFY(!scenario.item({0})->icon().isNull());
    QVERIFY(scenario.item({0})->text().endsWith(QLatin1String(" --- NewProject(,7)")));

    // A comment that was emptied can come back.
    scenario.widget<QTextEdit>("comment")->clear();
    QVERIFY(!scenario.item({0})->json().contains(QLatin1String("comment")));
    scenario.tree()->clearSelection();
    scenario.select({0});
    QVERIFY(scenario.widget<QTextEdit>("comment")->isHidden());
    addField(scenario, "Comment");
    QVERIFY(!scenario.widget<QTextEdit>("comment")->isHidden());
}

// QTextEdit makes a plain blank of a non-breaking one.
void tst_Dialog::textSurvivesTheBoxes()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    scenario.select({0});
    const QString typed = QString::fromUtf8("« non\u00a0breaking »\n\ttab \"q\" /\\ 😀");
    scenario.widget<QTextEdit>("hint")->setPlainText(typed);
    QCOMPARE(scenario.dialog()
                 ->getCurrentSteps()
                 .first()
                 .toObject()
                 .value(QLatin1String("hint"))
                 .toString(),
        typed);
}

void tst_Dialog::takesWhatTheHostSends()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b ]")));
    Manager::setCoordinates(4, 5); // nothing is in the form
    QCOMPARE(scenario.widget<QLineEdit>("x")->text(), QStringLiteral("4"));
    Manager::focusActionIndexList({1, 0});
    QCOMPARE(scenario.selectedRows(), QStringLiteral("b"));
    Manager::setCoordinates(-3, 70);
    Manager::setCondition({QStringLiteral("textLength"), QStringLiteral("<")});
    QCOMPARE(scenario.item({1, 0})->json(),
        QStringLiteral("{\"condition\":\"textLength,<,1\",\"hint\":\"b\",\"x\":-3,\"y\":70}"));
    QCOMPARE(scenario.widget<QComboBox>("comparison")->currentText(), QStringLiteral("<"));
    Manager::focusActionIndexList({9});
    QVERIFY(scenario.tree()->selectionModel()->isSelected(scenario.item({1, 0})->index()));
    Manager::focusActionIndexList({0});
    QVERIFY(scenario.widget<QLineEdit>("x")->isHidden());
    QCOMPARE(scenario.item({0})->json(), QStringLiteral("{\"hint\":\"a\"}"));
}

void tst_Dialog::showsTranslations()
{
    OpenScenario scenario(withStep(
        "\"hint\": qsTr(\"Go\"),\n\"comment\": \"c\",\n\"x\": 3,\n\"followWindow\": \"Options\""));
    Manager::untrCallback(QStringLiteral("hint0"), QStringLiteral("\"Los \\\"hin\\\"\\n\""));
    QCOMPARE(scenario.item({0})->text(), QStringLiteral("Los \"hin\"/ --- Options(3,)"));
    // Answers for a step that is gone, and for no step.
    Manager::untrCallback(QStringLiteral("hint0,5"), QStringLiteral("wrong"));
    Manager::untrCallback(QStringLiteral("other"), QStringLiteral("wrong"));
    scenario.select({0});
    QCOMPARE(scenario.widget<QTextEdit>("hintTranslation")->toPlainText(),
        QStringLiteral("Los \"hin\"\n"));
    Manager::untrCallback(QStringLiteral("comment"), QStringLiteral("k"));
    QCOMPARE(scenario.widget<QLabel>("commentTranslation")->text(), QStringLiteral("k"));
    Manager::untrCallback(QStringLiteral("hint"), QStringLiteral("Weiter"));
    QCOMPARE(scenario.item({0})->translation(), QStringLiteral("Weiter"));
    QCOMPARE(scenario.item({0})->text(), QStringLiteral("Weiter --- Options(3,)"));
    QVERIFY(scenario.dialog()->checkSave(true));
}

void tst_Dialog::savesOnRequest()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    scenario.select({0});
    scenario.widget<QTextEdit>("hint")->setPlainText(QStringLiteral("b"));
    const QString before = scenario.fileText();
    auto* save = scenario.widget<QPushButton>("save");
    {
        ModalBoxes boxes(
            QMessageBox::Cancel, [](QMessageBox* box) { QVERIFY(!box->button(QMessageBox::No)); });
        save->click();
        QCOMPARE(boxes.seen(), QStringList(QStringLiteral("Save: Save OK?")));
        QCOMPARE(scenario.fileText(), before);
    }
    {
        ModalBoxes boxes(QMessageBox::Yes);
        save->click();
        QVERIFY(boxes.isDone());
        QCOMPARE(scenario.fileText(), scenarioText(QStringLiteral("b")));
    }
    ModalBoxes boxes;
    save->click();
    QVERIFY(boxes.seen().isEmpty());
    QVERIFY(!QFile::exists(scenario.path() + QLatin1String(".bak")));
}

void tst_Dialog::keepsTheFormerFile()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b c ]")));
    scenario.select({1, 1});
    const QString before = scenario.fileText();
    // The second time the file that can be read is the kept one already.
    for (const char* hint : {"qsTr(\"half", "qsTr(\"half typed"}) {
        scenario.widget<QTextEdit>("hint")->setPlainText(QString::fromUtf8(hint));
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

void tst_Dialog::failedSaveLosesNothing()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    scenario.select({0});
    scenario.widget<QTextEdit>("hint")->setPlainText(QStringLiteral("b"));
    // A folder that is gone.
    QVERIFY(QDir(QFileInfo(scenario.path()).path()).removeRecursively());
    ModalBoxes boxes(QList<ModalBoxes::Answer>{
        {QMessageBox::Yes, nullptr}, {QMessageBox::Ok, nullptr}, {QMessageBox::Cancel, nullptr}});
    QTest::keyClick(scenario.dialog(), Qt::Key_Escape);
    QVERIFY(scenario.dialog()->isVisible());
    QVERIFY(!Manager::mInstance->checkSave(true));
    QVERIFY(boxes.isDone());
}

void tst_Dialog::escapeAsks()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    const QPointer<Dialog> dialog = scenario.dialog();
    scenario.select({0});
    scenario.widget<QTextEdit>("hint")->setPlainText(QStringLiteral("b"));
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
    QCOMPARE(scenario.fileText(), scenarioText(QStringLiteral("a")));
    QVERIFY(Manager::mInstance->checkSave(true));
}

// A late answer of the host makes a dialog that is empty: that is no change.
void tst_Dialog::freshDialogHasNothingToSave()
{
    {
        OpenScenario scenario(scenarioText(QStringLiteral("a")));
    }
    ModalBoxes boxes;
    Manager::untrCallback(QStringLiteral("hint0"), QStringLiteral("late"));
    QVERIFY(Manager::mInstance->checkSave(true));
    QVERIFY(boxes.seen().isEmpty());
    OpenScenario scenario(scenarioText(QStringLiteral("b")));
}

QTEST_MAIN(tst_Dialog)
#include "tst_dialog.moc"
