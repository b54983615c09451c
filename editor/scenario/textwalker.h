// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <limits>

namespace TutorialEditor {

// Whether the character stands there; false beyond the text's end.
inline bool isAt(const QString& text, int position, char character)
{
    return position < text.size() && text.at(position) == QLatin1Char(character);
}

// Appends a part of a text to another one.
inline void appendTo(QString* out, QStringView part)
{
    out->append(part.data(), int(part.size()));
}

// Steps through a text from character to character, but over a quoted string
// and over a complete translation expression at once. A string starts and ends
// on one line.
class TextWalker {
public:
    // The text is not copied.
    explicit TextWalker(const QString& text) : mText(text) { }

    // Position after the character, string or expression at `position`.
    int next(int position);

    // First position from `position` on where the walk meets the character; the
    // text's size when it does not.
    int find(char wanted, int position);

private:
    int afterString(int quote);

    const QString& mText;
    int mNoStringBefore = 0;
};

// Finds a pattern from positions that only grow. However many there are, they
// make it read the text once.
class NextOccurrence {
public:
    NextOccurrence(const QString& text, const QString& pattern) : mText(text), mPattern(pattern) { }

    // -1 when there is no further one.
    int from(int position)
    {
        if (mFound != -1 && mFound < position)
            mFound = mText.indexOf(mPattern, position);
        return mFound;
    }

private:
    const QString& mText;
    const QString mPattern;
    int mFound = std::numeric_limits<int>::min();
};

} // namespace TutorialEditor
