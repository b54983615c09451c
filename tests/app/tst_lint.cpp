// SPDX-License-Identifier: MIT
#include "app/lint.h"
#include "editor/scenario/checker.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace TutorialEditor;

class tst_Lint : public QObject {
    Q_OBJECT

private slots:
    void page_data();
    void page();
    void program_data();
    void program();
    void formats();
};

namespace {

struct Run {
    int exitCode;
    QString out;
    QString err;
};

Run lint(const QStringList& arguments)
{
    Run run;
    QTextStream out(&run.out);
    QTextStream err(&run.err);
    run.exitCode = Lint(&out, &err).run(QStringList(QStringLiteral("tutorial-lint")) + arguments);
    return run;
}

bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// The first block of the page in this language from a position on.
QString block(const QString& page, const QString& language, int from = 0)
{
    const QString begin = QStringLiteral("```%1\n").arg(language);
    const int first = page.indexOf(begin, from) + begin.size();
    return page.mid(first, page.indexOf(QLatin1String("\n```"), first) - first);
}

// An example as a file: what the page cannot show is put in place of what
// stands for it there.
QByteArray exampleFile(const QString& rule, QString example)
{
    if (example.startsWith(QLatin1String("    {")))
        example = QStringLiteral("var scenario = [\n%1\n];").arg(example);
    if (rule == QLatin1String("too-deep"))
        example = example.repeated(600);
    example.replace(QChar(0x240D), QLatin1Char('\r')).replace(QChar(0x2423), QChar(QChar::Nbsp));
    return example.toUtf8().replace("\xEF\xBF\xBD", "\xFC");
}

} // namespace

// Each rule has its entry, with what its severity is and an example that breaks
// it and no other rule.
void tst_Lint::page_data()
{
    QTest::addColumn<QString>("severity");
    for (int rule = 0; rule < int(Rule::Count); ++rule)
        QTest::newRow(ruleInfo(Rule(rule)).id) << severityName(ruleInfo(Rule(rule)).severity);
}

void tst_Lint::page()
{
    QFETCH(QString, severity);
    const QString rule = QString::fromUtf8(QTest::currentDataTag());
    QFile file(QStringLiteral(LINT_PAGE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll());
    const int entry = page.indexOf(QStringLiteral("\n### %1\n").arg(rule));
    QVERIFY(entry != -1);
    const QString said = page.mid(page.indexOf(QLatin1String("\n\n"), entry) + 2, severity.size());
    QCOMPARE(said.toLower(), severity);

    const QTemporaryDir folder;
    const QString example = folder.filePath(QStringLiteral("example.js"));
    const QString names = folder.filePath(QStringLiteral("names.json"));
    const QString texts = folder.filePath(QStringLiteral("de.ts"));
    QVERIFY(write(example, exampleFile(rule, block(page, QStringLiteral("js"), entry))));
    QVERIFY(write(names, block(page, QStringLiteral("json")).toUtf8()));
    QVERIFY(write(texts, block(page, QStringLiteral("xml")).toUtf8()));
    QStringList arguments = {QStringLiteral("--names"), names, example};
    if (rule == QLatin1String("translation-missing"))
        arguments << QStringLiteral("--ts") << texts;
    const Run run = lint(arguments);
    QCOMPARE(run.err, QString());
    static const QRegularExpression kId(QStringLiteral("\\[([a-z0-9-]+)\\]$"));
    QSet<QString> found;
    for (const QString& line : run.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        QVERIFY2(line.startsWith(example + QLatin1Char(':')), qPrintable(run.out));
        found << kId.match(line).captured(1);
    }
    QVERIFY2(found == QSet<QString>{rule}, qPrintable(run.out));
    QCOMPARE(run.exitCode, int(severity == QLatin1String("error")));
}

void tst_Lint::program_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");
    const auto row = [](const char* tag, const QString& arguments, int exitCode, const char* out,
                         const char* err) {
        QTest::newRow(tag) << arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts) << exitCode
                           << QString::fromUtf8(out) << QString::fromUtf8(err);
    };
    row("nothing", {}, 2, "", "No file is named");
    row("help", QStringLiteral("--help"), 0, "Usage: tutorial-lint", "");
    row("version", QStringLiteral("--version"), 0, "tutorial-lint ", "");
    row("unknown option", QStringLiteral("--colour clean.js"), 2, "", "colour");
    row("unknown format", QStringLiteral("--format xml clean.js"), 2, "", "xml");
    row("unknown rule", QStringLiteral("--disable comma clean.js"), 2, "", "comma");
    row("no such names", QStringLiteral("--names none clean.js"), 2, "", "none");
    row("names that are none", QStringLiteral("--names clean.js clean.js"), 2, "", "clean.js");
    row("texts that are none", QStringLiteral("--ts clean.js clean.js"), 2, "", "clean.js");
    row("clean", QStringLiteral("clean.js"), 0, "", "");
    row("a warning", QStringLiteral("clean.js warning.js"), 0,
        "warning.js:4:11: warning: Nothing looks at the key “author”. [unknown-key]", "");
    row("a warning as an error", QStringLiteral("--werror warning.js"), 1,
        "warning.js:4:11: error: Nothing", "");
    row("disabled", QStringLiteral("--werror --disable unknown-key warning.js"), 0, "", "");
    row("one error among others", QStringLiteral("error.js clean.js"), 1,
        "error.js:2:8: error: A comma is missing here.", "");
    row("an unreadable file among others", QStringLiteral("none.js error.js"), 2,
        "error.js:2:8: error: A comma", "none.js cannot be opened");
}

void tst_Lint::program()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, out);
    QFETCH(QString, err);
    const QTemporaryDir folder;
    const QString former = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    const QByteArray clean = "var scenario = [\n  {\n\t\"condition\": \"click,\"\n  }\n];";
    QVERIFY(write(QStringLiteral("clean.js"), clean));
    QVERIFY(write(QStringLiteral("warning.js"),
        QByteArray(clean).replace("\"click,\"", "\"click,\",\n\t         \"author\": \"A\"")));
    QVERIFY(write(QStringLiteral("error.js"), "[\n{\"x\": 1 \"y\": 1}\n]"));
    const Run run = lint(arguments);
    QDir::setCurrent(former);
    QTEST(run.exitCode, "exitCode");
    QVERIFY2(out.isEmpty() ? run.out.isEmpty() : run.out.startsWith(out), qPrintable(run.out));
    QVERIFY2(err.isEmpty() ? run.err.isEmpty() : run.err.contains(err), qPrintable(run.err));
}

// What the formats for programs say of one problem.
void tst_Lint::formats()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a b.js"));
    QVERIFY(write(path,
        "[\n{\n\"hint\": \"\",\n\"group\": [\n{\n\"comment\": \"😀😀😀\", "
        "\"condition\": \"wit,3\"\n}\n]\n}\n]"));
    const auto object = [&](const char* format) {
        const Run run = lint({QStringLiteral("--format"), QLatin1String(format), path});
        return QJsonDocument::fromJson(run.out.toUtf8()).object();
    };
    const QJsonObject json = object("json");
    QCOMPARE(json[QStringLiteral("errors")].toInt(), 1);
    QJsonObject problem = json[QStringLiteral("problems")].toArray().first().toObject();
    for (const char* text : {"text", "expected"})
        QVERIFY(!problem.take(QLatin1String(text)).toString().isEmpty());
    const QJsonObject expected{{QStringLiteral("file"), path}, {QStringLiteral("line"), 6},
        {QStringLiteral("column"), 33}, {QStringLiteral("length"), 3},
        {QStringLiteral("severity"), QStringLiteral("error")},
        {QStringLiteral("rule"), QStringLiteral("unknown-condition")},
        {QStringLiteral("step"), QJsonArray{0, 0}},
        {QStringLiteral("field"), QStringLiteral("condition")}};
    QCOMPARE(problem, expected);

    const QJsonObject run = object("sarif")[QStringLiteral("runs")].toArray().first().toObject();
    const QJsonObject result = run[QStringLiteral("results")].toArray().first().toObject();
    const QJsonObject driver =
        run[QStringLiteral("tool")].toObject()[QStringLiteral("driver")].toObject();
    const QJsonValue rule = driver[QStringLiteral("rules")]
                                .toArray()
                                .at(result[QStringLiteral("ruleIndex")].toInt())
                                .toObject()[QStringLiteral("id")];
    QCOMPARE(rule, result[QStringLiteral("ruleId")]);
    const QJsonObject place = result[QStringLiteral("locations")]
                                  .toArray()
                                  .first()
                                  .toObject()[QStringLiteral("physicalLocation")]
                                  .toObject();
    QCOMPARE(place[QStringLiteral("region")].toObject(),
        (QJsonObject{{QStringLiteral("startLine"), 6}, {QStringLiteral("startColumn"), 33},
            {QStringLiteral("endColumn"), 36}}));
    QVERIFY(place[QStringLiteral("artifactLocation")]
                .toObject()[QStringLiteral("uri")]
                .toString()
                .endsWith(QLatin1String("/a%20b.js")));
}

QTEST_APPLESS_MAIN(tst_Lint)
#include "tst_lint.moc"
