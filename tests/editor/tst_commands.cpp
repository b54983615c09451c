#include "openscenario.h"

#include "editor/scenarioreader.h"
#include "editor/scenariowriter.h"
#include "editor/translationescape.h"
#include "tests/support/modalboxes.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QRandomGenerator>
#include <QTextEdit>

using namespace TutorialEditor;

namespace {

QString clipboardText()
{
    return QGuiApplication::clipboard()->text();
}

} // namespace

class tst_Commands : public QObject {
    Q_OBJECT

private slots:
    void newStepGoesAboveTheSelection();
    void deletesAndCuts();
    void copiedTextIsExact();
    void pastesAboveTheSelection();
    void pasteReportsWhatItCannotRead();
    void groupsTheRun();
    void ungroupsWholeGroupsOnly();
    void endMarkerStays_data();
    void endMarkerStays();
    void menuOpensOverRowsOnly();
    void randomWalk();
};

void tst_Commands::newStepGoesAboveTheSelection()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b c ] d")));
    scenario.select({1, 1});
    scenario.press(Qt::Key_Enter);
    QCOMPARE(scenario.rows(), QStringLiteral("a|g|.b|.|.c|.<>|d|<>"));
    const TutorialItem* step = scenario.item({1, 1});
    QCOMPARE(scenario.tree()->getSelectedIndexes(), QList<QModelIndex>{step->index()});
    QVERIFY(!scenario.widget<QLineEdit>("x")->isHidden());
    QCOMPARE(step->json(),
        QStringLiteral("{\"comment\":\"\",\"condition\":\"click\",\"followWindow\":\"\",\"hint\":"
                       "\"\",\"icon\":\"click\",\"x\":0,\"y\":0}"));
    QVERIFY(!step->icon().isNull());
    // One step for a run, and one above the end.
    scenario.select({0}, {1, 0});
    scenario.press(Qt::Key_Enter);
    scenario.select({4});
    scenario.press(Qt::Key_Enter);
    QCOMPARE(scenario.rows(), QStringLiteral("|a|g|.b|.|.c|.<>|d||<>"));
    scenario.tree()->clearSelection();
    scenario.press(Qt::Key_Enter);
    QCOMPARE(scenario.model()->rowCount(), 6);
}

void tst_Commands::deletesAndCuts()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b c ] d e")));
    QGuiApplication::clipboard()->setText(QStringLiteral("other"));
    scenario.select({1, 0});
    scenario.press(Qt::Key_Delete);
    QCOMPARE(scenario.rows(), QStringLiteral("a|g|.c|.<>|d|e|<>"));
    QCOMPARE(clipboardText(), QStringLiteral("other"));
    scenario.select({1}, {2});
    scenario.press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), QStringLiteral("a|e|<>"));
    QVERIFY(!scenario.tree()->selectionModel()->hasSelection());
    scenario.select({1});
    scenario.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), QStringLiteral("a|g|.c|.<>|d|e|<>"));
    // Nothing is selected: nothing is removed.
    scenario.tree()->clearSelection();
    scenario.press(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(clipboardText(), QStringLiteral("[]"));
    QCOMPARE(scenario.rows(), QStringLiteral("a|g|.c|.<>|d|e|<>"));
}

void tst_Commands::copiedTextIsExact()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b [h c ] ] d")));
    scenario.select({0}, {2});
    scenario.press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboardText(),
        QStringLiteral("[{\"hint\":\"a\"},\n{ \"hint\": \"g\", \"group\": [{\"hint\":\"b\"},\n{ "
                       "\"hint\": \"h\", \"group\": [{\"hint\":\"c\"}]}]},\n{\"hint\":\"d\"}]"));
    QCOMPARE(scenario.rows(), QStringLiteral("a|g|.b|.h|..c|..<>|.<>|d|<>"));
}

void tst_Commands::pastesAboveTheSelection()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b ]")));
    QGuiApplication::clipboard()->setText(
        QStringLiteral("[{\"hint\":\"x\"}, {\"hint\":\"k\",\"group\":[{\"hint\":\"y\"}]}]"));
    scenario.select({1, 0});
    scenario.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), QStringLiteral("a|g|.x|.k|..y|..<>|.b|.<>|<>"));
    QCOMPARE(scenario.item({1, 1, 0})->depth(), 2);
    QCOMPARE(scenario.selectedRows(), QStringLiteral("b"));

    // The group that the grouping command makes has quotes in its hint, so that
    // its text is no JSON.
    scenario.select({0});
    scenario.press(Qt::Key_B, Qt::ControlModifier);
    scenario.press(Qt::Key_C, Qt::ControlModifier);
    scenario.press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(clipboardText().startsWith(QLatin1String("[{ \"hint\": \"qsTr(\"group\")\", ")));
    QCOMPARE(scenario.rows(),
        QStringLiteral("qsTr(\"group\")|.a|.<>|group|.a|.<>|g|.x|.k|..y|..<>|.b|.<>|<>"));
    QCOMPARE(scenario.item({0})->json(), scenario.item({1})->json());
}

void tst_Commands::pasteReportsWhatItCannotRead()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a")));
    scenario.select({0});
    for (const char* text : {"no json", "{\"hint\":\"x\"}"}) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        ModalBoxes boxes(QMessageBox::Ok);
        scenario.press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(boxes.isDone());
        QVERIFY(boxes.seen().first().startsWith(QLatin1String("Parse error: json is not array")));
    }
    QGuiApplication::clipboard()->setText(QStringLiteral("[]"));
    scenario.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), QStringLiteral("a|<>"));
    // What can be read is kept.
    QGuiApplication::clipboard()->setText(QStringLiteral("[{\"hint\":\"x\",\"icon\":\"dog\"}]"));
    ModalBoxes boxes(QMessageBox::Ok);
    scenario.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(
        boxes.seen(), QStringList(QStringLiteral("Parse error: unknown icon: dog() (step 0)")));
    QCOMPARE(scenario.rows(), QStringLiteral("x|a|<>"));
}

// An expanded group within the run comes first in Qt's order.
void tst_Commands::groupsTheRun()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b ] c d")));
    scenario.select({0}, {2});
    scenario.press(Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), QStringLiteral("group|.a|.g|..b|..<>|.c|.<>|d|<>"));
    QCOMPARE(scenario.widget<QTextEdit>("hint")->toPlainText(), QStringLiteral("qsTr(\"group\")"));
    scenario.press(Qt::Key_I, Qt::ControlModifier); // it holds a group with contents
    QCOMPARE(scenario.model()->rowCount(), 3);
}

void tst_Commands::ungroupsWholeGroupsOnly()
{
    OpenScenario scenario(scenarioText(QStringLiteral("[g a b ] [h c d ] e")));
    scenario.select({0});
    scenario.press(Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), QStringLiteral("a|b|h|.c|.d|.<>|e|<>"));
    QCOMPARE(scenario.selectedRows(), QStringLiteral("a|b"));
    scenario.select({2, 0}, {2, 1});
    scenario.press(Qt::Key_I, Qt::ControlModifier); // only some of its rows
    QCOMPARE(scenario.model()->rowCount(), 5);
    scenario.select({2, 0}, {2, 2});
    scenario.press(Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), QStringLiteral("a|b|c|d|e|<>"));
    scenario.select({0}, {5});
    scenario.press(Qt::Key_I, Qt::ControlModifier); // there is no group to dissolve
    QCOMPARE(scenario.rows(), QStringLiteral("a|b|c|d|e|<>"));
}

void tst_Commands::endMarkerStays_data()
{
    QTest::addColumn<QList<int>>("first");
    QTest::addColumn<QList<int>>("last");
    QTest::newRow("alone") << QList<int>{1, 1} << QList<int>{1, 1};
    QTest::newRow("with its siblings") << QList<int>{1, 0} << QList<int>{1, 1};
    QTest::newRow("with its group") << QList<int>{1} << QList<int>{1, 1};
    QTest::newRow("all") << QList<int>{0} << QList<int>{2};
}

void tst_Commands::endMarkerStays()
{
    QFETCH(QList<int>, first);
    QFETCH(QList<int>, last);
    const QList<QPair<Qt::Key, Qt::KeyboardModifiers>> keys{{Qt::Key_Delete, Qt::NoModifier},
        {Qt::Key_X, Qt::ControlModifier}, {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_V, Qt::ControlModifier}, {Qt::Key_B, Qt::ControlModifier},
        {Qt::Key_I, Qt::ControlModifier}, {Qt::Key_Space, Qt::NoModifier}};
    for (const auto& key : keys) {
        QGuiApplication::clipboard()->setText(QStringLiteral("[]"));
        OpenScenario scenario(scenarioText(QStringLiteral("a [g b ]")));
        scenario.select(first, last);
        // Starting would ask whether to save; there is nothing to save here.
        scenario.press(key.first, key.second);
        QVERIFY(!clipboardText().contains(QLatin1Char('<')));
        QVERIFY2(scenario.rows().endsWith(QLatin1String("<>")), qPrintable(scenario.rows()));
        const QStandardItem* root = scenario.model()->invisibleRootItem();
        for (int row = 0; row < root->rowCount(); ++row) {
            const QStandardItem* group = root->child(row);
            if (group->rowCount() > 0)
                QCOMPARE(group->child(group->rowCount() - 1)->text(), QStringLiteral("<>"));
        }
        QCOMPARE(scenario.rows().count(QLatin1String("<>")),
            1 + scenario.rows().count(QLatin1String("g|"))
                + scenario.rows().count(QLatin1String("group|")));
    }
}

void tst_Commands::menuOpensOverRowsOnly()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a b")));
    scenario.dialog()->resize(600, 900);
    scenario.select({1});
    QString entries;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* action : menu->actions())
            entries += action->isSeparator() ? QStringLiteral("|") : action->text();
        menu->actions().at(2)->trigger(); // New
        menu->close();
    });
    const QPoint row = scenario.tree()->visualRect(scenario.item({1})->index()).center();
    emit scenario.tree()->customContextMenuRequested(row);
    QCOMPARE(entries, QStringLiteral("&Start|&New|&Cut&Copy&Paste|&Grouping&Ungrouping"));
    QCOMPARE(scenario.rows(), QStringLiteral("a||b|<>"));
    // Beside the rows there is none; one would wait for ever.
    emit scenario.tree()->customContextMenuRequested(
        scenario.tree()->viewport()->rect().bottomLeft());
}

namespace {

// Commands in an order that a seed gives, and what must be true after each.
class Walk {
public:
    Walk(OpenScenario* scenario, quint32 seed) : mScenario(*scenario), mRandom(seed) { }

    QString step()
    {
        const int size = itemCount(mScenario.model()->invisibleRootItem());
        switch (mRandom.bounded(12)) {
        case 0:
            return key("new", Qt::Key_Enter, Qt::NoModifier);
        case 1:
            if (size > 20)
                return key("delete", Qt::Key_Delete, Qt::NoModifier);
            return key("new", Qt::Key_Enter, Qt::NoModifier);
        case 2:
            if (size > 20)
                return key("cut", Qt::Key_X, Qt::ControlModifier);
            return key("copy", Qt::Key_C, Qt::ControlModifier);
        case 3:
        case 4:
            if (size < 60)
                return key("paste", Qt::Key_V, Qt::ControlModifier);
            return key("cut", Qt::Key_X, Qt::ControlModifier);
        case 5:
            return key("group", Qt::Key_B, Qt::ControlModifier);
        case 6:
            return key("ungroup", Qt::Key_I, Qt::ControlModifier);
        case 7:
            return edit();
        case 8:
            return mRandom.bounded(10) == 0 ? saveAndLoad() : edit();
        default:
            return select();
        }
    }

    // Empty when all is well.
    QString fault() const
    {
        QString fault = levelFault(mScenario.model()->invisibleRootItem(), 0);
        const QString json = mScenario.dialog()->getCurrentJson();
        QStringList errors;
        const QString text = removeMarkers(removeComments(scenarioFileText(json)));
        if (fault.isEmpty()
            && scenarioJson(parseSteps(escapeTranslationForJson(text, &errors), &errors)) != json)
            fault = QStringLiteral("not what was written: ") + errors.join(QLatin1Char(' ')) + json;
        if (fault.isEmpty() && isFormWrong())
            fault = QStringLiteral("the form shows no step of the tree");
        return fault;
    }

private:
    QString key(const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        mScenario.press(key, modifiers);
        return QLatin1String(name);
    }

    QModelIndex randomRow()
    {
        QModelIndex index;
        QModelIndex parent;
        do {
            parent = index;
            const int rows = mScenario.model()->rowCount(parent);
            if (rows == 0)
                break;
            index = mScenario.model()->index(mRandom.bounded(rows), 0, parent);
        } while (mScenario.model()->rowCount(index) > 0 && mRandom.bounded(3) > 0);
        return index;
    }

    QString select()
    {
        if (mRandom.bounded(15) == 0) {
            mScenario.tree()->clearSelection();
            return QStringLiteral("select nothing");
        }
        const auto click = [this](Qt::KeyboardModifiers modifiers) {
            const QModelIndex index = randomRow();
            if (!index.isValid())
                return;
            mScenario.tree()->scrollTo(index);
            QTest::mouseClick(mScenario.tree()->viewport(), Qt::LeftButton, modifiers,
                mScenario.tree()->visualRect(index).center());
        };
        click(Qt::NoModifier);
        if (mRandom.bounded(3) == 0)
            click(Qt::ShiftModifier);
        return QStringLiteral("select ") + mScenario.selectedRows();
    }

    QString edit()
    {
        const char* const kTexts[] = {"plain", "\"q\" \\ /", "// no comment", "/* none */", "];",
            "var scenario = [", "qsTr(\"t\")", "QT_TRANSLATE_NOOP(\"t\")", "two\nlines", "{[(",
            "\t,\"x\":", "\xf0\x9f\x98\x80 \xd7\xa9"};
        const QString text = QString::fromUtf8(kTexts[mRandom.bounded(12)]);
        switch (mRandom.bounded(5)) {
        case 0:
            if (!mScenario.widget<QLineEdit>("label")->isHidden())
                mScenario.widget<QLineEdit>("label")->setText(text.simplified());
            return QStringLiteral("label ") + text;
        case 1:
            if (!mScenario.widget<QTextEdit>("comment")->isHidden())
                mScenario.widget<QTextEdit>("comment")->setPlainText(text);
            return QStringLiteral("comment ") + text;
        case 2:
            if (!mScenario.widget<QComboBox>("condition")->isHidden())
                mScenario.widget<QComboBox>("condition")->setCurrentIndex(mRandom.bounded(13));
            return QStringLiteral("condition");
        case 3:
            Manager::setCoordinates(mRandom.bounded(-100, 2000), mRandom.bounded(2000));
            return QStringLiteral("coordinates");
        default:
            if (!mScenario.widget<QTextEdit>("hint")->isHidden())
                mScenario.widget<QTextEdit>("hint")->setPlainText(text);
            return QStringLiteral("hint ") + text;
        }
    }

    QString saveAndLoad()
    {
        const QString json = mScenario.dialog()->getCurrentJson();
        Manager::save(json);
        Manager::setContents(mScenario.path());
        mScenario.tree()->expandAll();
        return mScenario.dialog()->getCurrentJson() == json ? QStringLiteral("save and load")
                                                            : QStringLiteral("FAULT");
    }

    static int itemCount(const QStandardItem* level)
    {
        int count = level->rowCount();
        for (int row = 0; row < level->rowCount(); ++row)
            count += itemCount(level->child(row));
        return count;
    }

    static QString levelFault(const QStandardItem* level, int depth)
    {
        for (int row = 0; row < level->rowCount(); ++row) {
            const TutorialItem* item = TutorialItem::from(level->child(row));
            const bool isLast = row + 1 == level->rowCount();
            if (!item || !item->index().isValid())
                return QStringLiteral("a row without an item");
            if (item->isEndMarker() != isLast || (!isLast && item->depth() != depth))
                return QStringLiteral("depth %1 at level %2, row %3")
                    .arg(item->depth())
                    .arg(depth)
                    .arg(row);
            if (item->isGroup() != item->hasChildren())
                return QStringLiteral("a step with rows or a group without");
            const QString fault = levelFault(item, depth + 1);
            if (!fault.isEmpty())
                return fault;
        }
        return QString();
    }

    // The form shows a step of the tree, or nothing: what is typed goes there.
    bool isFormWrong() const
    {
        const auto* hint = mScenario.widget<QTextEdit>("hint");
        if (hint->isHidden())
            return false;
        const QString shown = hint->toPlainText();
        return !hasHint(mScenario.model()->invisibleRootItem(), shown);
    }

    static bool hasHint(const QStandardItem* level, const QString& hint)
    {
        for (int row = 0; row < level->rowCount(); ++row) {
            const QString json = TutorialItem::from(level->child(row))->json();
            if (QJsonDocument::fromJson(json.toUtf8())
                        .object()
                        .value(QLatin1String("hint"))
                        .toString()
                    == hint
                || hasHint(level->child(row), hint))
                return true;
        }
        return false;
    }

    OpenScenario& mScenario;
    QRandomGenerator mRandom;
};

} // namespace

// TUTORIAL_WALK: how many commands (20000); TUTORIAL_SEED: in which order.
void tst_Commands::randomWalk()
{
    const int count = qEnvironmentVariableIsSet("TUTORIAL_WALK")
        ? qEnvironmentVariableIntValue("TUTORIAL_WALK")
        : 20000;
    const auto seed = quint32(qEnvironmentVariableIntValue("TUTORIAL_SEED"));
    OpenScenario scenario(scenarioText(QStringLiteral("a [b c [d e ] ] f g h")));
    scenario.dialog()->resize(600, 900);
    Walk walk(&scenario, seed);
    QStringList last;
    for (int i = 0; i < count; ++i) {
        last << walk.step();
        const QString fault = last.last() == QLatin1String("FAULT")
            ? QStringLiteral("lost on the way through the file")
            : walk.fault();
        QVERIFY2(fault.isEmpty(),
            qPrintable(QStringLiteral("%1 after %2 commands, seed %3: ...; %4\n%5")
                           .arg(fault)
                           .arg(i)
                           .arg(seed)
                           .arg(last.join(QLatin1String("; ")), scenario.rows())));
        if (last.size() > 6)
            last.removeFirst();
    }
}

QTEST_MAIN(tst_Commands)
#include "tst_commands.moc"
