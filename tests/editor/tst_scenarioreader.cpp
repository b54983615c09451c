#include "editor/scenarioreader.h"
#include "editor/translationescape.h"
#include "editor/translationexpression.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

using namespace TutorialEditor;

class tst_ScenarioReader : public QObject {
    Q_OBJECT

private slots:
    void comments_data();
    void comments();
    void markers_data();
    void markers();
    void hints_data();
    void hints();
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

const QString kFile = QStringLiteral("// head\n"
                                     "var scenario = [\n"
                                     "    {\n"
                                     "        \"comment\": \"a /* b */ // c ]; \\\"d\\\"\",\n"
                                     "        \"hint\": qsTr(\"Click \\\"here\\\"\"),\n"
                                     "        \"x\": 10\n"
                                     "    }, /* two\n"
                                     " lines */\n"
                                     "\n"
                                     " \t\n"
                                     "    {\n"
                                     "        \"hint\": QT_TRANSLATE_NOOP(\"Go\"),\n"
                                     "        \"group\": [\n"
                                     "        {\n"
                                     "            \"hint\": qsTr(\"last\")\n"
                                     "        }\n"
                                     "]\n"
                                     "    }\n"
                                     "];");

QJsonArray read(const QString& text, QStringList* errors)
{
    return parseSteps(
        escapeTranslationForJson(removeMarkers(removeComments(text)), errors), errors);
}

} // namespace

void tst_ScenarioReader::comments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* tag, const char* text, const char* expected) {
        QTest::newRow(tag) << QString::fromUtf8(text) << QString::fromUtf8(expected);
    };
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
}

void tst_ScenarioReader::comments()
{
    QFETCH(QString, text);
    QTEST(removeComments(text), "expected");
}

void tst_ScenarioReader::markers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("both") << "x var scenario = [1]; y];"
                          << "x [1] y];";
    QTest::newRow("none") << "[1]"
                          << "[1]";
    QTest::newRow("in strings") << "var scenario = [\"];\", \"var scenario = [\"];"
                                << "[\"];\", \"var scenario = [\"]";
}

void tst_ScenarioReader::markers()
{
    QFETCH(QString, text);
    QTEST(removeMarkers(text), "expected");
}

// What stands after "hint": in a file, and the hint that is read.
void tst_ScenarioReader::hints_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("hint");
    const auto row = [](const char* tag, const char* value, const char* hint) {
        QTest::newRow(tag) << QString::fromUtf8(value) << QString::fromUtf8(hint);
    };
    row("plain", R"("a\/b \"c\"",)", R"(a/b "c")");
    row("like a key", R"("\"hint\": \"x\"",)", R"("hint": "x")");
    row("expression", R"(qsTr("a\n/b"),)", R"(qsTr("a\n/b"))");
    row("quoted expression", R"x("qsTr(\"a\")",)x", R"(qsTr("a"))");
    row("NOOP keeps its comma", R"(QT_TRANSLATE_NOOP("c", "a"),)",
        R"(QT_TRANSLATE_NOOP("c", "a"),)");
    row("bare quotes inside", R"(qsTr("say "hi""),)", R"(qsTr("say "hi""))");
    row("two lines", "qsTr(\"a\nb\"),", "qsTr(\"a\nb\")");
    row("close marker inside", "qsTr(\"f(x),\n b\"),", "qsTr(\"f(x),\n b\")");
    row("blanks after it", "qsTr(\"a\") \n,", "qsTr(\"a\") \n");
    row("marker at a string's end", R"("call qsTr(",)", "call qsTr(");
    row("NOOP marker inside", R"(qsTr("QT_TRANSLATE_NOOP("),)", R"(qsTr("QT_TRANSLATE_NOOP("))");
    row("NOOP around qsTr", R"(QT_TRANSLATE_NOOP("qsTr("),)", R"(QT_TRANSLATE_NOOP("qsTr("),)");
}

void tst_ScenarioReader::hints()
{
    QFETCH(QString, value);
    QFETCH(QString, hint);
    // Once before another key, with a hint after it, and once as the last key
    // of the last step, where no comma follows and no later string either.
    const bool isNoop = hint.startsWith(QLatin1String("QT_"));
    const QString bare = value.left(value.size() - 1);
    for (const QString& file :
        {QStringLiteral("var scenario = [\n{\n\"hint\": %1\n\"x\": 1\n},\n{\n\"hint\": "
                        "qsTr(\"b\"),\n\"x\": 2\n}\n];")
                .arg(value),
            QStringLiteral("[\n{\n\"x\": 1,\n\"hint\": %1\n}\n]").arg(bare)}) {
        const bool isLast = file.startsWith(QLatin1Char('['));
        if (isLast
            && (value.startsWith(QLatin1String("\"qsTr"))
                || hint.contains(QLatin1String("\"hi\""))))
            continue;
        QStringList errors;
        const QJsonArray steps = read(file, &errors);
        QCOMPARE(errors, QStringList());
        QCOMPARE(steps.size(), isLast ? 1 : 2);
        const QString expected = isLast && isNoop ? hint.left(hint.size() - 1) : hint;
        QCOMPARE(steps[0].toObject()[QStringLiteral("hint")].toString(), expected);
        QCOMPARE(steps[0].toObject()[QStringLiteral("x")].toInt(), 1);
    }
}

void tst_ScenarioReader::errors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("beginnings");
    const auto row = [](const char* tag, const char* text, QStringList beginnings) {
        QTest::newRow(tag) << QString::fromUtf8(text) << beginnings;
    };
    const QString noArray = QStringLiteral("json is not array");
    row("object", "{}", {noArray});
    row("empty", "", {noArray});
    row("where", "[{\"x\": 1}, {\"group\": [{\"x\": 1},\n{\"x\": 1 1}\n]}]",
        {noArray + QStringLiteral(" (step 1,1, unterminated object, {\"x\": 1 1})")});
    row("qsTr open", "[{\n\"hint\": qsTr(\"a\"),\n\"comment\": qsTr(\"b\",\n}]",
        {QStringLiteral(
             "closeMarker(),\n) not found (l:2884): \n\"comment\": qsTr(\"b\",\n}] (step 0)"),
            noArray});
    row("NOOP open", "[{\"hint\": QT_TRANSLATE_NOOP(\"a\"}]",
        {QStringLiteral(
             "closeMarker(),\n) not found (l:2905): [{\"hint\": QT_TRANSLATE_NOOP(\"a\"}]"),
            noArray});
    row("quoted qsTr without comma", "[{\"hint\": \"qsTr(a)\"\n}]",
        {QStringLiteral("qsTr/QT_TRANSLATE_NOOP not closed:  \"qsTr(a)\"\n}]"), noArray});
    row("quoted qsTr without end", "[{\"hint\": \"qsTr(a}]",
        {QStringLiteral("No close \" found:  \"qsTr(a}]"), noArray});
    row("key at the end", "[{\n\"x\": 1}]",
        {QStringLiteral("No CR/NF found: [{\n\"x\": 1}]"), noArray});
    row("value at the end", "[{\"comment\": \"a\"}]",
        {QStringLiteral("closeMarker(\",\r) not found (l:2985):  \"a\"}]"), noArray});
}

void tst_ScenarioReader::errors()
{
    QFETCH(QString, text);
    QFETCH(QStringList, beginnings);
    QStringList errors;
    QCOMPARE(read(text, &errors), QJsonArray());
    QCOMPARE(errors.size(), beginnings.size());
    for (int i = 0; i < errors.size(); ++i)
        QVERIFY2(errors[i].startsWith(beginnings[i]), qPrintable(errors[i]));
}

void tst_ScenarioReader::everyCutEnds()
{
    QStringList errors;
    QCOMPARE(read(kFile, &errors).size(), 2);
    QCOMPARE(errors, QStringList());
    for (const QString& text :
        {kFile, QString(kFile).replace(QLatin1Char('\n'), QLatin1String("\r\n"))}) {
        const QByteArray bytes = text.toUtf8();
        for (int size = 0; size + 2 < bytes.size(); ++size) {
            errors.clear();
            read(QString::fromUtf8(bytes.left(size)), &errors);
            QVERIFY(!errors.isEmpty());
        }
    }
}

// Ten times the text takes about ten times as long; four hundred times would
// be the mark of a scan that starts over.
void tst_ScenarioReader::linearTime_data()
{
    QTest::addColumn<QString>("piece");
    QTest::newRow("steps") << "{\n\"hint\": qsTr(\"a\"),\n\"icon\": \"click\",\n\"x\": 1\n},\n";
    QTest::newRow("comments") << "/* a */ {} ,\n // b\n";
    QTest::newRow("no line ends") << "{\"hint\": \"a\", \"x\": 1}, ";
    QTest::newRow("expressions on one line") << "{\"a\": QT_TRANSLATE_NOOP(\"a\"), \"x\": 1}, ";
    QTest::newRow("no ends") << "{\"hint\": qsTr(\"a\"), \"x\": \"";
    QTest::newRow("backslashes") << "\"\\\"\\\"\\\"";
    QTest::newRow("open markers") << "qsTr(\"";
}

void tst_ScenarioReader::linearTime()
{
    QFETCH(QString, piece);
    const auto time = [&](int count) {
        const QString text = QLatin1Char('[') + piece.repeated(count)
            + QStringLiteral("{\"a\": QT_TRANSLATE_NOOP(\"a\"),\n\"x\": 1}]");
        QElapsedTimer timer;
        timer.start();
        QStringList errors;
        read(text, &errors);
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
    QCOMPARE(steps[0].toObject()[QStringLiteral("hint")].toString(), QStringLiteral("ä"));

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

void tst_ScenarioReader::expressions_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("parts"); // context, text, disambiguation; empty: none
    const auto row = [](const char* value, QStringList parts) {
        QTest::newRow(value) << QString::fromUtf8(value) << parts;
    };
    const QString none;
    row(R"(qsTr("text"))", {none, QStringLiteral("text"), none});
    row(R"( qsTr( "text" , "role" ) )", {none, QStringLiteral("text"), QStringLiteral("role")});
    row(R"(QT_TRANSLATE_NOOP("text"),)", {none, QStringLiteral("text"), none});
    row(R"(QT_TRANSLATE_NOOP("ctx", "text"),)",
        {QStringLiteral("ctx"), QStringLiteral("text"), none});
    row(R"(qsTr("\"a\" \\ \/ \n\x41\u00e4\ud83d\ude00"))",
        {none, QString::fromUtf8("\"a\" \\ / \nAä\xF0\x9F\x98\x80"), none});
    for (const char* other :
        {"text", "", "qsTr(", "qsTr(\"a", "qsTr(\"a\"", "qsTr()", "qsTr(\"a\",)", "qsTr(\"a\") b",
            "qsTr(\"a\"),,", "qsTr(\"a\", \"b\", \"c\")", "qsTr(\"a\\\")", "xqsTr(\"a\")"})
        row(other, {});
}

void tst_ScenarioReader::expressions()
{
    QFETCH(QString, value);
    QFETCH(QStringList, parts);
    TranslationExpression expression;
    QCOMPARE(parseTranslationExpression(value, &expression), !parts.isEmpty());
    if (!parts.isEmpty())
        QCOMPARE(
            QStringList({expression.context, expression.sourceText, expression.disambiguation}),
            parts);
}

QTEST_APPLESS_MAIN(tst_ScenarioReader)
#include "tst_scenarioreader.moc"
