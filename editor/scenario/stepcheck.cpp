// SPDX-License-Identifier: MIT
#include "editor/scenario/stepcheck.h"

using namespace TutorialEditor;

Problem& StepProblems::add(
    Rule rule, const QString& key, const QString& message, const QString& remedy)
{
    Problem problem = makeProblem(rule, message, remedy);
    problem.key = key;
    if (!mOptions.isEnabled(rule)) {
        mDisabled = problem;
        return mDisabled;
    }
    mProblems.append(problem);
    return mProblems.last();
}

QVector<Problem> TutorialEditor::checkStep(const QJsonObject& step, const CheckOptions& options)
{
    StepProblems problems(options);
    const bool isGroup = step.contains(QLatin1String("group"));
    checkKeys(step, isGroup, &problems);
    if (!isGroup)
        checkRequests(step, &problems);
    checkTexts(step, isGroup, &problems);
    return problems.take();
}

QString TutorialEditor::suggestion(const QString& name, const QStringList& candidates)
{
    const QString nearest = nearestName(name, candidates);
    return nearest.isEmpty() ? QString() : Problem::tr("Perhaps “%1” is meant").arg(nearest);
}
