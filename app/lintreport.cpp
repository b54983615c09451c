// SPDX-License-Identifier: MIT
#include "app/lint.h"
#include "tutorial/process/version.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

using namespace TutorialEditor;

namespace {

QJsonArray rowsOf(const QList<int>& step)
{
    QJsonArray rows;
    for (const int row : step)
        rows.append(row);
    return rows;
}

// Texts of the file may hold line ends.
QString onOneLine(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return text;
}

void print(const QJsonObject& object, QTextStream* out)
{
    *out << QString::fromUtf8(QJsonDocument(object).toJson());
}

QJsonArray sarifRules()
{
    QJsonArray rules;
    for (int rule = 0; rule < int(Rule::Count); ++rule) {
        const RuleInfo& info = ruleInfo(Rule(rule));
        rules.append(QJsonObject{{QStringLiteral("id"), ruleId(Rule(rule))},
            {QStringLiteral("shortDescription"),
                QJsonObject{{QStringLiteral("text"), QString::fromUtf8(info.summary)}}},
            {QStringLiteral("defaultConfiguration"),
                QJsonObject{{QStringLiteral("level"), severityName(info.severity)}}}});
    }
    return rules;
}

QJsonObject sarifResult(const QString& path, const Problem& problem)
{
    const QJsonObject region{{QStringLiteral("startLine"), problem.line},
        {QStringLiteral("startColumn"), problem.column},
        {QStringLiteral("endColumn"), problem.column + problem.length}};
    // The path as an address, relative where it is so.
    const QString uri = QString::fromUtf8(QUrl::toPercentEncoding(path, "/"));
    const QJsonObject place{
        {QStringLiteral("artifactLocation"), QJsonObject{{QStringLiteral("uri"), uri}}},
        {QStringLiteral("region"), region}};
    return {{QStringLiteral("ruleId"), ruleId(problem.rule)},
        {QStringLiteral("ruleIndex"), int(problem.rule)},
        {QStringLiteral("level"), severityName(problem.severity)},
        {QStringLiteral("message"), QJsonObject{{QStringLiteral("text"), sentences(problem)}}},
        {QStringLiteral("locations"),
            QJsonArray{QJsonObject{{QStringLiteral("physicalLocation"), place}}}}};
}

} // namespace

void reportText(const QVector<LintedFile>& files, QTextStream* out)
{
    for (const LintedFile& file : files) {
        for (const Problem& problem : file.problems)
            *out
                << QStringLiteral("%1:%2:%3: ").arg(file.path).arg(problem.line).arg(problem.column)
                << severityName(problem.severity) << ": " << onOneLine(sentences(problem)) << " ["
                << ruleId(problem.rule) << "]\n";
    }
}

void reportJson(const QVector<LintedFile>& files, QTextStream* out)
{
    QJsonArray list;
    int counts[3] = {};
    for (const LintedFile& file : files) {
        for (const Problem& problem : file.problems) {
            ++counts[int(problem.severity)];
            list.append(QJsonObject{{QStringLiteral("file"), file.path},
                {QStringLiteral("line"), problem.line}, {QStringLiteral("column"), problem.column},
                {QStringLiteral("length"), problem.length},
                {QStringLiteral("severity"), severityName(problem.severity)},
                {QStringLiteral("rule"), ruleId(problem.rule)},
                {QStringLiteral("step"), rowsOf(problem.step)},
                {QStringLiteral("field"), problem.key}, {QStringLiteral("text"), problem.message},
                {QStringLiteral("expected"), problem.remedy}});
        }
    }
    print(
        {{QStringLiteral("problems"), list}, {QStringLiteral("notes"), counts[int(Severity::Note)]},
            {QStringLiteral("warnings"), counts[int(Severity::Warning)]},
            {QStringLiteral("errors"), counts[int(Severity::Error)]}},
        out);
}

void reportSarif(const QVector<LintedFile>& files, QTextStream* out)
{
    QJsonArray results;
    for (const LintedFile& file : files) {
        for (const Problem& problem : file.problems)
            results.append(sarifResult(file.path, problem));
    }
    const QJsonObject driver{{QStringLiteral("name"), QStringLiteral("tutorial-lint")},
        {QStringLiteral("version"), projectVersion()}, {QStringLiteral("rules"), sarifRules()}};
    const QJsonObject run{{QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver}}},
        {QStringLiteral("columnKind"), QStringLiteral("unicodeCodePoints")},
        {QStringLiteral("results"), results}};
    print({{QStringLiteral("$schema"),
               QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
              {QStringLiteral("version"), QStringLiteral("2.1.0")},
              {QStringLiteral("runs"), QJsonArray{run}}},
        out);
}
