// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/sourcescanner.h"

#include <QCoreApplication>
#include <QString>

namespace TutorialEditor {

class ScenarioSource;

// The context under which translators find what the reader reports: that of
// the scenario's model.
struct ReadError {
    Q_DECLARE_TR_FUNCTIONS(QStandardItemModel)
};

// Why the reader gave a text up.
struct ReadFailure {
    enum Kind {
        NoList, // nothing, or something else than a list
        OpenExpression, // no ")," at the end of a line
        QuotedExpression, // in quotation marks, and no line end after it
        NoLineEnd, // behind a text or a key
        TooDeep,
        Json
    };
    Kind kind;
    QString message; // for the author, as it has always been
    int position; // in the text as far as it was rewritten
};

// What is wrong where a text could not be read. text: the file's, or what of it
// was given to the reader; position: where the reader gave it up.
SourceProblem explain(const ReadFailure& failure, const ScenarioSource& source, int position);

// The failure's message, and behind it the step, the place in the file, its
// line with a caret below the place, and what is wrong there.
QString describedFailure(const ReadFailure& failure, const QString& text, int position);

} // namespace TutorialEditor
