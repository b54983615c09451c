// SPDX-License-Identifier: MIT
#include "editor/scenario/scenariosource.h"

#include "editor/scenario/sourceparser.h"
#include "editor/scenario/textwalker.h"

#include <QJsonObject>

#include <algorithm>

using namespace TutorialEditor;

ScenarioSource::ScenarioSource(const QString& text, Form form) : mText(text)
{
    SourceParser parser(text);
    mRoot = form == Form::File ? parser.parseFile() : parser.parsePasted();
    mNodes = parser.takeNodes();
    mProblems = parser.scanner().problems();
    std::stable_sort(mProblems.begin(), mProblems.end(),
        [](const SourceProblem& a, const SourceProblem& b) { return a.begin < b.begin; });
    mIsBroken = parser.scanner().isBroken();
    mCommentCount = parser.scanner().commentCount();
    mFirstComment = parser.scanner().firstComment();
}

QString ScenarioSource::keyOf(const SourceNode& node) const
{
    return unescaped(node.keyBegin + 1, node.keyEnd - 1);
}

bool ScenarioSource::isString(int begin, int end, const QString& text) const
{
    const QStringView written = QStringView(mText).mid(begin + 1, end - begin - 2);
    if (written == text)
        return !written.contains(QLatin1Char('\\'));
    return written.contains(QLatin1Char('\\')) && unescaped(begin + 1, end - 1) == text;
}

QString ScenarioSource::textOf(const SourceNode& node) const
{
    return node.kind == SourceNode::String ? unescaped(node.begin + 1, node.end - 1)
                                           : mText.mid(node.begin, node.end - node.begin);
}

double ScenarioSource::numberOf(const SourceNode& node) const
{
    return QStringView(mText).mid(node.begin, node.end - node.begin).toString().toDouble();
}

QJsonValue ScenarioSource::valueOf(int index) const
{
    const SourceNode& value = mNodes.at(index);
    switch (value.kind) {
    case SourceNode::Object: {
        QJsonObject object;
        for (int i = value.firstChild; i != -1; i = mNodes.at(i).nextSibling) {
            if (mNodes.at(i).kind != SourceNode::Broken)
                object.insert(keyOf(mNodes.at(i)), valueOf(i));
        }
        return object;
    }
    case SourceNode::Array: {
        QJsonArray array;
        for (int i = value.firstChild; i != -1; i = mNodes.at(i).nextSibling)
            array.append(valueOf(i));
        return array;
    }
    case SourceNode::String:
    case SourceNode::Expression:
        return textOf(value);
    case SourceNode::Number:
        return numberOf(value);
    case SourceNode::Word:
        if (mText.at(value.begin) == QLatin1Char('n'))
            return QJsonValue();
        return mText.at(value.begin) == QLatin1Char('t');
    case SourceNode::Broken:
        break;
    }
    return QJsonValue(QJsonValue::Undefined);
}

// As the reader's parser does it: a backslash before any other character is
// dropped.
QString ScenarioSource::unescaped(int begin, int end) const
{
    static const QString kLetters = QStringLiteral("bfnrt");
    static const QString kCharacters = QStringLiteral("\b\f\n\r\t");
    const QStringView written = QStringView(mText).mid(begin, end - begin);
    if (!written.contains(QLatin1Char('\\')))
        return written.toString();
    QString text;
    for (int i = begin; i < end; ++i) {
        if (!isAt(mText, i, '\\') || i + 1 == end) {
            text += mText.at(i);
            continue;
        }
        const QChar letter = mText.at(++i);
        const int special = kLetters.indexOf(letter);
        if (special != -1) {
            text += kCharacters.at(special);
        } else if (letter == QLatin1Char('u')) {
            text += QChar(mText.mid(i + 1, 4).toUShort(nullptr, 16));
            i += 4;
        } else {
            text += letter;
        }
    }
    return text;
}
