// SPDX-License-Identifier: MIT
#include "editor/scenario/scenarioreader.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using namespace TutorialEditor;

class tst_ScenarioReader : public QObject {
    Q_OBJECT

private slots:
    void script_data();
    void script();
    void errors_data();
    void errors();
    void places_data();
    void places();
    void files();
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

} // namespace

// What is left of comments and markers.
void tst_ScenarioReader::script_data()
{
    const Row row = textColumns("text", "expected");
    row("a removed comment makes another", "a//**/* x */b", "ab");
    row("block without end stays", "/* 1 */[/* 2", "[/* 2");
    row("line without end stays", "a\n// x", "a\n// x");
    row("block begins inside a line comment", "// a /* b\n*/ c\nd", "d");
    row("in strings", R"("a/*b" "\"/*" "//" /* "*/c)", R"("a/*b" "\"/*" "//" c)");
    row("a string ends with its line", "\"a /* b\nc */ d\" /* e */", "\"a  d\" ");
    row("in an expression of two lines", "qsTr(\"a\n// b\n/* c */\"),\n//d\n",
        "qsTr(\"a\n// b\n/* c */\"),\n");
    row("markers", "x var scenario = [1]; y];", "x [1] y];");
    row("markers in strings", "var scenario = [\"];\", \"var scenario = [\"];",
        "[\"];\", \"var scenario = [\"]");
}

void tst_ScenarioReader::script()
{
    QFETCH(QString, text);
    QTEST(removeMarkers(removeComments(text)), "expected");
}

// How the first error begins; all but "json is not array" are followed by it.
void tst_ScenarioReader::errors_data()
{
    const Row row = textColumns("text", "beginning");
    row("empty", "", "json is not array");
    row("where", "[{\"x\": 1}, {\"group\": [{\"x\": 1},\n{\"x\": 1 1}\n]}]",
        "json is not array (step 1,1, line 2, column 8)\n{\"x\": 1 1}\n       ^\n");
    row("qsTr open", "[{\n\"hint\": qsTr(\"a\"),\n\"comment\": qsTr(\"b\",\n}]",
        "closeMarker(),\n) not found (l:2884): \n\"comment\": qsTr(\"b\",\n}] (step 0, line 3, "
        "column 20)");
    row("CR LF", "[{\r\n\"hint\": qsTr(\"a\")\r\n}]",
        "closeMarker(),\n) not found (l:2884): [{\r\n\"hint\": qsTr(\"a\")\r\n}] (step 0, line "
        "2, ");
    row("quoted qsTr without comma", "[{\"hint\": \"qsTr(a)\"\n}]",
        "qsTr/QT_TRANSLATE_NOOP not closed:  \"qsTr(a)\"\n}]");
    row("quoted qsTr without end", "[{\"hint\": \"qsTr(a}]", "No close \" found:  \"qsTr(a}]");
    row("key at the end", "[{\n\"x\": 1}]", "No CR/NF found: [{\n\"x\": 1}]");
    row("value at the end", "[{\"comment\": \"a\"}]",
        "closeMarker(\",\r) not found (l:2985):  \"a\"}]");
    QTest::newRow("behind a zero byte")
        << QStringLiteral("[{\"a\": \"0\"\n},\n1 1\n]").replace(QLatin1Char('0'), QChar::Null)
        << QStringLiteral("json is not array (step 1,");
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

// How the first error ends: with the place, the file's line and what is expected.
void tst_ScenarioReader::places_data()
{
    const Row row = textColumns("text", "ending");
    row("a closing backslash", R"(var scenario = [
  {
    "hint": "C:\",
    "x": 1
  }
];)",
        R"((step 0, line 3, column 16)
"hint": "C:\",
           ^
The backslash makes this quotation mark a part of the text. Write a backslash as \\.)");
    row("behind CR LF, tabs, comments and an emoji",
        "// 😀\nvar scenario = [\r\n\t{\r\n\t\t\"hint\": \"ä\" /* 😀\t */ \"x\": 1\r\n\t}\r\n];",
        "(step 0, line 4, column 14)\n\"hint\": \"ä\" /* 😀\t */ \"x\": 1\n           ^\n"
        "A comma is missing here. Write one behind each value but the last.");
    row("in a line that was rewritten",
        "// a\n/* b\n */var scenario = [\n{\n\"hint\": qsTr(\"😀\"), 'x': 2,\n\"y\": 1\n}\n];",
        "(step 0, line 5, column 20)\n\"hint\": qsTr(\"😀\"), 'x': 2,\n                    ^\n"
        "The quotation marks are not \". Write \"…\".");
    row("lines that end otherwise", "[\r\n{\r\n\"hint\": qsTr(\"a\"),\r\n\"y\": 1\r\n}\r\n]",
        "(step 0, line 3, column 9)\n\"hint\": qsTr(\"a\"),\n        ^\n"
        "Lines end with CR LF, behind an expression too. Let your text editor write LF.");
    row("a layout that is not read", "/* a */ [{}, {\"hint\": \"a\", \"y\": 1}]",
        "(step 0, line 1, column 23)\n/* a */ [{}, {\"hint\": \"a\", \"y\": 1}]\n"
        "                      ^\nA line end is expected behind the last key. "
        "Begin each key on a line of its own.");
    row("the last key", "[\n{\n\"x\": 1\n},\n{\n\"group\": [\n{\n\"y\": 1,\n}\n]\n}\n]",
        "(step 1,0, line 8, column 7)\n\"y\": 1,\n      ^\n"
        "Nothing stands behind this comma. Take it out.");
}

void tst_ScenarioReader::places()
{
    QFETCH(QString, text);
    QFETCH(QString, ending);
    QStringList errors;
    QCOMPARE(readScenario(text, &errors), QJsonArray());
    QCOMPARE(errors.value(0).right(ending.size()), ending);
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

    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    QFile large(folder.filePath(QStringLiteral("large")));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(256 * 1024 * 1024 + 1));
    QString text;
    for (const QString& endless : {pipe, QStringLiteral("/dev/zero"), large.fileName()})
        QVERIFY2(!readScenarioText(endless, &text, &errors), qPrintable(endless));
}

QTEST_APPLESS_MAIN(tst_ScenarioReader)
#include "tst_scenarioreader.moc"
