// SPDX-License-Identifier: MIT
#include "editor/scenario/sourceparser.h"

#include <QRegularExpression>

using namespace TutorialEditor;

namespace {

constexpr int kCharactersPerNode = 24; // as most scenarios have them

const QString kHead = QStringLiteral("var scenario = [");

bool isLetter(QChar character)
{
    return character.isLetter() || character == QLatin1Char('_') || character == QLatin1Char('$');
}

} // namespace

SourceParser::SourceParser(const QString& text) : mScanner(text)
{
    mNodes.reserve(text.size() / kCharactersPerNode + 8);
}

int SourceParser::parseFile()
{
    mScanner.skipBlanks();
    if (!parseHead())
        return -1;
    const int root = parseArray(true);
    if (mDepth == 0)
        parseTail();
    return root;
}

int SourceParser::parsePasted()
{
    mScanner.skipBlanks();
    if (mScanner.isNext(kHead))
        mScanner.moveTo(mScanner.position() + kHead.size() - 1);
    const bool isList = mScanner.next() == QLatin1Char('[');
    const int root = isList ? parseArray(true) : addNode(SourceNode::Array);
    if (!isList)
        parseElements(root, QChar(), true);
    mScanner.skipBlanks();
    while (mScanner.next() == QLatin1Char(';') || mScanner.next() == QLatin1Char(',')) {
        mScanner.moveTo(mScanner.position() + 1);
        mScanner.skipBlanks();
    }
    if (!mScanner.isAtEnd())
        mScanner.report(Rule::TextAroundList, mScanner.position(), mScanner.position() + 1,
            Problem::tr("Other text stands behind the steps"));
    finish(root);
    return root;
}

// Goes to the "[" of the list. False when there is none.
bool SourceParser::parseHead()
{
    if (mScanner.next() == QLatin1Char('['))
        return true;
    const QString& text = mScanner.text();
    const int begin = mScanner.position();
    if (mScanner.isNext(kHead)) {
        mScanner.moveTo(begin + kHead.size() - 1);
        return true;
    }
    static const QRegularExpression kLikeHead(
        QStringLiteral("\\G[\\w.]+\\s+[\\w.]*\\s*=?\\s*\\[|\\G[\\w.]+\\s*=\\s*\\["));
    const auto like = kLikeHead.match(text, begin);
    const int head = text.indexOf(kHead, begin);
    int list = like.hasMatch() ? like.capturedEnd() - 1 : -1;
    if (list == -1 && head != -1)
        list = head + kHead.size() - 1;
    if (list == -1 || mScanner.isAtEnd()) {
        mScanner.report(Rule::NoList, begin, begin + 1, Problem::tr("There is no list of steps"),
            Problem::tr("Begin with “%1”, end with “];”").arg(kHead));
        return false;
    }
    mScanner.moveTo(list);
    if (like.hasMatch())
        mScanner.report(Rule::Frame, begin, list + 1,
            Problem::tr("The frame does not begin with “%1”").arg(kHead),
            Problem::tr("Write it exactly so, to the blank"));
    else
        mScanner.report(Rule::TextAroundList, begin, head,
            Problem::tr("Other text stands before the list"),
            Problem::tr("Take it out, or make it a comment"));
    return true;
}

void SourceParser::parseTail()
{
    const int end = mScanner.position();
    if (mScanner.next() == QLatin1Char(';'))
        mScanner.moveTo(end + 1);
    mScanner.skipBlanks();
    if (mScanner.isAtEnd())
        return;
    const int position = mScanner.position();
    const QChar next = mScanner.next();
    if (next == QLatin1Char(';'))
        mScanner.report(Rule::Frame, end, position + 1,
            Problem::tr("The frame does not end with “];”"),
            Problem::tr("Write it exactly so, to the blank"));
    else if (next == QLatin1Char(']') || next == QLatin1Char('}'))
        skipExtraBracket();
    else
        mScanner.report(Rule::TextAroundList, position, mScanner.lineEnd(position),
            Problem::tr("Other text stands behind the list"),
            Problem::tr("Take it out, or make it a comment"));
}

int SourceParser::parseValue(bool isSteps)
{
    const QChar next = mScanner.next();
    int value;
    if (next == QLatin1Char('"'))
        value = parseText();
    else if (next == QLatin1Char('{'))
        value = parseObject();
    else if (next == QLatin1Char('['))
        value = parseArray(isSteps);
    else if ((next >= QLatin1Char('0') && next <= QLatin1Char('9')) || next == QLatin1Char('-'))
        value = parseNumber();
    else if (isLetter(next))
        value = parseWord();
    else
        value = parseOther();
    finish(value);
    return value;
}

int SourceParser::parseText()
{
    const int node = addNode(SourceNode::String);
    mScanner.skipString(SourceScanner::Role::Value);
    return node;
}

int SourceParser::parseNumber()
{
    static const QRegularExpression kNumber(
        QStringLiteral("^-?(0|[1-9][0-9]*)(\\.[0-9]+)?([eE][+-]?[0-9]+)?(?![\\w.])"));
    const int node = addNode(SourceNode::Number);
    const int begin = mScanner.position();
    // Most are whole ones.
    int end = begin;
    while (mScanner.at(end) >= QLatin1Char('0') && mScanner.at(end) <= QLatin1Char('9'))
        ++end;
    const QChar behind = mScanner.at(end);
    const bool isPlain = end > begin && mScanner.at(begin) != QLatin1Char('0')
        && (behind == QLatin1Char(',') || behind == QLatin1Char('\n'));
    if (!isPlain) {
        const auto number = kNumber.match(mScanner.rest(begin));
        end = begin + number.capturedLength();
    }
    mScanner.moveTo(end);
    if (end > begin)
        return node;
    static const QRegularExpression kLikeNumber(QStringLiteral("^[\\w.+-]*"));
    end = qMax(begin + 1, begin + int(kLikeNumber.match(mScanner.rest(begin)).capturedLength()));
    mScanner.moveTo(end);
    mScanner.report(Rule::BadValue, begin, end,
        Problem::tr("“%1” is no number").arg(mScanner.text().mid(begin, end - begin)),
        Problem::tr("Write it in decimal digits, without a unit, or as a text"));
    mNodes[node].kind = SourceNode::Broken;
    return node;
}

int SourceParser::parseWord()
{
    const int node = addNode(SourceNode::Broken);
    const int begin = mScanner.position();
    const QString name = mScanner.takeName();
    const int end = mScanner.position();
    const bool isExpression =
        name == QLatin1String("qsTr") || name == QLatin1String("QT_TRANSLATE_NOOP");
    if (name == QLatin1String("true") || name == QLatin1String("false")
        || name == QLatin1String("null")) {
        mNodes[node].kind = SourceNode::Word;
        return node;
    }
    if (isExpression && mScanner.next() == QLatin1Char('(')) {
        mScanner.moveTo(begin);
        mNodes[node].kind = SourceNode::Expression;
        mScanner.skipExpression();
        return node;
    }
    if (mScanner.next() == QLatin1Char('"')) {
        mScanner.moveTo(end + 1);
        mScanner.report(Rule::MissingQuote, begin, end + 1,
            Problem::tr("The text has no opening quotation mark"),
            Problem::tr("Write \"%1\"").arg(name));
        return node;
    }
    static const QRegularExpression kCall(QStringLiteral("^[ \\t]*\\((.{0,200}\\))?"));
    const auto call = kCall.match(mScanner.rest(end));
    if (call.hasMatch()) {
        mScanner.moveTo(end + call.capturedLength());
        mScanner.report(Rule::BadExpression, begin, end,
            isExpression ? Problem::tr("Between %1 and ( may be no blank").arg(name)
                         : Problem::tr("“%1” is no translation").arg(name),
            Problem::tr("Write qsTr(\"…\")"));
    } else {
        mScanner.report(Rule::BadValue, begin, end, Problem::tr("“%1” is no value").arg(name),
            Problem::tr("Write a text in quotation marks"));
    }
    return node;
}

// A value that begins like none.
int SourceParser::parseOther()
{
    const int node = addNode(SourceNode::Broken);
    const int begin = mScanner.position();
    if (mScanner.isOtherQuote()) {
        mScanner.skipOtherQuotes(SourceScanner::Role::Value);
        return node;
    }
    static const QRegularExpression kRest(QStringLiteral("^[^,}\\]\\n]*"));
    const auto rest = kRest.match(mScanner.rest(begin));
    mScanner.moveTo(begin + rest.capturedLength());
    if (rest.capturedLength() == 0)
        mScanner.report(Rule::BadValue, begin, begin + 1, Problem::tr("A value is missing"),
            Problem::tr("Write \"\" for an empty text"));
    else
        mScanner.report(Rule::BadValue, begin, mScanner.position(),
            Problem::tr("“%1” is neither a text nor a number").arg(rest.captured().trimmed()));
    return node;
}
