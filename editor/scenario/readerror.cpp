// SPDX-License-Identifier: MIT
#include "editor/scenario/readerror.h"

#include "editor/scenario/scenariosource.h"
#include "editor/scenario/textlines.h"

#include <algorithm>

using namespace TutorialEditor;

namespace {

// What the reader wants of a file's lines, beyond what a script may look like.
Problem layoutProblem(const ReadFailure& failure, const ScenarioSource& source)
{
    switch (failure.kind) {
    case ReadFailure::OpenExpression:
        if (source.text().contains(QLatin1String("\r\n")))
            return makeProblem(Rule::CrLf,
                Problem::tr("Lines end with CR LF, behind an expression too"),
                Problem::tr("Let your text editor write LF"));
        return makeProblem(Rule::LineLayout,
            Problem::tr("A line that ends with “),” is expected behind this expression"),
            Problem::tr("Begin each key on a line of its own"));
    case ReadFailure::QuotedExpression:
        return makeProblem(Rule::QuotedExpression,
            Problem::tr(
                "This text begins like an expression, and no line after it ends with “\",”"),
            Problem::tr("Write the expression without quotation marks"));
    case ReadFailure::NoLineEnd:
        return makeProblem(Rule::LineLayout,
            Problem::tr("A line end is expected behind the last key"),
            Problem::tr("Begin each key on a line of its own"));
    case ReadFailure::TooDeep:
        return makeProblem(Rule::TooDeep,
            Problem::tr("Lists and objects lie in each other deeper than can be read"),
            Problem::tr("Take groups apart"));
    case ReadFailure::NoList:
        return makeProblem(Rule::NoList, Problem::tr("There is no list of steps"));
    case ReadFailure::Json:
        break;
    }
    return makeProblem(Rule::BadValue, Problem::tr("This cannot be read"));
}

QString stepText(const QList<int>& step)
{
    QStringList rows;
    for (int row : step)
        rows << QString::number(row);
    return ReadError::tr("step %1").arg(rows.join(QLatin1Char(',')));
}

// The rows of the step that the position is in.
QList<int> stepAt(const ScenarioSource& source, int position)
{
    QList<int> rows;
    int list = source.root();
    while (list != -1 && source.node(list).kind == SourceNode::Array) {
        int row = 0;
        int step = source.node(list).firstChild;
        for (; step != -1 && source.node(step).end <= position;
             step = source.node(step).nextSibling)
            row += source.node(step).firstChild != -1;
        if (step == -1 || source.node(step).begin > position)
            break;
        rows << row;
        const auto isGroup = [&](int key) {
            return source.node(key).end > position
                && source.keyOf(source.node(key)) == QLatin1String("group");
        };
        list = source.node(step).firstChild;
        while (list != -1 && !isGroup(list))
            list = source.node(list).nextSibling;
    }
    return rows;
}

} // namespace

SourceProblem TutorialEditor::explain(
    const ReadFailure& failure, const ScenarioSource& source, int position)
{
    const auto breaking = std::find_if(source.problems().begin(), source.problems().end(),
        [](const SourceProblem& problem) { return problem.problem.severity == Severity::Error; });
    if (breaking != source.problems().end())
        return *breaking;
    SourceProblem problem{layoutProblem(failure, source), position, position + 1};
    problem.problem.severity = Severity::Error;
    problem.problem.step = stepAt(source, position);
    return problem;
}

QString TutorialEditor::describedFailure(
    const ReadFailure& failure, const QString& text, int position)
{
    if (text.trimmed().isEmpty())
        return failure.message;
    const ScenarioSource source(text);
    const SourceProblem problem = explain(failure, source, position);
    const TextLines lines(text);
    const TextPlace place = lines.placeOf(problem.begin);
    QStringList where;
    if (!problem.problem.step.isEmpty())
        where << stepText(problem.problem.step);
    where << ReadError::tr("line %1").arg(place.line)
          << ReadError::tr("column %1").arg(place.column);
    return QStringLiteral("%1 (%2)\n%3\n%4")
        .arg(failure.message, where.join(QLatin1String(", ")), lines.excerpt(problem.begin),
            sentences(problem.problem));
}
