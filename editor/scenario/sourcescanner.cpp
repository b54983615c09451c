// SPDX-License-Identifier: MIT
#include "editor/scenario/sourcescanner.h"

using namespace TutorialEditor;

namespace {

constexpr QLatin1Char kLf('\n');

bool isNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == QLatin1Char('_')
        || character == QLatin1Char('$');
}

// Position of the first "/*" in a line comment that is in no string; -1 for none.
int commentWithin(const QString& text, int begin, int end)
{
    bool isQuoted = false;
    for (int i = begin; i + 1 < end; ++i) {
        if (isAt(text, i, '"'))
            isQuoted = !isQuoted;
        else if (!isQuoted && isAt(text, i, '/') && isAt(text, i + 1, '*'))
            return i;
    }
    return -1;
}

} // namespace

bool SourceScanner::isOddBlank(QChar character)
{
    return character.isSpace() || character == QChar(0x200B) || character == QChar(0xFEFF);
}

int SourceScanner::lineEnd(int position) const
{
    const int end = mText.indexOf(kLf, position);
    return end == -1 ? mText.size() : end;
}

QString SourceScanner::rest(int position) const
{
    constexpr int kMost = 1000;
    const int limit = qMin(position + kMost, int(mText.size()));
    int end = position;
    while (end < limit && mText.at(end) != kLf)
        ++end;
    if (end < mText.size() && end > position && mText.at(end).isLowSurrogate())
        --end;
    return mText.mid(position, end - position);
}

bool SourceScanner::isOnOneLine(int begin, int end) const
{
    return !QStringView(mText).mid(begin, end - begin).contains(kLf);
}

void SourceScanner::moveTo(int position)
{
    mPosition = position;
    mTokenEnd = position;
}

void SourceScanner::skipBlanks()
{
    for (;;) {
        const QChar character = next();
        if (character == kLf) {
            mLineBegin = ++mPosition;
        } else if (character == QLatin1Char(' ') || character == QLatin1Char('\t')
            || character == QLatin1Char('\r')) {
            ++mPosition;
        } else if (character == QLatin1Char('/') && at(mPosition + 1) == QLatin1Char('*')) {
            skipBlockComment();
        } else if (character == QLatin1Char('/') && at(mPosition + 1) == QLatin1Char('/')) {
            skipLineComment();
        } else if (isOddBlank(character)) {
            report(Rule::OddBlank, mPosition, mPosition + 1,
                Problem::tr("A character that only looks like a blank stands here (U+%1)")
                    .arg(character.unicode(), 4, 16, QLatin1Char('0')),
                Problem::tr("Type a blank instead"));
            ++mPosition;
        } else {
            return;
        }
    }
}

QString SourceScanner::takeName()
{
    const int begin = mPosition;
    while (isNameCharacter(next()))
        ++mPosition;
    mTokenEnd = mPosition;
    return mText.mid(begin, mPosition - begin);
}

void SourceScanner::report(
    Rule rule, int begin, int end, const QString& message, const QString& remedy)
{
    const bool breaks = ruleInfo(rule).severity == Severity::Error;
    if (breaks && begin < mQuietUntil)
        return;
    SourceProblem problem{makeProblem(rule, message, remedy), begin, end};
    problem.problem.step = mStep;
    mProblems.append(problem);
    if (!breaks)
        return;
    mIsBroken = true;
    mQuietUntil = lineEnd(qMax(begin, mPosition));
}

void SourceScanner::skipLineComment()
{
    const int begin = mPosition;
    const int end = lineEnd(begin);
    const int within = commentWithin(mText, begin + 1, end);
    const int close = within == -1 ? -1 : mCommentEnd.from(within + 2);
    mPosition = qMin(end + 1, mText.size());
    if (mTokenEnd > mLineBegin)
        report(Rule::CommentBehindText, begin, end,
            Problem::tr("A // comment stands behind other text"),
            Problem::tr("Put it on a line of its own, or write /* … */"));
    else if (end == mText.size())
        report(Rule::CommentBehindText, begin, end,
            Problem::tr("A // comment needs a line end behind it"),
            Problem::tr("End the file with an empty line"));
    else if (close != -1 && (close > end || within == begin + 1))
        report(Rule::CommentInComment, within, within + 2,
            Problem::tr("This /* begins a comment, although a // stands before it"),
            Problem::tr("Take it out of the // comment"));
    mLineBegin = mPosition;
    countComment(begin);
}

void SourceScanner::skipBlockComment()
{
    const int begin = mPosition;
    const int close = mCommentEnd.from(begin + 2);
    if (close == -1) {
        mPosition = lineEnd(begin);
        report(Rule::UnclosedComment, begin, begin + 2, Problem::tr("This comment has no end"),
            Problem::tr("Write */ where it ends"));
        return;
    }
    mPosition = close + 2;
    countComment(begin);
}

void SourceScanner::countComment(int begin)
{
    if (mCommentCount++ == 0)
        mFirstComment = begin;
}
