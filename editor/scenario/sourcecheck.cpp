// SPDX-License-Identifier: MIT
#include "editor/scenario/sourcecheck.h"

#include "editor/scenario/checker.h"
#include "editor/scenario/textlines.h"
#include "editor/scenario/textwalker.h"
#include "editor/scenario/translationexpression.h"

#include <QSet>

#include <algorithm>

using namespace TutorialEditor;

namespace {

const QString kGroup = QStringLiteral("group");
const QString kHint = QStringLiteral("hint");
const QString kComment = QStringLiteral("comment");

// What is found by following the ways through all steps.
bool isAboutTheWay(Rule rule)
{
    return rule >= Rule::UnknownLabel && rule <= Rule::EndlessLoop;
}

} // namespace

SourceCheck::SourceCheck(const QString& fileText, const CheckOptions& options)
    : mOptions(options), mSource(fileText), mRead(readScenario(fileText))
{
}

QVector<Problem> SourceCheck::problems()
{
    addText();
    if (mSource.root() != -1) {
        checkLevel(mSource.root(), mRead.steps);
        addSteps();
    }
    std::stable_sort(mProblems.begin(), mProblems.end(),
        [](const SourceProblem& a, const SourceProblem& b) { return a.begin < b.begin; });
    const TextLines lines(mSource.text());
    QVector<Problem> problems;
    for (const SourceProblem& found : qAsConst(mProblems)) {
        problems.append(found.problem);
        const TextPlace place = lines.placeOf(found.begin);
        problems.last().line = place.line;
        problems.last().column = place.column;
        problems.last().length = lines.countCharacters(found.begin, found.end);
    }
    return problems;
}

// How the text is written.
void SourceCheck::addText()
{
    for (const SourceProblem& problem : mSource.problems()) {
        if (problem.problem.severity == Severity::Error)
            mErrors.append(problem.begin);
        if (mOptions.isEnabled(problem.problem.rule))
            mProblems.append(problem);
    }
    if (mRead.failure && !mSource.isBroken())
        mProblems.append(explain(*mRead.failure, mSource, mRead.position));
    if (mSource.commentCount() > 0 && !mSource.isBroken())
        add(Rule::CommentLost, mSource.firstComment(), mSource.firstComment() + 2,
            Problem::tr("Saving in the tool drops the comments: there are %1")
                .arg(mSource.commentCount()),
            Problem::tr("Put what is to stay into a step's “comment”"));
}

// What the steps say.
void SourceCheck::addSteps()
{
    const QJsonArray steps = isReadable() ? mRead.steps : mSource.steps();
    for (const Problem& problem : Checker::checkSteps(steps, mOptions)) {
        const int step = stepAt(problem.step);
        // Of what could not be made out, as little as possible.
        if (step == -1 || (mSource.isBroken() && (isAboutTheWay(problem.rule) || hasError(step))))
            continue;
        mProblems.append(placed(problem, step));
    }
}

void SourceCheck::add(Rule rule, int begin, int end, const QString& message, const QString& remedy)
{
    if (!mOptions.isEnabled(rule))
        return;
    SourceProblem problem{makeProblem(rule, message, remedy), begin, end};
    problem.problem.step = mPath;
    mProblems.append(problem);
}

void SourceCheck::checkLevel(int list, const QJsonArray& read)
{
    mPath.append(0);
    int index = 0;
    for (int i = mSource.node(list).firstChild; i != -1; i = mSource.node(i).nextSibling) {
        const SourceNode& element = mSource.node(i);
        const QJsonValue value = isReadable() ? read.at(index++) : QJsonValue();
        if (element.kind == SourceNode::Broken)
            continue;
        if (element.kind != SourceNode::Object) {
            add(Rule::StepNotObject, element.begin, element.end,
                Problem::tr("A step is an object, {…}"), Problem::tr("Take it out"));
        } else if (element.firstChild == -1) {
            add(Rule::EmptyStep, element.begin, element.end,
                Problem::tr("A step without keys is dropped"), Problem::tr("Take it out"));
        } else {
            checkStep(i, value.toObject());
            ++mPath.last();
        }
    }
    mPath.removeLast();
}

// read: what the reader makes of the step, if it does.
void SourceCheck::checkStep(int object, const QJsonObject& read)
{
    int count = 0;
    for (int i = mSource.node(object).firstChild; i != -1; i = mSource.node(i).nextSibling) {
        const SourceNode& member = mSource.node(i);
        ++count;
        if (member.kind == SourceNode::Array && isKey(i, kGroup))
            checkLevel(i, read.value(kGroup).toArray());
        else if (member.kind == SourceNode::String)
            checkQuotes(i);
    }
    if (count != read.size())
        checkDuplicates(object);
}

void SourceCheck::checkDuplicates(int object)
{
    QSet<QString> keys;
    for (int i = mSource.node(object).firstChild; i != -1; i = mSource.node(i).nextSibling) {
        const QString key = mSource.keyOf(mSource.node(i));
        if (keys.contains(key))
            add(Rule::DuplicateKey, mSource.node(i).keyBegin, mSource.node(i).keyEnd,
                Problem::tr("The key “%1” stands twice in the step").arg(key),
                Problem::tr("Only the last one counts: take the others out"));
        keys.insert(key);
    }
}

void SourceCheck::checkQuotes(int node)
{
    // That it keeps the reader from reading was told.
    if (mRead.failure && mRead.failure->kind == ReadFailure::QuotedExpression)
        return;
    const SourceNode& text = mSource.node(node);
    if (isAt(mSource.text(), text.begin + 1, 'q') || isAt(mSource.text(), text.begin + 1, 'Q')) {
        if (!isKey(node, kHint) && !isKey(node, kComment))
            return;
        // Half of one is told of as such.
        TranslationExpression expression;
        if (parseTranslationExpression(mSource.textOf(text), &expression))
            add(Rule::QuotedExpression, text.begin, text.end,
                Problem::tr("lupdate leaves out an expression in quotation marks"),
                Problem::tr("Write the expression without quotation marks"));
    }
}

bool SourceCheck::isKey(int node, const QString& key) const
{
    return mSource.isString(mSource.node(node).keyBegin, mSource.node(node).keyEnd, key);
}

int SourceCheck::stepAt(const QList<int>& path)
{
    int list = mSource.root();
    int step = -1;
    for (const int row : path) {
        const QVector<int>& steps = list == -1 ? QVector<int>() : stepsIn(list);
        if (row >= steps.size())
            return -1;
        step = steps.at(row);
        list = memberOf(step, kGroup);
    }
    return step;
}

// The objects of a list that are steps.
const QVector<int>& SourceCheck::stepsIn(int list)
{
    auto found = mSteps.constFind(list);
    if (found != mSteps.constEnd())
        return *found;
    QVector<int> steps;
    for (int i = mSource.node(list).firstChild; i != -1; i = mSource.node(i).nextSibling) {
        int member = mSource.node(i).kind == SourceNode::Object ? mSource.node(i).firstChild : -1;
        while (member != -1 && mSource.node(member).kind == SourceNode::Broken)
            member = mSource.node(member).nextSibling;
        if (member != -1)
            steps.append(i);
    }
    return *mSteps.insert(list, steps);
}

// The last one with this key, which is the one that counts; -1 for none.
int SourceCheck::memberOf(int object, const QString& key)
{
    if (object != mMembersOf) {
        mMembers.clear();
        for (int i = mSource.node(object).firstChild; i != -1; i = mSource.node(i).nextSibling) {
            if (mSource.node(i).kind != SourceNode::Broken)
                mMembers.insert(mSource.keyOf(mSource.node(i)), i);
        }
        mMembersOf = object;
    }
    return mMembers.value(key, -1);
}

// Whether what stands between the brackets is in doubt.
bool SourceCheck::hasError(int node) const
{
    const auto first = std::lower_bound(mErrors.begin(), mErrors.end(), mSource.node(node).begin);
    return first != mErrors.end() && *first <= mSource.node(node).end;
}

SourceProblem SourceCheck::placed(const Problem& problem, int step)
{
    const int member = problem.key.isEmpty() ? -1 : memberOf(step, problem.key);
    if (member == -1)
        return {problem, mSource.node(step).begin, mSource.node(step).begin + 1};
    const SourceNode& node = mSource.node(member);
    if (problem.isKeyItself)
        return {problem, node.keyBegin, node.keyEnd};
    const bool isContainer = node.kind == SourceNode::Array || node.kind == SourceNode::Object;
    if (problem.size == 0 || node.kind != SourceNode::String)
        return {problem, node.begin, isContainer ? node.begin + 1 : node.end};
    const int begin = positionIn(node, problem.offset);
    return {problem, begin, positionIn(node, problem.offset + problem.size)};
}

// Where a character of a string stands.
int SourceCheck::positionIn(const SourceNode& string, int offset) const
{
    int position = string.begin + 1;
    for (; offset > 0 && position < string.end - 1; --offset) {
        const bool isEscape = isAt(mSource.text(), position, '\\');
        const bool isCode = isEscape && isAt(mSource.text(), position + 1, 'u');
        position += isCode ? 6 : isEscape ? 2 : 1;
    }
    return qMin(position, string.end - 1);
}

QVector<Problem> Checker::checkText(const QString& fileText, const CheckOptions& options)
{
    return SourceCheck(fileText, options).problems();
}
