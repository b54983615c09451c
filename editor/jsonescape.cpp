#include "editor/jsonescape.h"

namespace {

// The letter that stands after the backslash; 0 for a character that is copied.
char escapeLetter(ushort character)
{
    switch (character) {
    case '\\':
    case '"':
    case '/':
        return char(character);
    case '\b':
        return 'b';
    case '\t':
        return 't';
    case '\n':
        return 'n';
    case '\f':
        return 'f';
    case '\r':
        return 'r';
    default:
        return 0;
    }
}

} // namespace

QString TutorialEditor::jsonEscaped(const QString& text)
{
    QString escaped;
    escaped.reserve(text.size() + text.size() / 8);
    for (const QChar character : text) {
        const char letter = escapeLetter(character.unicode());
        if (letter != 0)
            escaped += QLatin1Char('\\');
        escaped += letter != 0 ? QChar(QLatin1Char(letter)) : character;
    }
    return escaped;
}
