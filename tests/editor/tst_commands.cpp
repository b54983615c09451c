// SPDX-License-Identifier: MIT
#include "openscenario.h"

#include "editor/history/stephistory.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/translationescape.h"

#include <QClipboard>
#include <QComboBox>
#include <QRandomGenerator>

using namespace TutorialEditor;

namespace {

struct Key {
    char name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
};

const Key kKeys[] = {{'n', Qt::Key_Enter, Qt::KeypadModifier},
    {'d', Qt::Key_Delete, Qt::NoModifier}, {'x', Qt::Key_X, Qt::ControlModifier},
    {'c', Qt::Key_C, Qt::ControlModifier}, {'v', Qt::Key_V, Qt::ControlModifier},
    {'b', Qt::Key_B, Qt::ControlModifier}, {'i', Qt::Key_I, Qt::ControlModifier}};

void pressKeys(const OpenScenario& scenario, const QString& names)
{
    for (const QChar name : names) {
        for (const Key& key : kKeys) {
            if (name == QLatin1Char(key.name))
                QTest::keyClick(scenario.tree(), key.key, key.modifiers);
        }
    }
}

QList<int> rowsIn(const QString& text)
{
    QList<int> rows;
    for (const QString& row : text.split(QLatin1Char(',')))
        rows << row.toInt();
    return rows;
}

} // namespace

class tst_Commands : public QObject {
    Q_OBJECT

private slots:
    void commands_data();
    void commands();
    void endMarkersClearTheForm();
    void copiedTextIsExact();
    void pasteFromTextEditor();
    void groupingSurvivesTheFile();
    void randomWalk();
};

void tst_Commands::commands_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("selected");
    const auto add = [](const char* tag, const char* before, const char* first, const char* last,
                         const char* keys, const char* after, const char* selected) {
        QTest::newRow(tag) << QString::fromUtf8(before) << QString::fromUtf8(first)
                           << QString::fromUtf8(last) << QString::fromUtf8(keys)
                           << QString::fromUtf8(after) << QString::fromUtf8(selected);
    };
    add("new in a group", "a [g b c ]", "1,1", "1,1", "n", "a|g|.b|.|.c|.<>|<>", "");
    add("new at the end", "[g a ]", "0,1", "0,1", "n", "g|.a|.|.<>|<>", "");
    add("delete a run with a group", "a [g b ] c d", "1", "2", "d", "a|d|<>", "d");
    add("delete the last", "a b", "1", "1", "d", "a|<>", "a");
    add("delete an inner group of groups", "[a x [b y [c z ] ] w ]", "0,1", "0,1", "d",
        "a|.x|.w|.<>|<>", "w");
    // The third cut meets the end marker alone.
    add("cut until nothing is left, and paste", "a b", "1", "1", "xxxv", "a|<>", "<>");
    add("paste at the end of a group", "[g b ]", "0,0", "0,0", "xv", "g|.b|.<>|<>", "<>");
    add("copy and paste", "a [g b ] c", "1", "2", "cv", "a|g|.b|.<>|c|g|.b|.<>|c|<>", "g|c|b|<>");
    // A hint with quotes keeps the copied text from being JSON.
    add("paste a new group", "a", "0", "0", "bcv", "qsTr(\"group\")|.a|.<>|group|.a|.<>|<>",
        "group|a|<>");
    // Qt lists the rows of an expanded group before the run.
    add("group a run with a group", "a [g b [h c ] ] d e", "0", "2", "b",
        "group|.a|.g|..b|..h|...c|...<>|..<>|.d|.<>|e|<>", "group|a|g|d|<>|b|h|<>|c|<>");
    add("ungroup", "a [g b [h ] ] d", "1,1", "1,1", "i", "a|g|.b|.<>|d|<>", "");
    add("ungroup the whole contents", "[g a b ] c", "0,0", "0,2", "i", "a|b|c|<>", "a|b");
    add("ungroup some of the contents", "[g a b ]", "0,0", "0,1", "i", "g|.a|.b|.<>|<>", "a|b");
    add("ungroup around a full group", "[g [h a ] ]", "0", "0", "i", "g|.h|..a|..<>|.<>|<>",
        "g|h|<>|a|<>");
    add("end marker alone", "[g a ]", "0,1", "0,1", "cvbidx", "g|.a|.<>|<>", "<>");
    add("end marker and siblings, delete", "[g a ]", "0,0", "0,1", "d", "g|.<>|<>", "<>");
    add("everything", "a [g b ]", "0", "2", "x", "<>", "<>");
}

void tst_Commands::commands()
{
    QFETCH(QString, before);
    QFETCH(QString, first);
    QFETCH(QString, last);
    QFETCH(QString, keys);
    QGuiApplication::clipboard()->setText("[]"_s);
    OpenScenario scenario(scenarioText(before));
    scenario.select(rowsIn(first), rowsIn(last));
    const QString rows = scenario.rows();
    const QString selected = scenario.selectedRows();
    pressKeys(scenario, keys);
    QTEST(scenario.rows(), "after");
    QTEST(scenario.selectedRows(), "selected");

    QUndoStack* stack = scenario.dialog()->history()->stack();
    const bool isChanged = stack->canUndo();
    while (stack->canUndo())
        stack->undo();
    QCOMPARE(scenario.rows(), rows);
    if (isChanged)
        QCOMPARE(scenario.selectedRows(), selected);
    QVERIFY(scenario.dialog()->isSaved());
    while (stack->canRedo())
        stack->redo();
    QTEST(scenario.rows(), "after");
}

// The form went on to edit the step that had been selected before.
void tst_Commands::endMarkersClearTheForm()
{
    OpenScenario scenario(scenarioText("[g a ]"_s));
    scenario.select({0, 0});
    QVERIFY(!scenario.hint()->isHidden());
    scenario.select({0, 1});
    QVERIFY(scenario.hint()->isHidden());
}

void tst_Commands::copiedTextIsExact()
{
    OpenScenario scenario(scenarioText("a [g b [h c ] ] d"_s));
    scenario.select({0}, {2});
    pressKeys(scenario, "c"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(),
        "[{\"hint\":\"a\"},\n{ \"hint\": \"g\", \"group\": [{\"hint\":\"b\"},\n"
        "{ \"hint\": \"h\", \"group\": [{\"hint\":\"c\"}]}]},\n{\"hint\":\"d\"}]"_s);
    scenario.tree()->clearSelection();
    pressKeys(scenario, "x"_s);
    QCOMPARE(QGuiApplication::clipboard()->text(), "[]"_s);
}

// What was copied out of a file, with an expression and a comment.
void tst_Commands::pasteFromTextEditor()
{
    OpenScenario scenario(scenarioText("a"_s));
    scenario.select({0}, {0});
    QGuiApplication::clipboard()->setText("    // two of them\n    {\n\"hint\": "
                                          "qsTr(\"g\"),\n\"group\": [\n{ \"hint\": \"b\" }\n]\n},\n"
                                          "{\"hint\": QT_TRANSLATE_NOOP(\"t\", \"c\")},\n"_s);
    pressKeys(scenario, "v"_s);
    QCOMPARE(scenario.rows(), "qsTr(\"g\")|.b|.<>|QT_TRANSLATE_NOOP(\"t\", \"c\")|a|<>"_s);
}

// Every depth stays the level's number: a wrong one would lose steps in the file.
void tst_Commands::groupingSurvivesTheFile()
{
    OpenScenario scenario(scenarioText("a [b [c d ] ] e f"_s));
    const QString before = scenario.dialog()->getCurrentJson();
    scenario.select({0}, {2});
    pressKeys(scenario, "b"_s);
    const QString grouped = scenario.dialog()->getCurrentJson();
    QCOMPARE(scenario.item({0, 1, 0, 0})->depth(), 3);
    Manager::save(grouped);
    Manager::setContents(scenario.path());
    QCOMPARE(scenario.item({0, 1, 0, 0})->depth(), 3);
    QCOMPARE(scenario.dialog()->getCurrentJson(), grouped);
    scenario.model()->ungrouping(scenario.tree(), scenario.item({0}));
    QCOMPARE(scenario.item({1, 0, 0})->depth(), 2);
    QCOMPARE(scenario.dialog()->getCurrentJson(), before);
}

namespace {

// Commands in an order that a seed gives, and what must be true after each.
class Walk {
public:
    Walk(OpenScenario* scenario, quint32 seed) : mScenario(*scenario), mRandom(seed) { }

    // Returns what it did.
    QString step()
    {
        const int size = itemCount(mScenario.model()->invisibleRootItem());
        const int choice = mRandom.bounded(14);
        if (choice >= 12)
            return backAndForth(1 + mRandom.bounded(3));
        if (choice >= 9)
            return select();
        if (choice >= 7)
            return mRandom.bounded(20) == 0 ? saveOrReload() : edit();
        QString keys = "nnccvbi"_s;
        if (size > 20)
            keys = size > 60 ? "ndxxcbi"_s : "ndxvvbi"_s;
        pressKeys(mScenario, keys.mid(choice, 1));
        return keys.mid(choice, 1);
    }

    // Undoes and redoes so many acts, in a random order.
    QString backAndForth(int count)
    {
        QString done;
        for (int i = 0; i < count; ++i) {
            const bool isUndo = mRandom.bounded(5) < 3;
            isUndo ? stack()->undo() : stack()->redo();
            done += isUndo ? QLatin1Char('z') : QLatin1Char('y');
        }
        return done;
    }

    // What is wrong with going back to the first state and on to the last one.
    QString historyFault()
    {
        const QJsonArray last = mScenario.dialog()->getCurrentSteps();
        const QString lastJson = mScenario.dialog()->getCurrentJson();
        const int index = stack()->index();
        while (stack()->canUndo())
            stack()->undo();
        if (mScenario.dialog()->getCurrentSteps() != mFirst
            || mScenario.dialog()->getCurrentJson() != mFirstJson)
            return "undone to another state: "_s
                + difference(mFirstJson, mScenario.dialog()->getCurrentJson());
        while (stack()->index() < index)
            stack()->redo();
        if (mScenario.dialog()->getCurrentSteps() != last
            || mScenario.dialog()->getCurrentJson() != lastJson)
            return "redone to another state: "_s
                + difference(lastJson, mScenario.dialog()->getCurrentJson());
        return fault();
    }

    // Saves and opens what there is now, which is the first state of a new history.
    void begin()
    {
        mFirstJson = mScenario.dialog()->getCurrentJson();
        Manager::save(mFirstJson);
        Manager::setContents(mScenario.path());
        mScenario.tree()->expandAll();
        if (mScenario.dialog()->getCurrentJson() != mFirstJson)
            qFatal("lost on the way through the file");
        // Without the keys of groups that a file does not have.
        mFirst = mScenario.dialog()->getCurrentSteps();
    }

    // What is wrong; empty when all is well.
    QString fault() const
    {
        const QString level = levelFault(mScenario.model()->invisibleRootItem(), 0);
        if (!level.isEmpty())
            return level;
        const QString json = mScenario.dialog()->getCurrentJson();
        QStringList errors;
        const QString text = removeMarkers(removeComments(scenarioFileText(json)));
        if (scenarioJson(parseSteps(escapeTranslationForJson(text, &errors), &errors)) != json)
            return "the file is read as something else: "_s + errors.join(QLatin1Char(' ')) + json;
        const QString shown = mScenario.hint()->toPlainText();
        if (!mScenario.hint()->isHidden()
            && !hasHint(mScenario.model()->invisibleRootItem(), shown))
            return "the form shows no step of the tree"_s;
        return QString();
    }

private:
    QModelIndex randomRow()
    {
        const Model* model = mScenario.model();
        QModelIndex index;
        do
            index = model->index(mRandom.bounded(model->rowCount(index)), 0, index);
        while (model->rowCount(index) > 0 && mRandom.bounded(3) > 0);
        return index;
    }

    QString select()
    {
        if (mRandom.bounded(15) == 0)
            mScenario.tree()->clearSelection();
        else
            mScenario.click(randomRow(), Qt::NoModifier);
        if (mRandom.bounded(3) == 0)
            mScenario.click(randomRow(), Qt::ShiftModifier);
        return "select "_s + mScenario.selectedRows();
    }

    QString edit()
    {
        const char* const kTexts[] = {"plain", "\"q\" \\ /", "// no comment", "/* none */", "];",
            "var scenario = [", "qsTr(\"t\")", "QT_TRANSLATE_NOOP(\"t\")", "two\nlines", "{[(",
            "\t,\"x\":", "\xf0\x9f\x98\x80 \xd7\xa9"};
        const QString text = QString::fromUtf8(kTexts[mRandom.bounded(12)]);
        auto* comment = mScenario.widget<QTextEdit>("comment");
        auto* condition = mScenario.widget<QComboBox>("condition");
        const int field = mRandom.bounded(8);
        if (field == 0)
            Manager::setCoordinates(mRandom.bounded(-100, 2000), mRandom.bounded(2000));
        else if (field == 5)
            Manager::setCondition({"wait"_s, QString::number(mRandom.bounded(9))});
        else if (field == 6)
            Manager::untrCallback(
                "hint%1"_s.arg(mRandom.bounded(3)), QString::number(mRandom.bounded(9)));
        else if (field == 7)
            Manager::focusActionIndexList({mRandom.bounded(4), mRandom.bounded(3)});
        else if (field == 1 && !condition->isHidden())
            condition->setCurrentIndex(mRandom.bounded(condition->count()));
        else if (field == 2 && !comment->isHidden())
            comment->setPlainText(text);
        else if (!mScenario.hint()->isHidden())
            mScenario.hint()->setPlainText(text);
        return "edit "_s + text;
    }

    QString saveOrReload()
    {
        if (mRandom.bounded(3) == 0) {
            mScenario.dialog()->reload();
            return "reload"_s;
        }
        Manager::save(mScenario.dialog()->getCurrentJson());
        return "save"_s;
    }

    QUndoStack* stack() const { return mScenario.dialog()->history()->stack(); }

    static QString difference(const QString& expected, const QString& actual)
    {
        int i = 0;
        while (i < expected.size() && i < actual.size() && expected.at(i) == actual.at(i))
            ++i;
        return "%1, but %2"_s.arg(expected.mid(i - 60, 200), actual.mid(i - 60, 200));
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
                return "a row without an item"_s;
            if (item->isEndMarker() != isLast || (!isLast && item->depth() != depth))
                return "depth %1 at level %2, row %3"_s.arg(item->depth()).arg(depth).arg(row);
            if (item->isGroup() != item->hasChildren())
                return "a step with rows or a group without"_s;
            const QString fault = levelFault(item, depth + 1);
            if (!fault.isEmpty())
                return fault;
        }
        return QString();
    }

    static bool hasHint(const QStandardItem* level, const QString& hint)
    {
        for (int row = 0; row < level->rowCount(); ++row) {
            const TutorialItem* item = TutorialItem::from(level->child(row));
            if (item->step().value("hint"_s).toString() == hint || hasHint(item, hint))
                return true;
        }
        return false;
    }

    OpenScenario& mScenario;
    QRandomGenerator mRandom;
    QJsonArray mFirst;
    QString mFirstJson;
};

} // namespace

// TUTORIAL_WALK: how many commands (5000); TUTORIAL_SEED: in which order. They
// come as walks of a hundred, each with a history of its own.
void tst_Commands::randomWalk()
{
    const int count = qEnvironmentVariableIsSet("TUTORIAL_WALK")
        ? qEnvironmentVariableIntValue("TUTORIAL_WALK")
        : 5000;
    const auto seed = quint32(qEnvironmentVariableIntValue("TUTORIAL_SEED"));
    constexpr int kWalk = 100;
    QGuiApplication::clipboard()->setText("[]"_s);
    OpenScenario scenario(scenarioText("a [b c [d e ] ] f g h"_s));
    scenario.dialog()->resize(600, 900);
    Walk walk(&scenario, seed);
    QStringList last;
    for (int i = 0; i < count; ++i) {
        if (i % kWalk == 0)
            walk.begin();
        last << (i % 50 == 49 ? walk.backAndForth(20) : walk.step());
        const QString fault = i % kWalk == kWalk - 1 ? walk.historyFault() : walk.fault();
        QVERIFY2(fault.isEmpty(),
            qPrintable("%1 after %2 commands, seed %3: %4\n%5"_s.arg(fault).arg(i).arg(seed).arg(
                last.join("; "_s), scenario.rows())));
        if (last.size() > 6)
            last.removeFirst();
    }
}

QTEST_MAIN(tst_Commands)
#include "tst_commands.moc"
