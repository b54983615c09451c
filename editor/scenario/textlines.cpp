// SPDX-License-Identifier: MIT
#include "editor/scenario/textlines.h"

#include <algorithm>
#include <iterator>

using namespace TutorialEditor;

namespace {

// What an excerpt shows of a long line, before and behind the place.
constexpr int kShownBefore = 50;
constexpr int kShownBehind = 30;

struct Range {
    uint first;
    uint last;
};

// Characters that take the width of two: East Asian ones, and pictures.
constexpr Range kWide[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};

bool isWide(uint character)
{
    return std::any_of(std::begin(kWide), std::end(kWide), [character](const Range& range) {
        return range.first <= character && character <= range.last;
    });
}

// As wide as the text, in a font with characters of one width.
QString blanksFor(const QString& text)
{
    QString blanks;
    for (const uint character : text.toUcs4()) {
        const auto category = QChar::category(character);
        if (character == '\t')
            blanks += QLatin1Char('\t');
        else if (category != QChar::Mark_NonSpacing && category != QChar::Other_Format)
            blanks += QLatin1String(isWide(character) ? "  " : " ");
    }
    return blanks;
}

} // namespace

TextLines::TextLines(const QString& text) : mText(text), mBegins(1, 0)
{
    const QLatin1Char lf('\n');
    const QLatin1Char cr('\r');
    for (int i = 0; i < mText.size(); ++i) {
        const QChar character = mText.at(i);
        const bool isCrLf = character == cr && i + 1 < mText.size() && mText.at(i + 1) == lf;
        if (character == lf || (character == cr && !isCrLf))
            mBegins.append(i + 1);
    }
}

TextPlace TextLines::placeOf(int position) const
{
    position = qBound(0, position, int(mText.size()));
    const int line = lineOf(position);
    const bool goesOn = mLast.line == line + 1 && mLastPosition <= position;
    const int from = goesOn ? mLastPosition : mBegins.at(line);
    mLast = {line + 1, (goesOn ? mLast.column : 1) + countCharacters(from, position)};
    mLastPosition = position;
    return mLast;
}

int TextLines::countCharacters(int begin, int end) const
{
    int count = 0;
    for (int i = begin; i < qMin(end, int(mText.size())); ++i)
        count += mText.at(i).isLowSurrogate() && i > begin ? 0 : 1;
    return count;
}

QString TextLines::excerpt(int position) const
{
    position = qBound(0, position, int(mText.size()));
    const int line = lineOf(position);
    const int end = endOf(line);
    position = qMin(position, end);
    int begin = mBegins.at(line);
    // The indentation tells nothing.
    while (begin < position && mText.at(begin).isSpace())
        ++begin;
    const auto notInPair = [this](int cut) {
        return cut < mText.size() && mText.at(cut).isLowSurrogate() ? cut + 1 : cut;
    };
    const int shownBegin = notInPair(qMax(begin, position - kShownBefore));
    const int shownEnd = notInPair(qMin(end, position + kShownBehind));
    const QString before = (shownBegin > begin ? QStringLiteral("…") : QString())
        + mText.mid(shownBegin, position - shownBegin);
    const QString behind = mText.mid(position, shownEnd - position)
        + (shownEnd < end ? QStringLiteral("…") : QString());
    return before + behind + QLatin1Char('\n') + blanksFor(before) + QLatin1Char('^');
}

int TextLines::lineOf(int position) const
{
    return int(std::upper_bound(mBegins.begin(), mBegins.end(), position) - mBegins.begin()) - 1;
}

int TextLines::endOf(int line) const
{
    int end = line + 1 < mBegins.size() ? mBegins.at(line + 1) - 1 : mText.size();
    if (end > mBegins.at(line) && mText.at(end - 1) == QLatin1Char('\r') && end < mText.size())
        --end;
    return end;
}
