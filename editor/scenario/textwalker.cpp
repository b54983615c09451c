// SPDX-License-Identifier: MIT
#include "editor/scenario/textwalker.h"

#include "editor/scenario/translationexpression.h"

using namespace TutorialEditor;

int TextWalker::next(int position)
{
    const QChar character = mText.at(position);
    if (character == QLatin1Char('"'))
        return afterString(position);
    if (character == QLatin1Char('q') || character == QLatin1Char('Q')) {
        const int end = translationExpressionEnd(mText, position);
        if (end != -1)
            return end;
    }
    return position + 1;
}

int TextWalker::find(char wanted, int position)
{
    while (position < mText.size() && mText.at(position) != QLatin1Char(wanted))
        position = next(position);
    return position;
}

// A quote that no other one closes on its line is a character like others, and
// so is every quote after it: that line is not looked through again.
int TextWalker::afterString(int quote)
{
    if (quote < mNoStringBefore)
        return quote + 1;
    const int size = mText.size();
    int position = quote + 1;
    for (; position < size && mText.at(position) != QLatin1Char('\n'); ++position) {
        if (mText.at(position) == QLatin1Char('"'))
            return position + 1;
        if (mText.at(position) == QLatin1Char('\\') && !isAt(mText, position + 1, '\n'))
            ++position;
    }
    mNoStringBefore = position;
    return quote + 1;
}
