#include "openscenario.h"

#include "tests/support/modalboxes.h"

using namespace TutorialEditor;

class tst_Model : public QObject {
    Q_OBJECT

private slots:
    void itemsAreOneLineHigh();
    void loadsIconsTextsAndDepths();
    void reportsWhatItCannotRead_data();
    void reportsWhatItCannotRead();
    void longErrorsAreShortened();
    void everyLevelEndsWithAMarker();
    void findsItemsByTheirRows();
    void removesOnlyTheTopItems();
    void groupsAndUngroups();
};

void tst_Model::itemsAreOneLineHigh()
{
    TutorialItem item(QStringLiteral("x"));
    QCOMPARE(item.depth(), -1);
    QVERIFY(!item.isGroup());
    item.setData(QStringLiteral("a\nb"), Qt::EditRole);
    QCOMPARE(item.text(), QStringLiteral("a/b"));
}

void tst_Model::loadsIconsTextsAndDepths()
{
    OpenScenario scenario(
        QStringLiteral("var scenario = [\n{\"hint\": \"g\",\n\"label\": \"l\",\n\"group\": [\n"
                       "{\"hint\": qsTr(\"Go\"),\n\"followWindow\": \"NoSuch\",\n\"x\": 1,\n\"y\": "
                       "-2,\n\"icon\": \"eye\"\n}\n]\n}\n];"));
    QCOMPARE(scenario.rows(), QStringLiteral("g|.qsTr(\"Go\") --- NoSuch(1,-2)|.<>|<>"));
    const TutorialItem* group = scenario.item({0});
    QVERIFY(group->isGroup());
    // A group's steps are rows, not text that is kept a second time.
    QCOMPARE(group->json(), QStringLiteral("{\"hint\":\"g\",\"label\":\"l\"}"));
    const TutorialItem* step = scenario.item({0, 0});
    QCOMPARE(step->depth(), 1);
    QVERIFY(!step->icon().isNull());
    QCOMPARE(step->json(),
        QStringLiteral("{\"followWindow\":\"NoSuch\",\"hint\":\"qsTr(\\\"Go\\\")\",\"icon\":"
                       "\"eye\",\"x\":1,\"y\":-2}"));
    QCOMPARE(scenario.item({0, 1})->depth(), -1);
}

void tst_Model::reportsWhatItCannotRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("rows");
    const auto add = [](const char* tag, const char* text, const char* message, const char* rows) {
        QTest::newRow(tag) << QString::fromUtf8(text) << QString::fromUtf8(message)
                           << QString::fromUtf8(rows);
    };
    add("no array", "{}", "json is not array", "");
    add("cut off", "[\n{\"hint\": \"a\",\n", "json is not array", "");
    add("open translation", "[\n{\"hint\": qsTr(\"a", "closeMarker", "");
    add("a number", "[\n{\"hint\": \"a\",\n\"x\":\n1\n},\n5\n]", "step is not an object (step 1)",
        "a|<>");
    add("group is a number", "[\n{\"hint\": \"a\",\n\"group\":\n1\n}\n]",
        "group is not an array (step 0)", "a|.<>|<>");
    add("unknown icon",
        "[\n{\"hint\": \"g\",\n\"group\":\n[\n"
        "{\n\"icon\":\n\"dog\",\n\"condition\":\n\"wait,1\"\n}\n]\n}\n]",
        "unknown icon: dog(wait,1) (step 0,0)", "g|.|.<>|<>");
}

void tst_Model::reportsWhatItCannotRead()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    QFETCH(QString, rows);
    ModalBoxes boxes(QMessageBox::Ok);
    OpenScenario scenario(text);
    QVERIFY(boxes.isDone());
    QVERIFY2(boxes.seen().first().startsWith(QStringLiteral("Parse error: "))
            && boxes.seen().first().contains(message),
        qPrintable(boxes.seen().first()));
    QCOMPARE(scenario.rows(), rows);
    // What was not read does not count as a change.
    QVERIFY(scenario.dialog()->checkSave(true));
}

// An error may hold the rest of the file: a box with all of it took a minute.
void tst_Model::longErrorsAreShortened()
{
    ModalBoxes boxes(QMessageBox::Ok);
    OpenScenario scenario(QString(1000000, QLatin1Char('"')));
    QVERIFY(boxes.isDone());
    QVERIFY(boxes.seen().first().size() < 3000);
}

void tst_Model::everyLevelEndsWithAMarker()
{
    OpenScenario scenario(scenarioText(QStringLiteral("[a [b ] ]")));
    QCOMPARE(scenario.rows(), QStringLiteral("a|.b|..<>|.<>|<>"));
    OpenScenario empty(QStringLiteral("[]"));
    QCOMPARE(empty.rows(), QStringLiteral("<>"));
}

void tst_Model::findsItemsByTheirRows()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [b [c d ] ]")));
    Model* model = scenario.model();
    QCOMPARE(scenario.item({1, 0, 0})->text(), QStringLiteral("d"));
    QCOMPARE(model->getActionIndexList(scenario.item({1, 0, 0})), QList<int>({1, 0, 0}));
    QCOMPARE(scenario.item({1, 99})->text(), QStringLiteral("b"));
    QCOMPARE(model->getItemByActionIndexList({-1}), model->invisibleRootItem());
    QVERIFY(!model->getItemByActionIndexList({}));
}

void tst_Model::removesOnlyTheTopItems()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [b c d ] e f")));
    Model* model = scenario.model();
    const auto remove = [&](const QList<QList<int>>& lists) {
        QList<QModelIndex> indexes;
        for (const QList<int>& rows : lists)
            indexes << scenario.item(rows)->index();
        model->removeModelIndexList(indexes);
    };
    QCOMPARE(model->getMinimumDepth({}), -1);
    remove({{1, 2}, {4}});
    QCOMPARE(scenario.rows(), QStringLiteral("a|b|.c|.d|.<>|e|f|<>"));
    // Neither in order nor in one run.
    remove({{3}, {1, 0}, {1, 2}, {1}, {4}});
    QCOMPARE(scenario.rows(), QStringLiteral("a|e|<>"));
}

// Every depth stays the level's number: a wrong one would lose steps in the file.
void tst_Model::groupsAndUngroups()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [b [c d ] ] e f")));
    const QString before = scenario.dialog()->getCurrentJson();
    const auto index = [&](int row) { return scenario.item({row})->index(); };
    scenario.model()->grouping(
        scenario.tree(), QStringLiteral("new"), {index(0), index(1), index(2)});
    QCOMPARE(scenario.rows(), QStringLiteral("new|.a|.b|..c|...d|...<>|..<>|.e|.<>|f|<>"));
    QCOMPARE(scenario.selectedRows(), QStringLiteral("new|a|b|e|<>|c|<>|d|<>"));
    QVERIFY(scenario.tree()->isExpanded(index(0)));
    QCOMPARE(scenario.item({0})->translation(), QStringLiteral("new"));
    QCOMPARE(scenario.item({0, 1, 0, 0})->depth(), 3);
    QVERIFY(scenario.item({0, 1, 0, 0})->index().isValid());

    scenario.model()->ungrouping(scenario.tree(), scenario.item({0}));
    QCOMPARE(scenario.rows(), QStringLiteral("a|b|.c|..d|..<>|.<>|e|f|<>"));
    QCOMPARE(scenario.selectedRows(), QStringLiteral("a|b|e|c|<>|d|<>"));
    QCOMPARE(scenario.dialog()->getCurrentJson(), before);

    // Neither an end marker nor the top level can be grouped or dissolved.
    scenario.model()->grouping(scenario.tree(), QStringLiteral("new"), {index(4)});
    scenario.model()->ungrouping(scenario.tree(), scenario.model()->invisibleRootItem());
    scenario.model()->ungrouping(scenario.tree(), nullptr);
    QCOMPARE(scenario.dialog()->getCurrentJson(), before);
}

QTEST_MAIN(tst_Model)
#include "tst_model.moc"
