#include "editor/scenarioreader.h"
#include "editor/scenariowriter.h"
#include "editor/stepjson.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace TutorialEditor;

class tst_ScenarioWriter : public QObject {
    Q_OBJECT

private slots:
    void workedExample();
    void values_data();
    void values();
    void compactTextIsQts();
    void lists();
    void randomTrees();
    void files();
};

namespace {

QJsonArray arrayOf(const QString& json)
{
    return QJsonDocument::fromJson(json.toUtf8()).array();
}

// Trees of steps with texts that are hard on a reader.
class Trees {
public:
    explicit Trees(quint32 seed) : mRandom(seed) { }

    QJsonArray steps(int depth)
    {
        QJsonArray result;
        for (int count = below(4) + (depth == 0 ? 1 : 0); count > 0; --count)
            result.append(depth < 3 && below(4) == 0 ? group(depth) : step());
        return result;
    }

private:
    int below(int bound) { return mRandom.bounded(bound); }

    QJsonObject group(int depth)
    {
        QJsonObject result{
            {QStringLiteral("hint"), hint()}, {QStringLiteral("group"), steps(depth + 1)}};
        if (below(3) == 0)
            result[QStringLiteral("label")] = text() + QLatin1Char('l');
        return result;
    }

    QJsonObject step()
    {
        QJsonObject result{{QStringLiteral("comment"), hint()}};
        for (const char* key : {"command", "condition", "followWindow", "icon"}) {
            if (below(4) == 0)
                result[QLatin1String(key)] = text();
        }
        if (below(8))
            result[QStringLiteral("hint")] = hint();
        if (below(2))
            result[QStringLiteral("x")] = below(20000) - 9999;
        if (below(4) == 0)
            result[QStringLiteral("later")] =
                QJsonArray{text(), QJsonValue(), QJsonObject{{text(), true}}};
        // The reader finds no comma behind the last key.
        const QString last = result.keys().constLast();
        const QString value = result[last].toString();
        if (value.startsWith(QLatin1String("QT_")))
            result[last] = value.left(value.size() - 1);
        return result;
    }

    QString hint()
    {
        switch (below(3)) {
        case 0:
            return QStringLiteral("qsTr(") + literals() + QLatin1Char(')');
        case 1:
            return QStringLiteral("QT_TRANSLATE_NOOP(") + literals() + QLatin1String("),");
        default:
            return text();
        }
    }

    QString literals()
    {
        const QString separator = below(2) ? QStringLiteral(", ") : QStringLiteral(",\n ");
        return below(3) ? literal() : literal() + separator + literal();
    }

    // A string of the script language; line ends in it may be typed as they are.
    QString literal()
    {
        QString content = text();
        content.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
        content.replace(QLatin1Char('"'), QLatin1String("\\\""));
        return QLatin1Char('"') + content + QLatin1Char('"');
    }

    QString text()
    {
        static const char* const kPieces[] = {"\"", "\\", "/", "\n", "\r\n", "\t", "/*", "*/", "//",
            "];", "var scenario = [", "qsTr(", "qsTr(\"", "\"),\n", "),\n", "QT_TRANSLATE_NOOP(\"",
            "\":", "\",\n", "}\n", "\n   // ", "%1", "\x01\b\f", "\xE2\x80\xA8", "\xF0\x9F\x8E\x93",
            "\xD7\xA9\xD7\x9C\xE2\x80\xAE", "text", " "};
        QString result;
        for (int count = below(6); count > 0; --count)
            result += QString::fromUtf8(kPieces[below(int(std::size(kPieces)))]);
        // An expression that is not complete is not readable, so it is no text
        // to ask for; anywhere else in a text it is.
        return result.startsWith(QLatin1String("qsTr(")) || result.startsWith(QLatin1String("QT_"))
            ? QLatin1Char(' ') + result
            : result;
    }

    QRandomGenerator mRandom;
};

} // namespace

void tst_ScenarioWriter::workedExample()
{
    const QString file = QStringLiteral(
        "var scenario = [\n"
        "    {\n        \"comment\": \"open the map\",\n        \"hint\": qsTr(\"Click here\"),\n"
        "        \"x\": 10,\n        \"y\": 20\n    },\n"
        "    {\n        \"hint\": qsTr(\"Database\"),\n        \"group\": [\n"
        "        {\n            \"hint\": \"Next\",\n            \"x\": 5,\n            \"y\": 5\n"
        "        }\n]\n    }\n];");
    QStringList errors;
    const QJsonArray steps = readScenario(file, &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(steps[1].toObject()[QStringLiteral("group")].toArray().size(), 1);
    QCOMPARE(scenarioFileText(scenarioJson(steps)), file);
}

// One key of a step, and its line in the file.
void tst_ScenarioWriter::values_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* tag, const char* member, const char* line) {
        QTest::newRow(tag) << QString::fromUtf8(member) << QString::fromUtf8(line);
    };
    row("slash", R"("hint": "Go/Stop")", R"("hint": "Go\/Stop")");
    row("escapes", R"("a": "\\ \" \b\t\n\f\r")", R"("a": "\\ \" \b\t\n\f\r")");
    row("other control character", R"("a": "\u0001ä")", "\"a\": \"\x01ä\"");
    row("expression", R"x("comment": "qsTr(\"a/b\")")x", R"x("comment": qsTr("a/b"))x");
    row("expression elsewhere", R"x("label": "qsTr(\"a\")")x", R"x("label": "qsTr(\"a\")")x");
    row("incomplete expression", R"x("hint": "qsTr(")x", R"x("hint": qsTr()x");
    row("NOOP with comma", R"x("hint": "QT_TRANSLATE_NOOP(\"a\"),")x",
        R"x("hint": QT_TRANSLATE_NOOP("a"))x");
    row("NOOP, comma inside", R"x("hint": "QT_TRANSLATE_NOOP(\"a\",")x",
        R"x("hint": QT_TRANSLATE_NOOP("a",)x");
    row("whole number", R"("x": -9999)", R"("x": -9999)");
    row("six digits", R"("x": 1234567)", R"("x": 1.23457e+06)");
    row("fraction", R"("x": 0.5)", R"("x": 0.5)");
    row("booleans", R"("a": true, "b": false)", "\"a\": true,\n        \"b\": false");
    // These would leave nothing behind the colon, and a file that no one reads.
    row("other types", R"("a": [1,"x"], "b": {"c": null}, "d": null)",
        "\"a\": [1,\"x\"],\n        \"b\": {\"c\":null},\n        \"d\": null");
    row("quote in a key", R"("a\"b": 1)", R"("a\"b": 1)");
}

void tst_ScenarioWriter::values()
{
    QFETCH(QString, member);
    QFETCH(QString, line);
    const QJsonArray steps = arrayOf(QLatin1String("[{") + member + QLatin1String("}]"));
    QCOMPARE(steps.size(), 1);
    QCOMPARE(scenarioJson(steps),
        QLatin1String("[\n    {\n        ") + line + QLatin1String("\n    }\n]"));
}

void tst_ScenarioWriter::compactTextIsQts()
{
    QJsonArray values{1, -7, 0, 2147483647, 2147483648.0, 1.5, 1e300, true, QJsonValue::Null,
        QJsonArray{1}, QString()};
    values << QJsonValue(-0.0) << QString(QChar(0xd83d))
           << QString::fromUtf8("\u00e9 \U0001F600 /");
    for (ushort code = 0; code < 0x80; ++code)
        values << QString(QChar(code));
    for (const QJsonValue& value : qAsConst(values)) {
        const QJsonObject step{{QStringLiteral("b"), value}, {QStringLiteral("a\""), 1}};
        QCOMPARE(
            stepJson(step), QString::fromUtf8(QJsonDocument(step).toJson(QJsonDocument::Compact)));
    }
}

void tst_ScenarioWriter::lists()
{
    QCOMPARE(scenarioFileText(scenarioJson({})), QStringLiteral("var scenario = [\n\n];"));
    QCOMPARE(scenarioFileText(QStringLiteral("[]\r\n\r\n")), QStringLiteral("var scenario = [];"));

    const QJsonObject step{{QStringLiteral("x"), 1}};
    QJsonObject group{{QStringLiteral("hint"), QStringLiteral("qsTr(\"g\")")},
        {QStringLiteral("icon"), QStringLiteral("eye")},
        {QStringLiteral("group"), QJsonArray{step, step}}};
    QCOMPARE(scenarioJson({step, group}, StepListForm::Copied),
        QStringLiteral(
            "[{\"x\":1},\n{ \"hint\": \"qsTr(\"g\")\", \"group\": [{\"x\":1},\n{\"x\":1}]}]"));
    group[QStringLiteral("label")] = QStringLiteral("l");
    QCOMPARE(scenarioJson({step, group}),
        QStringLiteral("[\n    {\n        \"x\": 1\n    },\n    {\n"
                       "        \"hint\": qsTr(\"g\"),\n        \"label\": \"l\",\n"
                       "        \"group\": [\n        {\n            \"x\": 1\n"
                       "        },\n        {\n            \"x\": 1\n        }\n]\n"
                       "    }\n]"));
}

void tst_ScenarioWriter::randomTrees()
{
    for (quint32 seed = 0; seed < 10000; ++seed) {
        const QJsonArray tree = Trees(seed).steps(0);
        const QString file = scenarioFileText(scenarioJson(tree));
        QStringList errors;
        const QJsonArray again = readScenario(file, &errors);
        if (!errors.isEmpty() || again != tree || scenarioFileText(scenarioJson(again)) != file)
            QFAIL(qPrintable(QStringLiteral("seed %1: %2\n%3")
                                 .arg(QString::number(seed), errors.join(QLatin1Char(' ')), file)));
    }
}

void tst_ScenarioWriter::files()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.js"));
    const QString json = scenarioJson(arrayOf(QString::fromUtf8("[{\"hint\":\"ä\"}]")));
    QVERIFY(writeScenarioFile(path, json + QLatin1Char('\n')));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(),
        QByteArray("var scenario = [\n    {\n        \"hint\": \"\xC3\xA4\"\n    }\n];"));
    QVERIFY(!writeScenarioFile(folder.path(), json));
    QVERIFY(!writeScenarioFile(folder.filePath(QStringLiteral("gone/a.js")), json));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("a.js")));
}

QTEST_APPLESS_MAIN(tst_ScenarioWriter)
#include "tst_scenariowriter.moc"
