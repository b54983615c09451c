// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

namespace TutorialEditor {

// A place in a text as text editors count it: lines from 1, columns in
// characters from 1. A tab is one character, and so is one outside of the
// basic plane, an emoji for example.
struct TextPlace {
    int line = 0;
    int column = 0;
};

// Counts the lines of a text, which end with LF, CR LF or CR, and the
// characters in them.
class TextLines {
public:
    // The text is shared, not copied.
    explicit TextLines(const QString& text);

    // The place of a position, which is brought inside of the text. Asked for
    // in rising order, places in one line take one way through it in all.
    TextPlace placeOf(int position) const;
    // The characters of a part of the text.
    int countCharacters(int begin, int end) const;
    // The line that the position is in, as it stands, and below it a line with
    // a caret below the position. A longer line is cut at both ends, marked by
    // an ellipsis.
    QString excerpt(int position) const;

private:
    // The number of the line, from 0.
    int lineOf(int position) const;
    // Position of the end of a line, before its line end.
    int endOf(int line) const;

    const QString mText;
    QVector<int> mBegins;
    // The last place that was counted, and its position.
    mutable TextPlace mLast;
    mutable int mLastPosition = 0;
};

} // namespace TutorialEditor
