// SPDX-License-Identifier: MIT
#include "editor/scenario/problem.h"

using namespace TutorialEditor;

Problem TutorialEditor::makeProblem(Rule rule, const QString& message, const QString& remedy)
{
    Problem problem;
    problem.rule = rule;
    problem.severity = ruleInfo(rule).severity;
    problem.message = message;
    problem.remedy = remedy;
    return problem;
}

QString TutorialEditor::sentences(const Problem& problem)
{
    if (problem.remedy.isEmpty())
        return problem.message + QLatin1Char('.');
    return QStringLiteral("%1. %2.").arg(problem.message, problem.remedy);
}

QString TutorialEditor::severityName(Severity severity)
{
    static const char* const kNames[] = {"note", "warning", "error"};
    return QLatin1String(kNames[int(severity)]);
}
