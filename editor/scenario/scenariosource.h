// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/sourcescanner.h"

#include <QJsonArray>
#include <QVector>

namespace TutorialEditor {

// A value in the text of a scenario, with its key where it has one.
struct SourceNode {
    enum Kind { Object, Array, String, Expression, Number, Word, Broken };

    Kind kind = Broken;
    int begin = 0;
    int end = 0;
    int keyBegin = 0; // the key's quotation marks; both the same for no key
    int keyEnd = 0;
    int firstChild = -1; // of an object or an array
    int nextSibling = -1;
};

// What the text of a scenario says and where, found by reading it as a script
// rather than in the reader's way: with places, in any layout, and on behind a
// mistake. What both read without a problem they read alike.
class ScenarioSource {
public:
    enum class Form {
        File,
        Pasted // the frame may be missing, and so may the list's brackets
    };
    explicit ScenarioSource(const QString& text, Form form = Form::File);

    const QString& text() const { return mText; }
    // The list of the steps; -1 when there is none.
    int root() const { return mRoot; }
    const SourceNode& node(int index) const { return mNodes.at(index); }
    // How the text is written, in rising order; for values see SourceCheck.
    const QVector<SourceProblem>& problems() const { return mProblems; }
    // Whether a problem makes it doubtful what the text says.
    bool isBroken() const { return mIsBroken; }
    int commentCount() const { return mCommentCount; }
    int firstComment() const { return mFirstComment; } // a position

    // The key's name, escapes resolved.
    QString keyOf(const SourceNode& node) const;
    // Whether the string in quotation marks at these positions is this text.
    bool isString(int begin, int end, const QString& text) const;
    // A string, escapes resolved, or an expression as it stands.
    QString textOf(const SourceNode& node) const;
    double numberOf(const SourceNode& node) const;
    // A value as JSON. An expression is a text; what is broken is left out.
    QJsonValue valueOf(int index) const;
    // The steps; of broken text, what could be made out.
    QJsonArray steps() const { return mRoot == -1 ? QJsonArray() : valueOf(mRoot).toArray(); }

private:
    QString unescaped(int begin, int end) const;

    QString mText;
    QVector<SourceNode> mNodes;
    int mRoot = -1;
    QVector<SourceProblem> mProblems;
    bool mIsBroken = false;
    int mCommentCount = 0;
    int mFirstComment = -1;
};

} // namespace TutorialEditor
