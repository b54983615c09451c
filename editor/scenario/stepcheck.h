// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/checkoptions.h"
#include "editor/scenario/problem.h"

#include <QJsonObject>
#include <QVector>

namespace TutorialEditor {

// The problems of one step, gathered without those of disabled rules.
class StepProblems {
public:
    explicit StepProblems(const CheckOptions& options) : mOptions(options) { }

    const CheckOptions& options() const { return mOptions; }
    QVector<Problem> take() { return std::move(mProblems); }

    // The problem, for its details; valid until the next one. Of a disabled rule
    // it is given, but not kept.
    Problem& add(
        Rule rule, const QString& key, const QString& message, const QString& remedy = QString());

private:
    const CheckOptions& mOptions;
    QVector<Problem> mProblems;
    Problem mDisabled;
};

// What is wrong with a step, or with a group's own keys, for itself. Labels
// and the steps of a group are not looked at.
QVector<Problem> checkStep(const QJsonObject& step, const CheckOptions& options);

// Parts of it: the names of keys and the types of values, points; then what
// the host is asked for; then what is to be read.
void checkKeys(const QJsonObject& step, bool isGroup, StepProblems* problems);
void checkRequests(const QJsonObject& step, StepProblems* problems);
void checkTexts(const QJsonObject& step, bool isGroup, StepProblems* problems);

// "Perhaps “MainWindow” is meant"; empty when no candidate is near.
QString suggestion(const QString& name, const QStringList& candidates);

} // namespace TutorialEditor
