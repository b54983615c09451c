// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/checkoptions.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariosource.h"

#include <QHash>
#include <QJsonObject>
#include <QVector>

namespace TutorialEditor {

// Finds the problems in the text of a file, with their places.
class SourceCheck {
public:
    // The text is shared, the options are referred to.
    SourceCheck(const QString& fileText, const CheckOptions& options);

    // In the order of the text.
    QVector<Problem> problems();

private:
    bool isReadable() const { return !mRead.failure && !mSource.isBroken(); }
    void addText();
    void addSteps();
    void add(Rule rule, int begin, int end, const QString& message, const QString& remedy);
    void checkLevel(int list, const QJsonArray& read);
    void checkStep(int object, const QJsonObject& read);
    void checkDuplicates(int object);
    void checkQuotes(int node);
    bool isKey(int node, const QString& key) const;

    // The object of a step; -1 when there is none.
    int stepAt(const QList<int>& path);
    const QVector<int>& stepsIn(int list);
    int memberOf(int object, const QString& key);
    bool hasError(int node) const;
    int positionIn(const SourceNode& text, int offset) const;
    SourceProblem placed(const Problem& problem, int step);

    const CheckOptions& mOptions;
    const ScenarioSource mSource;
    const ReadScenario mRead;
    QHash<int, QVector<int>> mSteps; // of each list that was asked for
    QHash<QString, int> mMembers; // of the object that was asked for last
    int mMembersOf = -1;
    QList<int> mPath; // of the step at work
    QVector<SourceProblem> mProblems;
    QVector<int> mErrors; // where it is in doubt what the text says, in rising order
};

} // namespace TutorialEditor
