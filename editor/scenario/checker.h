// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/checkoptions.h"
#include "editor/scenario/problem.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QVector>

#include <memory>

namespace TutorialEditor {

// What is wrong with the steps of a scenario, kept up to date while they
// change: only what changed is looked at again, and what refers to it.
//
//   Checker checker;
//   checker.setSteps(steps);
//   checker.setStep({2, 0}, step);
//   show(checker.problems());
//
// A step is named by its rows, the outermost level first, as in an action index
// list. Objects without keys, and what is no object, are no steps and have no
// row.
class Checker {
public:
    explicit Checker(const CheckOptions& options = CheckOptions());
    ~Checker();

    // Every problem of the whole text of a file, with its place there.
    static QVector<Problem> checkText(
        const QString& fileText, const CheckOptions& options = CheckOptions());
    // Every problem of steps that are not in a file.
    static QVector<Problem> checkSteps(
        const QJsonArray& steps, const CheckOptions& options = CheckOptions());

    // The problems, in the order of the steps.
    QVector<Problem> problems() const;

    // Each is false, with nothing changed, when there is no such row.
    //
    // All steps, groups with their contents.
    void setSteps(const QJsonArray& steps);
    // The keys of a step, or of a group, which stays one; the steps in it stay as
    // they are.
    bool setStep(const QList<int>& path, const QJsonObject& step);
    // Steps, groups with their contents, before the row of a group, or of the
    // outermost level when `group` is empty.
    bool insertSteps(const QList<int>& group, int row, const QJsonArray& steps);
    bool removeSteps(const QList<int>& group, int row, int count);

private:
    struct Node;
    class FlowCheck;

    Node* nodeAt(const QList<int>& path) const;
    void read(Node* node, const QJsonObject& step) const;
    std::unique_ptr<Node> nodeOf(const QJsonObject& step) const;
    void collect(const Node& node, QList<int>* path, QVector<Problem>* problems) const;

    const CheckOptions mOptions;
    std::unique_ptr<Node> mRoot;
    // Labels, jumps or the steps' order changed since the ways were followed.
    mutable bool mFlowChanged = false;
};

} // namespace TutorialEditor
