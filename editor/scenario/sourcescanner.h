// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/problem.h"
#include "editor/scenario/textwalker.h"

#include <QVector>

namespace TutorialEditor {

// A problem in a text, and where.
struct SourceProblem {
    Problem problem;
    int begin = 0;
    int end = 0;
};

// Goes through the text of a scenario as an author means it: blanks, comments,
// strings and translation expressions. What is not as it should be is noted,
// and passed over in such a way that what follows can be read.
class SourceScanner {
public:
    enum class Role { Key, Value, Argument }; // of a string

    explicit SourceScanner(const QString& text)
        : mText(text), mCommentEnd(mText, QStringLiteral("*/"))
    {
    }

    const QString& text() const { return mText; }
    int position() const { return mPosition; }
    bool isAtEnd() const { return mPosition >= mText.size(); }
    // The character at the position; null at the end.
    QChar next() const { return at(mPosition); }
    QChar at(int position) const { return position < mText.size() ? mText.at(position) : QChar(); }
    bool isNext(QStringView text) const
    {
        return QStringView(mText).mid(mPosition).startsWith(text);
    }
    int lineEnd(int position) const;
    // The rest of the line, or the begin of it when it is very long. To match an
    // expression against the whole text would take a way through all of it.
    QString rest(int position) const;
    bool isOnOneLine(int begin, int end) const;

    void moveTo(int position);
    void moveToEnd() { mPosition = mText.size(); }
    // Over blanks, line ends and comments.
    void skipBlanks();
    // Over a string that begins at the position.
    void skipString(Role role);
    // Over a text in other quotation marks than a string's, which is a problem.
    void skipOtherQuotes(Role role);
    // Over `qsTr(…)` or `QT_TRANSLATE_NOOP(…)`.
    void skipExpression();
    // Over a name: letters, digits and underscores.
    QString takeName();

    // Blank on the screen, but not for the reader.
    static bool isOddBlank(QChar character);
    // Whether a text in other quotation marks begins at the position.
    bool isOtherQuote() const;
    // Whether a string begins at the position, and a colon follows it.
    bool isKeyNext() const;

    // Notes a problem, unless one in the same line may be its cause.
    void report(
        Rule rule, int begin, int end, const QString& message, const QString& remedy = QString());

    // The rows of the step at work.
    QList<int>& step() { return mStep; }
    const QVector<SourceProblem>& problems() const { return mProblems; }
    bool isBroken() const { return mIsBroken; }
    int commentCount() const { return mCommentCount; }
    int firstComment() const { return mFirstComment; }

private:
    void skipLineComment();
    void skipBlockComment();
    void countComment(int begin);
    void checkEscape(int backslash, Role role);
    bool looksLikeNewLine(int position) const;
    bool goesOnInNextLine(int lineEnd) const;
    int endOfOpenString(int begin, int lineEnd, Role role);
    void checkBehindString(int begin, Role role);
    void reportClosingBackslash(int backslash);
    void skipBlanksInExpression();
    bool skipArgument();
    void skipBrokenArgument();

    const QString mText;
    NextOccurrence mCommentEnd;
    int mPosition = 0;
    // The begin of the line that a // would have for itself; a block comment
    // does not end a line.
    int mLineBegin = 0;
    int mTokenEnd = 0;
    int mQuietUntil = 0;
    QList<int> mStep;
    QVector<SourceProblem> mProblems;
    bool mIsBroken = false;
    int mCommentCount = 0;
    int mFirstComment = -1;
};

} // namespace TutorialEditor
