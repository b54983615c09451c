// SPDX-License-Identifier: MIT
#include "editor/scenario/sourceparser.h"

#include <QRegularExpression>

using namespace TutorialEditor;

namespace {

constexpr int kMostLevels = 1024; // of lists and objects, as in Qt's parser

const QString kGroup = QStringLiteral("\"group\"");

bool isLetter(QChar character)
{
    return character.isLetter() || character == QLatin1Char('_') || character == QLatin1Char('$');
}

} // namespace

int SourceParser::parseArray(bool isSteps)
{
    const int list = addNode(SourceNode::Array);
    if (!enter())
        return list;
    mScanner.moveTo(mScanner.position() + 1);
    if (isSteps)
        mScanner.step().append(0);
    parseElements(list, QLatin1Char(']'), isSteps);
    if (isSteps)
        mScanner.step().removeLast();
    finish(list);
    --mDepth;
    return list;
}

// The elements of a list, and what closes it; a null `close` is the text's end.
void SourceParser::parseElements(int list, QChar close, bool isSteps)
{
    const int open = mNodes.at(list).begin;
    int last = -1;
    int comma = -1;
    for (;;) {
        mScanner.skipBlanks();
        const QChar next = mScanner.next();
        if (next == close || mScanner.isAtEnd()) {
            if (comma != -1 && !close.isNull())
                reportLooseComma(comma);
            if (next != close)
                reportMissing(QLatin1Char(']'), open);
            else if (!close.isNull())
                mScanner.moveTo(mScanner.position() + 1);
            return;
        }
        if (close.isNull() && (next == QLatin1Char(';') || next == QLatin1Char(']')))
            return;
        const int end = last == -1 ? open + 1 : mNodes.at(last).end;
        if (next == QLatin1Char('}')) {
            if (mDepth > 1 && !isExtraBracket(QLatin1Char('}'), end)) {
                reportMissing(QLatin1Char(']'), comma != -1 ? comma + 1 : end);
                return;
            }
            skipExtraBracket();
            continue;
        }
        if (next == QLatin1Char(',')) {
            reportLooseComma(mScanner.position());
            mScanner.moveTo(mScanner.position() + 1);
            continue;
        }
        int value;
        if (isSteps && next == QLatin1Char('"') && mScanner.isKeyNext()) {
            reportMissing(QLatin1Char('{'), mScanner.position());
            value = addNode(SourceNode::Object);
            parseMembers(value, false);
        } else {
            value = parseValue(false);
        }
        append(list, &last, value);
        comma = skipSeparator(value) ? mScanner.position() - 1 : -1;
        const SourceNode& element = mNodes.at(value);
        if (isSteps && !mScanner.step().isEmpty() && element.firstChild != -1)
            ++mScanner.step().last();
    }
}

int SourceParser::parseObject()
{
    const int object = addNode(SourceNode::Object);
    if (!enter())
        return object;
    mScanner.moveTo(mScanner.position() + 1);
    parseMembers(object, true);
    --mDepth;
    return object;
}

// The keys and values of an object, and what closes it.
void SourceParser::parseMembers(int object, bool isOpened)
{
    const int open = mNodes.at(object).begin;
    int last = -1;
    int comma = -1;
    for (;;) {
        mScanner.skipBlanks();
        const QChar next = mScanner.next();
        const int end = last == -1 ? open + isOpened : mNodes.at(last).end;
        if (next == QLatin1Char('}')) {
            if (comma != -1)
                reportLooseComma(comma);
            mScanner.moveTo(mScanner.position() + 1);
            break;
        }
        if (mScanner.isAtEnd()) {
            reportMissing(QLatin1Char('}'), open);
            break;
        }
        if (next == QLatin1Char(']') && isExtraBracket(QLatin1Char(']'), end)) {
            skipExtraBracket();
            continue;
        }
        if (next == QLatin1Char('{') && last == -1 && isOpened) {
            reportMissing(QLatin1Char('['), open);
            break;
        }
        if (next == QLatin1Char('{') || next == QLatin1Char('[') || next == QLatin1Char(']')) {
            reportMissing(QLatin1Char('}'), comma != -1 ? comma + 1 : end);
            break;
        }
        if (next == QLatin1Char(',')) {
            reportLooseComma(mScanner.position());
            mScanner.moveTo(mScanner.position() + 1);
            continue;
        }
        SourceNode key;
        if (!parseKey(&key))
            continue;
        const QStringView text(mScanner.text());
        const bool isGroup = text.mid(key.keyBegin, key.keyEnd - key.keyBegin) == kGroup;
        mScanner.skipBlanks();
        const int value = parseValue(isGroup);
        mNodes[value].keyBegin = key.keyBegin;
        mNodes[value].keyEnd = key.keyEnd;
        append(object, &last, value);
        comma = skipSeparator(value) ? mScanner.position() - 1 : -1;
    }
    finish(object);
}

// False, when there is none; then the line was passed over.
bool SourceParser::parseKey(SourceNode* key)
{
    key->keyBegin = mScanner.position();
    const auto role = SourceScanner::Role::Key;
    if (mScanner.next() == QLatin1Char('"')) {
        mScanner.skipString(role);
    } else if (mScanner.isOtherQuote()) {
        mScanner.skipOtherQuotes(role);
    } else if (isLetter(mScanner.next())) {
        const QString name = mScanner.takeName();
        const int end = mScanner.position();
        const bool isClosed = mScanner.next() == QLatin1Char('"');
        mScanner.moveTo(end + isClosed);
        mScanner.report(Rule::UnquotedKey, key->keyBegin, end,
            isClosed ? Problem::tr("The key “%1” has no opening quotation mark").arg(name)
                     : Problem::tr("The key “%1” has no quotation marks").arg(name),
            Problem::tr("Write \"%1\"").arg(name));
    } else {
        static const QRegularExpression kRest(QStringLiteral("^[^\\s,}\\]]+"));
        const auto rest = kRest.match(mScanner.rest(key->keyBegin));
        mScanner.moveTo(key->keyBegin + qMax(int(rest.capturedLength()), 1));
        mScanner.report(Rule::UnquotedKey, key->keyBegin, mScanner.position(),
            Problem::tr("A key in quotation marks is expected instead of “%1”")
                .arg(rest.captured()));
        mScanner.skipBlanks();
        if (mScanner.next() == QLatin1Char(','))
            mScanner.moveTo(mScanner.position() + 1);
        return false;
    }
    key->keyEnd = mScanner.position();
    return skipColon(*key);
}

bool SourceParser::skipColon(const SourceNode& key)
{
    mScanner.skipBlanks();
    const QChar next = mScanner.next();
    const int position = mScanner.position();
    if (next == QLatin1Char(':')) {
        mScanner.moveTo(position + 1);
        return true;
    }
    if (next == QLatin1Char('='))
        mScanner.moveTo(position + 1);
    mScanner.report(Rule::MissingColon, key.keyEnd, key.keyEnd + 1,
        Problem::tr("A colon is expected behind the key %1")
            .arg(mScanner.text().mid(key.keyBegin, key.keyEnd - key.keyBegin)),
        Problem::tr("Write \"key\": value"));
    const bool isValue = mScanner.isOnOneLine(key.keyEnd, position) && next != QLatin1Char(',')
        && next != QLatin1Char('}') && !mScanner.isAtEnd();
    if (!isValue && next == QLatin1Char(','))
        mScanner.moveTo(position + 1);
    return isValue;
}

// Over what stands between two values; whether it is a comma.
bool SourceParser::skipSeparator(int value)
{
    mScanner.skipBlanks();
    if (mScanner.next() == QLatin1Char('+'))
        skipSum(value);
    const QChar next = mScanner.next();
    const int position = mScanner.position();
    if (next == QLatin1Char(',')) {
        mScanner.moveTo(position + 1);
        return true;
    }
    if (mScanner.isAtEnd() || next == QLatin1Char('}') || next == QLatin1Char(']'))
        return false;
    const int end = mNodes.at(value).end;
    const SourceNode::Kind kind = mNodes.at(value).kind;
    if (next == QLatin1Char(';')) {
        mScanner.moveTo(position + 1);
        mScanner.report(Rule::MissingComma, position, position + 1,
            Problem::tr("A comma is expected instead of the semicolon"));
    } else if (kind == SourceNode::String && isLetter(next)
        && mScanner.isOnOneLine(end, position)) {
        mScanner.moveTo(mScanner.lineEnd(position));
        mScanner.report(Rule::UnescapedQuote, end - 1, end,
            Problem::tr("This quotation mark ends the text"),
            Problem::tr("Write \\\" for one that is a part of the text"));
    } else if ((next == QLatin1Char('{') || next == QLatin1Char('['))
        && mNodes.at(value).keyEnd > 0) {
        return false; // what encloses the value was not closed
    } else {
        mScanner.report(Rule::MissingComma, end, end + 1,
            kind == SourceNode::Expression
                ? Problem::tr("A comma is missing here: the expression runs on")
                : Problem::tr("A comma is missing here"),
            Problem::tr("Write one behind each value but the last"));
    }
    return false;
}

// Over texts that are added to the value with +.
void SourceParser::skipSum(int value)
{
    mScanner.report(Rule::Concatenation, mScanner.position(), mScanner.position() + 1,
        Problem::tr("Texts cannot be put together with +"),
        Problem::tr("Write one text between one pair of quotation marks"));
    mNodes[value].kind = SourceNode::Broken;
    while (mScanner.next() == QLatin1Char('+') && enter()) {
        mScanner.moveTo(mScanner.position() + 1);
        mScanner.skipBlanks();
        parseValue(false);
        --mDepth;
        mScanner.skipBlanks();
    }
}

// Whether the bracket at the position is one too many, rather than one before
// it missing.
bool SourceParser::isExtraBracket(QChar close, int previousEnd) const
{
    if (close == QLatin1Char('}'))
        return mScanner.isOnOneLine(previousEnd, mScanner.position());
    int next = mScanner.position() + 1;
    while (mScanner.at(next).isSpace())
        ++next;
    return mScanner.at(next) == QLatin1Char('}');
}

void SourceParser::skipExtraBracket()
{
    const int position = mScanner.position();
    mScanner.moveTo(position + 1);
    if (!mHasBracketProblem)
        mScanner.report(Rule::MissingBracket, position, position + 1,
            Problem::tr("This %1 has no partner").arg(mScanner.at(position)),
            Problem::tr("Take it out, or write its partner"));
    mHasBracketProblem = true;
}

void SourceParser::reportMissing(QChar bracket, int position)
{
    if (!mHasBracketProblem)
        mScanner.report(Rule::MissingBracket, position, position + 1,
            mScanner.isAtEnd() ? Problem::tr("This bracket has no partner")
                               : Problem::tr("A %1 is missing here").arg(bracket),
            Problem::tr("Write a %1 where it belongs").arg(bracket));
    mHasBracketProblem = true;
}

void SourceParser::reportLooseComma(int comma)
{
    mScanner.report(Rule::TrailingComma, comma, comma + 1,
        Problem::tr("Nothing stands behind this comma"), Problem::tr("Take it out"));
}

// One level down. False when that is too deep; then nothing more is read.
bool SourceParser::enter()
{
    if (mDepth < kMostLevels) {
        ++mDepth;
        return true;
    }
    mScanner.report(Rule::TooDeep, mScanner.position(), mScanner.position() + 1,
        Problem::tr("Lists and objects lie in each other deeper than can be read"),
        Problem::tr("Take groups apart"));
    mHasBracketProblem = true;
    mScanner.moveToEnd();
    return false;
}

int SourceParser::addNode(SourceNode::Kind kind)
{
    SourceNode node;
    node.kind = kind;
    node.begin = node.end = mScanner.position();
    mNodes.append(node);
    return mNodes.size() - 1;
}

void SourceParser::append(int parent, int* last, int child)
{
    if (*last == -1)
        mNodes[parent].firstChild = child;
    else
        mNodes[*last].nextSibling = child;
    *last = child;
}
