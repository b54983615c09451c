// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/rules.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

namespace TutorialEditor {

// Something in a scenario that the author should know of.
struct Problem {
    Q_DECLARE_TR_FUNCTIONS(TutorialEditor::Problem)

public:
    Rule rule = Rule::Count;
    Severity severity = Severity::Error;
    QString message; // what is wrong, a sentence without its full stop
    QString remedy; // what to do, likewise; may be empty

    // The action index list of the step or group; empty when it is the
    // scenario as a whole.
    QList<int> step;
    QString key; // of the step; empty when it is the step as a whole
    bool isKeyItself = false; // not its value
    // The part of the value's text that is meant; all of it when the length is 0.
    int offset = 0;
    int size = 0;

    // In the file, where there is one, as text editors count: from 1, in
    // characters. 0 where there is none.
    int line = 0;
    int column = 0;
    int length = 0;
};

// A problem with the severity of its rule.
Problem makeProblem(Rule rule, const QString& message, const QString& remedy = QString());

// What is wrong and what to do, as sentences.
QString sentences(const Problem& problem);

// "error", "warning", "note", for programs.
QString severityName(Severity severity);

} // namespace TutorialEditor
