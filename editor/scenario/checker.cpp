// SPDX-License-Identifier: MIT
#include "editor/scenario/checker.h"

#include "editor/scenario/condition.h"
#include "editor/scenario/flow.h"
#include "editor/scenario/stepcheck.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <vector>

using namespace TutorialEditor;

namespace {

const QString kLabel = QStringLiteral("label");
const QString kCondition = QStringLiteral("condition");
const QString kGroup = QStringLiteral("group");

// What an answer of a question leads to.
struct Jump {
    QString label;
    int offset; // in the condition
};

} // namespace

// A step or a group, or, as the root, the scenario.
struct Checker::Node {
    bool isQuestion() const { return !jumps.isEmpty(); }

    bool isGroup = false;
    bool hasList = false; // of a group
    QString label;
    QVector<Jump> jumps; // two of a question, otherwise none
    QVector<Problem> problems; // of the step for itself
    QVector<Problem> flowProblems; // among the others
    std::vector<std::unique_ptr<Node>> children;
};

// Follows the ways through a scenario.
class Checker::FlowCheck {
public:
    explicit FlowCheck(const CheckOptions& options) : mOptions(options) { }

    void check(Node* root);

private:
    void gather(Node* node);
    void addLabel(Node* node);
    void add(Node* node, Rule rule, const QString& key, const QString& message,
        const QString& remedy, const Jump& jump = {QString(), 0});
    bool isKnown(const Jump& jump) const
    {
        return jump.label.isEmpty() || mLabels.contains(jump.label);
    }
    int target(Node* node, const Jump& jump, int next);
    void checkWays(const Flow& flow);

    const CheckOptions& mOptions;
    QVector<Node*> mSteps; // as they are played
    QHash<QString, int> mLabels; // the step behind each
    QVector<Node*> mLabelled;
    QSet<QString> mUsed;
    int mUnknown = 0;
};

void Checker::FlowCheck::check(Node* root)
{
    gather(root);
    Flow flow;
    for (int i = 0; i < mSteps.size(); ++i) {
        Node* step = mSteps.at(i);
        if (!step->isQuestion()) {
            flow.append(i + 1, i + 1);
            continue;
        }
        const int yes = target(step, step->jumps.first(), i + 1);
        const int no = target(step, step->jumps.last(), i + 1);
        flow.append(yes, no);
        if (yes == no && isKnown(step->jumps.first()) && isKnown(step->jumps.last()))
            add(step, Rule::YesNoOneWay, kCondition,
                Problem::tr("Yes and No lead to the same step"),
                Problem::tr("Give one of them another label"));
    }
    for (Node* node : qAsConst(mLabelled)) {
        if (!mUsed.contains(node->label))
            add(node, Rule::UnusedLabel, kLabel,
                Problem::tr("No question leads to the label “%1”").arg(node->label), QString());
    }
    checkWays(flow);
}

void Checker::FlowCheck::gather(Node* node)
{
    for (const auto& child : node->children) {
        child->flowProblems.clear();
        addLabel(child.get());
        if (child->isGroup)
            gather(child.get());
        else
            mSteps.append(child.get());
    }
}

void Checker::FlowCheck::addLabel(Node* node)
{
    if (node->label.isEmpty())
        return;
    if (mLabels.contains(node->label)) {
        add(node, Rule::DuplicateLabel, kLabel,
            Problem::tr("The label “%1” stands before as well").arg(node->label),
            Problem::tr("Only the first one is found: write another"));
        return;
    }
    mLabels.insert(node->label, mSteps.size());
    mLabelled.append(node);
}

void Checker::FlowCheck::add(Node* node, Rule rule, const QString& key, const QString& message,
    const QString& remedy, const Jump& jump)
{
    if (!mOptions.isEnabled(rule))
        return;
    Problem problem = makeProblem(rule, message, remedy);
    problem.key = key;
    problem.offset = jump.offset;
    problem.size = jump.label.size();
    node->flowProblems.append(problem);
}

// The step that a question's answer leads to.
int Checker::FlowCheck::target(Node* node, const Jump& jump, int next)
{
    if (jump.label.isEmpty())
        return next;
    mUsed.insert(jump.label);
    const auto found = mLabels.constFind(jump.label);
    if (found != mLabels.constEnd())
        return *found;
    const bool isCheap = mLabels.size() <= 200 && ++mUnknown <= 50;
    add(node, Rule::UnknownLabel, kCondition,
        Problem::tr("No step has the label “%1”").arg(jump.label),
        isCheap ? suggestion(jump.label, mLabels.keys()) : QString(), jump);
    return next;
}

void Checker::FlowCheck::checkWays(const Flow& flow)
{
    const QVector<bool> reached = flow.reached();
    const QVector<bool> ending = flow.ending();
    for (int i = 0; i < mSteps.size(); ++i) {
        // What follows such a step is not reached for the same reason.
        if (!reached.at(i) && (i == 0 || reached.at(i - 1)))
            add(mSteps.at(i), Rule::UnreachableStep, QString(),
                Problem::tr("This step is never reached"),
                Problem::tr("Give it a label, and let a question lead there"));
        if (!reached.at(i) || ending.at(i) || !mSteps.at(i)->isQuestion())
            continue;
        if (std::min(flow.first(i), flow.second(i)) <= i)
            add(mSteps.at(i), Rule::EndlessLoop, kCondition,
                Problem::tr("From here there is no way to the end"),
                Problem::tr("Let one of the answers lead out of the loop"));
    }
}

Checker::Checker(const CheckOptions& options) : mOptions(options), mRoot(new Node) { }

Checker::~Checker() = default;

QVector<Problem> Checker::checkSteps(const QJsonArray& steps, const CheckOptions& options)
{
    Checker checker(options);
    checker.setSteps(steps);
    return checker.problems();
}

QVector<Problem> Checker::problems() const
{
    if (mFlowChanged)
        FlowCheck(mOptions).check(mRoot.get());
    mFlowChanged = false;
    QVector<Problem> problems;
    QList<int> path;
    for (const auto& child : mRoot->children) {
        path.append(int(&child - mRoot->children.data()));
        collect(*child, &path, &problems);
        path.removeLast();
    }
    return problems;
}

void Checker::setSteps(const QJsonArray& steps)
{
    mRoot.reset(new Node);
    insertSteps({}, 0, steps);
}

bool Checker::setStep(const QList<int>& path, const QJsonObject& step)
{
    Node* node = path.isEmpty() ? nullptr : nodeAt(path);
    if (!node)
        return false;
    read(node, step);
    return true;
}

bool Checker::insertSteps(const QList<int>& group, int row, const QJsonArray& steps)
{
    Node* parent = nodeAt(group);
    if (!parent || row < 0 || row > int(parent->children.size()))
        return false;
    std::vector<std::unique_ptr<Node>> nodes;
    for (const QJsonValue& step : steps) {
        if (!step.toObject().isEmpty())
            nodes.push_back(nodeOf(step.toObject()));
    }
    parent->children.insert(parent->children.begin() + row, std::make_move_iterator(nodes.begin()),
        std::make_move_iterator(nodes.end()));
    mFlowChanged = true;
    return true;
}

bool Checker::removeSteps(const QList<int>& group, int row, int count)
{
    Node* parent = nodeAt(group);
    if (!parent || row < 0 || count < 0 || count > int(parent->children.size()) - row)
        return false;
    const auto begin = parent->children.begin() + row;
    parent->children.erase(begin, begin + count);
    mFlowChanged = true;
    return true;
}

Checker::Node* Checker::nodeAt(const QList<int>& path) const
{
    Node* node = mRoot.get();
    for (const int row : path) {
        if (row < 0 || row >= int(node->children.size()))
            return nullptr;
        node = node->children[std::size_t(row)].get();
    }
    return node;
}

void Checker::read(Node* node, const QJsonObject& step) const
{
    const bool isGroup = step.contains(kGroup) || node->isGroup;
    const QString label = step.value(kLabel).toString();
    QVector<Jump> jumps;
    const QString condition = step.value(kCondition).toString();
    const QString kind = Tutorial::getConditionKindName(Tutorial::Condition_yesNo);
    const QStringList parts =
        condition.startsWith(kind) ? splitCondition(condition) : QStringList();
    if (!isGroup && parts.value(0) == kind) {
        const int second = int(parts.first().size()) + 1;
        jumps = {
            {parts.value(1), second}, {parts.value(2), second + int(parts.value(1).size()) + 1}};
    }
    const bool isSameJump = std::equal(jumps.begin(), jumps.end(), node->jumps.begin(),
        node->jumps.end(), [](const Jump& a, const Jump& b) { return a.label == b.label; });
    mFlowChanged |= isGroup != node->isGroup || label != node->label || !isSameJump;
    node->isGroup = isGroup;
    node->hasList = !step.contains(kGroup) || step.value(kGroup).isArray();
    node->label = label;
    node->jumps = jumps;
    QJsonObject whole = step;
    if (isGroup && !step.contains(kGroup))
        whole.insert(kGroup, QJsonArray());
    node->problems = checkStep(whole, mOptions);
}

std::unique_ptr<Checker::Node> Checker::nodeOf(const QJsonObject& step) const
{
    auto node = std::make_unique<Node>();
    read(node.get(), step);
    for (const QJsonValue& child : step.value(kGroup).toArray()) {
        if (!child.toObject().isEmpty())
            node->children.push_back(nodeOf(child.toObject()));
    }
    return node;
}

void Checker::collect(const Node& node, QList<int>* path, QVector<Problem>* problems) const
{
    const auto append = [&](const QVector<Problem>& some) {
        for (const Problem& problem : some) {
            problems->append(problem);
            problems->last().step = *path;
        }
    };
    append(node.problems);
    append(node.flowProblems);
    if (node.isGroup && node.hasList && node.children.empty()
        && mOptions.isEnabled(Rule::EmptyGroup)) {
        Problem problem = makeProblem(Rule::EmptyGroup, Problem::tr("The group holds no step"),
            Problem::tr("Put steps into it, or take it out"));
        problem.key = kGroup;
        append({problem});
    }
    for (const auto& child : node.children) {
        path->append(int(&child - node.children.data()));
        collect(*child, path, problems);
        path->removeLast();
    }
}
