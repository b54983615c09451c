// SPDX-License-Identifier: MIT
#include "editor/scenario/sourcescanner.h"

#include <QRegularExpression>

#include <algorithm>

using namespace TutorialEditor;

namespace {

const QString kEscapes = QStringLiteral("\"\\/bfnrtu");
const QString kExpressionEscapes = QStringLiteral("xv0");
const QString kOpenQuotes = QStringLiteral("'`‘’“”„«»");
const QString kCloseQuotes = QStringLiteral("'‘’“”„«»\"");

QString chopped(QStringView text)
{
    constexpr int kShown = 30;
    return text.size() <= kShown ? text.toString()
                                 : text.left(kShown).toString() + QStringLiteral("…");
}

// "C:" before a backslash: the author means a folder.
bool isDrive(const QString& text, int backslash)
{
    return backslash >= 3 && isAt(text, backslash - 1, ':') && text.at(backslash - 2).isLetter()
        && !text.at(backslash - 3).isLetterOrNumber();
}

bool isHexadecimal(QStringView digits)
{
    return digits.size() == 4 && std::all_of(digits.begin(), digits.end(), [](QChar digit) {
        return QStringLiteral("0123456789abcdefABCDEF").contains(digit);
    });
}

// Where the part of a line ends that a text without its closing quotation mark
// takes: before what ends a value.
int endOfText(const QString& text, int begin, int end, bool isArgument)
{
    const auto skipBack = [&](const char* characters) {
        while (end > begin && QString::fromLatin1(characters).contains(text.at(end - 1)))
            --end;
    };
    skipBack(" \t\r");
    skipBack(",;}]");
    if (isArgument)
        skipBack(" \t)");
    return end;
}

} // namespace

void SourceScanner::skipString(Role role)
{
    const int begin = mPosition;
    int i = begin + 1;
    for (; i < mText.size() && !isAt(mText, i, '"') && !isAt(mText, i, '\n'); ++i) {
        if (!isAt(mText, i, '\\'))
            continue;
        checkEscape(i, role);
        // A line that ends in a backslash goes on in the next one, in a script.
        if (isAt(mText, i + 1, '\n') && role != Role::Argument)
            continue;
        i += isAt(mText, i + 1, '\r') && isAt(mText, i + 2, '\n') ? 2 : 1;
    }
    i = qMin(i, mText.size());
    if (isAt(mText, i, '"')) {
        moveTo(i + 1);
        checkBehindString(begin, role);
    } else {
        moveTo(endOfOpenString(begin, i, role));
    }
}

void SourceScanner::checkEscape(int backslash, Role role)
{
    const QChar letter = at(backslash + 1);
    if (letter.isNull() || letter == QLatin1Char('\n') || letter == QLatin1Char('\r'))
        return;
    if (letter == QLatin1Char('u')) {
        if (!isHexadecimal(QStringView(mText).mid(backslash + 2, 4)))
            report(Rule::BadValue, backslash, backslash + 2,
                Problem::tr("Four hexadecimal digits are expected behind \\u"),
                Problem::tr("Write a backslash as \\\\"));
        return;
    }
    const bool isKnown = kEscapes.contains(letter)
        || (role == Role::Argument
            && (kExpressionEscapes.contains(letter) || !letter.isLetterOrNumber()));
    if (isKnown && !(isDrive(mText, backslash) && letter.isLetter()))
        return;
    report(Rule::UnknownEscape, backslash, backslash + 2,
        isKnown ? Problem::tr("\\%1 does not stand for a backslash and “%1”").arg(letter)
                : Problem::tr("\\%1 means “%1”, without the backslash").arg(letter),
        Problem::tr("Write a backslash as \\\\"));
}

// Whether the line at this position is no part of a text that was begun before.
bool SourceScanner::looksLikeNewLine(int position) const
{
    static const QRegularExpression kLine(
        QStringLiteral("^[ \\t\\r]*($|//|/\\*|[\\[\\]{}]|\"[^\"\\n]*\"[ \\t]*:|'?\\w+'?[ \\t]*:)"));
    return position >= mText.size() || kLine.match(rest(position)).hasMatch();
}

// Whether a text that is open at the end of its line is closed in a later one.
bool SourceScanner::goesOnInNextLine(int lineEnd) const
{
    const int close = mText.indexOf(QLatin1Char('"'), lineEnd);
    int line = lineEnd + 1;
    while (line <= close && !looksLikeNewLine(line))
        line = this->lineEnd(line) + 1;
    return close != -1 && line > close;
}

// The position behind a string that its line does not close.
int SourceScanner::endOfOpenString(int begin, int lineEnd, Role role)
{
    const auto whole = [&](int end) { return chopped(QStringView(mText).mid(begin, end - begin)); };
    // The last quotation mark of the line, behind which the value ends.
    const int quote = mText.lastIndexOf(QLatin1Char('"'), lineEnd - 1);
    const int end = endOfText(mText, begin + 1, lineEnd, role == Role::Argument);
    if (quote > begin && quote + 1 >= end) {
        reportClosingBackslash(quote - 1);
        return quote + 1;
    }
    if (goesOnInNextLine(lineEnd)) {
        const int next = isAt(mText, lineEnd - 1, '\r') ? lineEnd - 1 : lineEnd;
        report(Rule::LineBreakInText, next, next + 1,
            Problem::tr("The text %1 runs over the end of its line").arg(whole(next)),
            Problem::tr("Write a line end as \\n"));
        return mText.indexOf(QLatin1Char('"'), lineEnd) + 1;
    }
    report(Rule::MissingQuote, begin, end,
        Problem::tr("The text %1 has no closing quotation mark").arg(whole(end)),
        Problem::tr("Close it in its line"));
    return end;
}

void SourceScanner::reportClosingBackslash(int backslash)
{
    report(Rule::MissingQuote, backslash, backslash + 2,
        Problem::tr("The backslash makes this quotation mark a part of the text"),
        Problem::tr("Write a backslash as \\\\"));
}

// A string that was just closed may have been closed by a quotation mark of its
// text.
void SourceScanner::checkBehindString(int begin, Role role)
{
    static const QString kBehind = QStringLiteral(" \t\r\n,:;)]}=+/");
    const QChar behind = next();
    if (behind.isNull() || kBehind.contains(behind) || isOddBlank(behind))
        return;
    const int quote = mPosition - 1;
    const int end = lineEnd(mPosition);
    static const QRegularExpression kKey(QStringLiteral("^\"(\\w+)[ \\t]*:[ \\t]*\"$"));
    const QString text = mText.mid(begin, mPosition - begin);
    const auto key = kKey.match(text);
    if (role == Role::Key && key.hasMatch()) {
        report(Rule::MissingQuote, begin, begin + 1 + key.capturedLength(1),
            Problem::tr("The key “%1” has no closing quotation mark").arg(key.captured(1)),
            Problem::tr("Close it before the colon"));
        moveTo(mText.indexOf(QLatin1Char(':'), begin));
        return;
    }
    static const QRegularExpression kBackslash(QStringLiteral("\\\\\"[ \\t]*[,)}\\]]"));
    const auto backslash = kBackslash.match(text);
    if (backslash.hasMatch()) {
        const int at = begin + backslash.capturedStart();
        moveTo(at + 2);
        reportClosingBackslash(at);
        return;
    }
    report(Rule::UnescapedQuote, quote, quote + 1,
        Problem::tr("This quotation mark ends the text %1").arg(chopped(text)),
        Problem::tr("Write \\\" for one that is a part of the text"));
    const int last = mText.lastIndexOf(QLatin1Char('"'), end - 1);
    if (last > quote)
        moveTo(last + 1);
}

bool SourceScanner::isOtherQuote() const
{
    return kOpenQuotes.contains(next()) && !next().isNull();
}

bool SourceScanner::isKeyNext() const
{
    static const QRegularExpression kKey(QStringLiteral("^\"[^\"\\n]*\"[ \\t]*:"));
    return kKey.match(rest(mPosition)).hasMatch();
}

void SourceScanner::skipOtherQuotes(Role role)
{
    const int begin = mPosition;
    const bool isTemplate = next() == QLatin1Char('`');
    int close = begin + 1;
    const QString quotes = isTemplate ? QStringLiteral("`") : kCloseQuotes;
    const auto goesOn = [&](int i) {
        return i < mText.size() && !quotes.contains(mText.at(i))
            && (isTemplate || !isAt(mText, i, '\n'));
    };
    while (goesOn(close))
        close += isAt(mText, close, '\\') && goesOn(close + 1) ? 2 : 1;
    const bool isClosed = close < mText.size() && !isAt(mText, close, '\n');
    moveTo(isClosed ? close + 1 : endOfText(mText, begin, lineEnd(begin), role == Role::Argument));
    if (isTemplate)
        report(Rule::TemplateString, begin, mPosition,
            Problem::tr("A template string is not understood"),
            Problem::tr("Write the text in quotation marks, \"…\", with \\n for a line end"));
    else
        report(Rule::SingleQuotes, begin, mPosition, Problem::tr("The quotation marks are not \""),
            Problem::tr("Write \"…\""));
}

void SourceScanner::skipBlanksInExpression()
{
    int next = mPosition;
    while (at(next).isSpace())
        ++next;
    if (isAt(mText, next, '/') && (isAt(mText, next + 1, '*') || isAt(mText, next + 1, '/')))
        report(Rule::CommentInExpression, next, next + 2,
            Problem::tr("A comment inside an expression is taken for a part of it"),
            Problem::tr("Put it on a line of its own above the key"));
    skipBlanks();
}

void SourceScanner::skipExpression()
{
    const int begin = mPosition;
    const bool isTr = takeName() == QLatin1String("qsTr");
    moveTo(mPosition + 1);
    if (next().isSpace())
        report(Rule::BadExpression, mPosition, mPosition + 1,
            Problem::tr("Between ( and the quotation mark may be no blank"),
            Problem::tr("Write qsTr(\"…\")"));
    int texts = 0;
    int end = mPosition; // of the last text
    for (bool goesOn = true; goesOn; ++texts) {
        skipBlanksInExpression();
        if (texts > 0 && !isOnOneLine(end, mPosition)
            && (next() != QLatin1Char('"') || isKeyNext()))
            break;
        if (!skipArgument())
            return;
        end = mPosition;
        skipBlanksInExpression();
        goesOn = next() == QLatin1Char(',');
        if (goesOn)
            moveTo(mPosition + 1);
    }
    if (next() == QLatin1Char('+')) {
        report(Rule::Concatenation, mPosition, mPosition + 1,
            Problem::tr("Texts cannot be put together with +"),
            Problem::tr("Write one text between one pair of quotation marks"));
        skipBrokenArgument();
    } else if (next() != QLatin1Char(')')) {
        moveTo(end);
        report(Rule::MissingBracket, end, end + 1,
            Problem::tr("The ) of the expression is missing: it runs on"),
            Problem::tr("Close it behind the text"));
    } else {
        moveTo(mPosition + 1);
        if (texts > 2)
            report(Rule::BadExpression, begin, mPosition,
                Problem::tr("An expression has two texts at most"),
                isTr ? Problem::tr("Write qsTr(\"text\", \"note\")")
                     : Problem::tr("Write QT_TRANSLATE_NOOP(\"context\", \"text\")"));
    }
}

// False when there is none; then the rest of the expression was passed over.
bool SourceScanner::skipArgument()
{
    if (next() == QLatin1Char('"')) {
        skipString(Role::Argument);
        return true;
    }
    if (isOtherQuote()) {
        skipOtherQuotes(Role::Argument);
        return true;
    }
    report(Rule::BadExpression, mPosition, mPosition + 1,
        Problem::tr("Only texts in quotation marks can stand in an expression"),
        Problem::tr("Write qsTr(\"…\")"));
    skipBrokenArgument();
    return false;
}

// To the end of an expression that cannot be understood, in its line.
void SourceScanner::skipBrokenArgument()
{
    const int end = lineEnd(mPosition);
    const int close = mText.lastIndexOf(QLatin1Char(')'), end - 1);
    moveTo(close >= mPosition ? close + 1 : endOfText(mText, mPosition, end, false));
}
