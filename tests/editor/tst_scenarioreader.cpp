#include "editor/scenarioreader.h"
#include "editor/translationexpression.h"

#include <QElapsedTimer>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

using namespace TutorialEditor;

class tst_ScenarioReader : public QObject {
    Q_OBJECT

private slots:
    void script_data();
    void script();
    void hints_data();
    void hints();
    void hintAsLastKey();
    void errors_data();
    void errors();
    void everyCutEnds();
    void linearTime_data();
    void linearTime();
    void files();
    void expressions_data();
    void expressions();
};

namespace {

using Row = void (*)(const char*, const char*, const char*);

// Two columns of text; gives what adds a row.
Row textColumns(const char* first, const char* second)
{
    QTest::addColumn<QString>(first);
    QTest::addColumn<QString>(second);
    return [](const char* tag, const char* firstText, const char* secondText) {
        QTest::newRow(tag) << QString::fromUtf8(firstText) << QString::fromUtf8(secondText);
    };
}

QString hintOf(const QJsonValue& step)
{
    return step.toObject()[QStringLiteral("hint")].toString();
}

} // namespace

// What is left of comments and markers.
void tst_ScenarioReader::script_data()
{
    const Row row = textColumns("text", "expected");
    row("block", "a/* x\ny */b/**/c", "abc");
    row("slash is no end", "a/*/b*/c", "ac");
    row("a removed comment makes another", "a//**/* x */b", "ab");
    row("block without end stays", "/* 1 */[/* 2", "[/* 2");
    row("line", "a\n \t// x\nb // y\n//\nc", "a\nb // y\nc");
    row("line without end stays", "a\n// x", "a\n// x");
    row("lines of blanks", "\n \t\n  \n\n//x\n \t", "\n \t\n  \n\n \t");
    row("block begins inside a line comment", "// a /* b\n*/ c\nd", "d");
    row("carriage returns", "//x\r\na\r\n", "a\r\n");
    row("in strings", R"("a/*b" "\"/*" "//" /* "*/c)", R"("a/*b" "\"/*" "//" c)");
    row("a string ends with its line", "\"a /* b\nc */ d\" /* e */", "\"a  d\" ");
    row("in an expression of two lines", "qsTr(\"a\n// b\n/* c */\"),\n//d\n",
        "qsTr(\"a\n// b\n/* c */\"),\n");
    row("markers", "x var scenario = [1]; y];", "x [1] y];");
    row("no markers", "[1]", "[1]");
    row("markers in strings", "var scenario = [\"];\", \"var scenario = [\"];",
        "[\"];\", \"var scenario = [\"]");
}

void tst_ScenarioReader::script()
{
    QFETCH(QString, text);
    QTEST(removeMarkers(removeComments(text)), "expected");
}

// What stands after "hint": in a file, and the hint that is read.
void tst_ScenarioReader::hints_data()
{
    const Row row = textColumns("value", "hint");
    row("plain", R"("a\/b \"c\"",)", R"(a/b "c")");
    row("like a key", R"("\"hint\": \"x\"",)", R"("hint": "x")");
    row("expression", R"(qsTr("a\n/b"),)", R"(qsTr("a\n/b"))");
    row("quoted expression", "\"qsTr(\\\"a\\\")\",", "qsTr(\"a\")");
    row("NOOP keeps its comma", "QT_TRANSLATE_NOOP(\"c\", \"a\"),",
        "QT_TRANSLATE_NOOP(\"c\", \"a\"),");
    row("bare quotes inside", "qsTr(\"say \"hi\"\"),", "qsTr(\"say \"hi\"\")");
    row("two lines", "qsTr(\"a\nb\"),", "qsTr(\"a\nb\")");
    row("close marker inside", "qsTr(\"f(x),\n b\"),", "qsTr(\"f(x),\n b\")");
    row("blanks after it", "qsTr(\"a\") \n,", "qsTr(\"a\") \n");
    row("marker at a string's end", R"("call qsTr(",)", "call qsTr(");
    row("NOOP marker inside", "qsTr(\"QT_TRANSLATE_NOOP(\"),", "qsTr(\"QT_TRANSLATE_NOOP(\")");
    row("NOOP around qsTr", "QT_TRANSLATE_NOOP(\"qsTr(\"),", "QT_TRANSLATE_NOOP(\"qsTr(\"),");
}

void tst_ScenarioReader::hints()
{
    QFETCH(QString, value);
    QStringList errors;
    const QJsonArray steps = readScenario(
        QStringLiteral(
            "[\n{\n\"hint\": %1\n\"x\": 1\n},\n{\n\"hint\": qsTr(\"b\"),\n\"x\": 2\n}\n]")
            .arg(value),
        &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(steps.size(), 2);
    QTEST(hintOf(steps[0]), "hint");
}

// The writer puts no comma there, and no other string may follow.
void tst_ScenarioReader::hintAsLastKey()
{
    for (const char* hint :
        {"qsTr(\"a\")", "QT_TRANSLATE_NOOP(\"c\",\n \"a\")", "qsTr(\"),\n\")\n"}) {
        const QString expected = QLatin1String(hint);
        QStringList errors;
        const QString step = QLatin1String("{\n\"hint\": ") + expected + QLatin1String("\n}");
        const QJsonArray steps = readScenario(
            QLatin1Char('[') + step + QLatin1String(",\n") + step + QLatin1Char(']'), &errors);
        QCOMPARE(errors, QStringList());
        QCOMPARE(steps.size(), 2);
        QCOMPARE(hintOf(steps[0]), expected);
        QCOMPARE(hintOf(steps[1]), expected);
    }
}

// How the first error begins; all but "json is not array" are followed by it.
void tst_ScenarioReader::errors_data()
{
    const Row row = textColumns("text", "beginning");
    row("object", "{}", "json is not array");
    row("empty", "", "json is not array");
    row("where", "[{\"x\": 1}, {\"group\": [{\"x\": 1},\n{\"x\": 1 1}\n]}]",
        "json is not array (step 1,1, unterminated object, {\"x\": 1 1})");
    row("qsTr open", "[{\n\"hint\": qsTr(\"a\"),\n\"comment\": qsTr(\"b\",\n}]",
        "closeMarker(),\n) not found (l:2884): \n\"comment\": qsTr(\"b\",\n}] (step 0)");
    row("CR LF", "[{\r\n\"hint\": qsTr(\"a\")\r\n}]",
        "closeMarker(),\n) not found (l:2884): [{\r\n\"hint\": qsTr(\"a\")\r\n}] (step 0, lines "
        "end "
        "with CR LF");
    row("NOOP open", "[QT_TRANSLATE_NOOP(\"a\"]",
        "closeMarker(),\n) not found (l:2905): [QT_TRANSLATE_NOOP(\"a\"]");
    row("quoted qsTr without comma", "[{\"hint\": \"qsTr(a)\"\n}]",
        "qsTr/QT_TRANSLATE_NOOP not closed:  \"qsTr(a)\"\n}]");
    row("quoted qsTr without end", "[{\"hint\": \"qsTr(a}]", "No close \" found:  \"qsTr(a}]");
    row("key at the end", "[{\n\"x\": 1}]", "No CR/NF found: [{\n\"x\": 1}]");
    row("value at the end", "[{\"comment\": \"a\"}]",
        "closeMarker(\",\r) not found (l:2985):  \"a\"}]");
}

void tst_ScenarioReader::errors()
{
    QFETCH(QString, text);
    QFETCH(QString, beginning);
    QStringList errors;
    QCOMPARE(readScenario(text, &errors), QJsonArray());
    QVERIFY2(errors.value(0).startsWith(beginning), qPrintable(errors.join(QLatin1Char('|'))));
    const bool isOnly = beginning.startsWith(QLatin1String("json"));
    QCOMPARE(errors.size(), isOnly ? 1 : 2);
    QVERIFY(isOnly || errors.last() == QLatin1String("json is not array"));
}

void tst_ScenarioReader::everyCutEnds()
{
    const QString file = QStringLiteral(
        "// head\nvar scenario = [\n{\n\"comment\": \"a /* b */ // c ]; \\\"d\\\"\",\n"
        "\"hint\": qsTr(\"a \\\"b\\\"\"),\n\"x\": 10\n}, /* two\n lines */\n\n \t\n{\n"
        "\"hint\": QT_TRANSLATE_NOOP(\"Go\"),\n\"group\": [\n{\n\"hint\": "
        "qsTr(\"c\")\n}\n]\n}\n];");
    QStringList errors;
    QCOMPARE(readScenario(file, &errors).size(), 2);
    QCOMPARE(errors, QStringList());
    for (const char* lineEnd : {"\n", "\r\n"}) {
        const QString text = QString(file).replace(QLatin1Char('\n'), QLatin1String(lineEnd));
        for (int size = 0; size + 2 < text.size(); ++size) {
            errors.clear();
            readScenario(text.left(size), &errors);
            QVERIFY(!errors.isEmpty());
        }
    }
}

// Ten times the text takes about ten times as long; a hundred times would be
// the mark of a scan that starts over.
void tst_ScenarioReader::linearTime_data()
{
    QTest::addColumn<QString>("piece");
    QTest::newRow("steps") << "{\n\"hint\": qsTr(\"a\"),\n\"icon\": \"click\",\n\"x\": 1\n},\n";
    QTest::newRow("comments") << "/* a */ {} ,\n // b\n";
    QTest::newRow("no line ends") << "{\"hint\": \"a\", \"x\": 1}, ";
    QTest::newRow("expressions on one line") << "{\"a\": QT_TRANSLATE_NOOP(\"a\"), \"x\": 1}, ";
    QTest::newRow("no ends") << "{\"hint\": qsTr(\"a\"), \"x\": \"";
    QTest::newRow("backslashes") << "\\\"";
    QTest::newRow("open markers") << "qsTr(\"";
}

void tst_ScenarioReader::linearTime()
{
    QFETCH(QString, piece);
    const auto time = [&](int count) {
        const QString text = QLatin1Char('[') + piece.repeated(count)
            + QStringLiteral("\n{\"a\": QT_TRANSLATE_NOOP(\"a\"),\n\"x\": 1}]");
        QElapsedTimer timer;
        timer.start();
        QStringList errors;
        readScenario(text, &errors);
        return timer.nsecsElapsed();
    };
    time(5000);
    const qint64 few = time(5000);
    QVERIFY(time(50000) < 40 * few);
}

void tst_ScenarioReader::files()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("first.js"));
    const auto write = [&](const QByteArray& bytes) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QJsonArray steps;
    QStringList errors;
    QVERIFY(!readScenarioFile(path, &steps, &errors));
    QVERIFY(!readScenarioFile(folder.path(), &steps, &errors));

    errors.clear();
    QVERIFY(write("\xEF\xBB\xBF[\n{\n\"hint\": \"\xC3\xA4\"\n}\n]"));
    QVERIFY2(readScenarioFile(path, &steps, &errors), qPrintable(errors.join(QLatin1Char(';'))));
    QCOMPARE(hintOf(steps[0]), QStringLiteral("ä"));

    QVERIFY(write("[\n{\n\"hint\": \"\xE4\"\n}\n]"));
    QVERIFY(!readScenarioFile(path, &steps, &errors));
    QVERIFY(errors.first().contains(QLatin1String("UTF-8")));
    QCOMPARE(steps.size(), 1);

    for (int depth : {1000, 2000, 1000000}) {
        errors.clear();
        QVERIFY(write(QByteArray("[{\"group\":\n").repeated(depth)));
        QVERIFY(!readScenarioFile(path, &steps, &errors));
    }
}

// Context, text and disambiguation; "none" for what is no expression.
void tst_ScenarioReader::expressions_data()
{
    const Row row = textColumns("value", "parts");
    row("text", R"x(qsTr("text"))x", "|text|");
    row("two arguments", R"x( qsTr( "text" , "role" ) )x", "|text|role");
    row("NOOP", R"x(QT_TRANSLATE_NOOP("text"),)x", "|text|");
    row("context", R"x(QT_TRANSLATE_NOOP("context", "text"))x", "context|text|");
    row("escapes", R"x(qsTr("\"a\" \\ \/ \n\x41\u00e4\ud83d\ude00"))x",
        "|\"a\" \\ / \nA\xC3\xA4\xF0\x9F\x98\x80|");
    for (const char* other : {"a", "qsTr(", "qsTr(\"a", "qsTr(\"a\"", "qsTr()", "qsTr(\"a\",)",
             "qsTr(\"a\") b", "qsTr(\"a\"),,", "qsTr(\"a\", \"b\", \"c\")", "qsTr(\"a\\\")"})
        row(other, other, "none");
}

void tst_ScenarioReader::expressions()
{
    QFETCH(QString, value);
    TranslationExpression found;
    const bool isExpression = parseTranslationExpression(value, &found);
    const QStringList parts{found.context, found.sourceText, found.disambiguation};
    QTEST(isExpression ? parts.join(QLatin1Char('|')) : QStringLiteral("none"), "parts");
}

QTEST_APPLESS_MAIN(tst_ScenarioReader)
#include "tst_scenarioreader.moc"
