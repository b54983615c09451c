#include "editor/scenarioreader.h"
#include "editor/scenariowriter.h"
#include "editor/stepjson.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace TutorialEditor;

class tst_ScenarioWriter : public QObject {
    Q_OBJECT

private slots:
    void workedExample();
    void compactTextIsQts();
    void randomTrees();
    void fullDisk();
};

namespace {

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

// The former file used to be replaced by an empty one.
void tst_ScenarioWriter::fullDisk()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.js"));
    QVERIFY(writeScenarioFile(path, QStringLiteral("[1]")));
    rlimit former;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &former), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{10, former.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool isWritten = writeScenarioFile(path, QStringLiteral("[2]"));
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &former), 0);
    QVERIFY(!isWritten);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("var scenario = [1];"));
}

QTEST_APPLESS_MAIN(tst_ScenarioWriter)
#include "tst_scenariowriter.moc"
