// SPDX-License-Identifier: MIT
#include "editor/scenario/jsonescape.h"

#include <array>

namespace {

struct Escape {
    char character;
    char letter; // stands after the backslash
};

constexpr Escape kEscapes[] = {{'\\', '\\'}, {'"', '"'}, {'/', '/'}, {'\b', 'b'}, {'\t', 't'},
    {'\n', 'n'}, {'\f', 'f'}, {'\r', 'r'}};

// The letters by character; 0 for a character that is copied.
constexpr auto kLetters = [] {
    std::array<char, 128> letters{};
    for (const Escape& escape : kEscapes)
        letters[std::size_t(escape.character)] = escape.letter;
    return letters;
}();

} // namespace

void TutorialEditor::appendJsonEscaped(QString* out, QStringView text)
{
    int copied = 0;
    for (int i = 0; i < text.size(); ++i) {
        const ushort character = text.at(i).unicode();
        const char letter = character < kLetters.size() ? kLetters[character] : 0;
        if (letter == 0)
            continue;
        out->append(text.data() + copied, i - copied);
        *out += QLatin1Char('\\');
        *out += QLatin1Char(letter);
        copied = i + 1;
    }
    out->append(text.data() + copied, int(text.size()) - copied);
}

QString TutorialEditor::lookedUpText(const QString& answer)
{
    QString text;
    bool isEscaped = false;
    for (QChar character : answer) {
        if (!isEscaped && character == QLatin1Char('\\')) {
            isEscaped = true;
            continue;
        }
        for (const Escape& escape : kEscapes) {
            if (isEscaped && character == QLatin1Char(escape.letter)) {
                character = QLatin1Char(escape.character);
                break;
            }
        }
        isEscaped = false;
        text += character;
    }
    const QLatin1Char quote('"');
    const bool isQuoted = text.size() >= 2 && text.startsWith(quote) && text.endsWith(quote);
    return isQuoted ? text.mid(1, text.size() - 2) : text;
}
