// SPDX-License-Identifier: MIT
#include "editor/scenario/translationexpression.h"

#include "editor/scenario/textwalker.h"

using namespace TutorialEditor;

namespace {

const QString kTr = QStringLiteral("qsTr(");
const QString kNoop = QStringLiteral("QT_TRANSLATE_NOOP(");

int skipSpace(const QString& text, int position)
{
    while (position < text.size() && text.at(position).isSpace())
        ++position;
    return position;
}

// Position of the quote that closes the literal whose content begins at
// `position`, or the text's size.
int closingQuote(const QString& text, int position)
{
    while (position < text.size() && !isAt(text, position, '"'))
        position += isAt(text, position, '\\') ? 2 : 1;
    return qMin(position, text.size());
}

// The character with the hexadecimal code in `digits`, or `digits` itself when
// they are none.
QString characterOf(QStringView digits)
{
    bool isNumber = false;
    const uint code = digits.toString().toUInt(&isNumber, 16);
    if (!isNumber || code > 0x10FFFF)
        return digits.toString();
    return QString::fromUcs4(&code, 1);
}

// Resolves the escapes of a JavaScript string literal.
QString unescaped(QStringView literal)
{
    static const QString kLetters = QStringLiteral("bfnrtv0");
    static const QString kCharacters = QString::fromLatin1("\b\f\n\r\t\v\0", 7);

    QString result;
    for (int i = 0; i < literal.size(); ++i) {
        if (literal.at(i) != QLatin1Char('\\') || i + 1 == literal.size()) {
            result += literal.at(i);
            continue;
        }
        const QChar letter = literal.at(++i);
        const int special = kLetters.indexOf(letter);
        if (special != -1) {
            result += kCharacters.at(special);
        } else if (letter == QLatin1Char('x') || letter == QLatin1Char('u')) {
            const QStringView digits = literal.mid(i + 1, letter == QLatin1Char('x') ? 2 : 4);
            result += characterOf(digits);
            i += digits.size();
        } else if (letter != QLatin1Char('\n')) { // an escaped line end joins two lines
            result += letter;
        }
    }
    return result;
}

} // namespace

bool TutorialEditor::beginsTranslationExpression(QStringView text)
{
    return text.startsWith(kTr) || text.startsWith(kNoop);
}

int TutorialEditor::translationExpressionEnd(
    const QString& text, int from, QVector<QStringView>* literals)
{
    const QStringView rest = QStringView(text).mid(from);
    if (!beginsTranslationExpression(rest))
        return -1;
    int position = from + (rest.startsWith(kTr) ? kTr : kNoop).size();
    do {
        const int quote = skipSpace(text, position);
        if (!isAt(text, quote, '"'))
            return -1;
        const int close = closingQuote(text, quote + 1);
        if (literals)
            literals->append(QStringView(text).mid(quote + 1, close - quote - 1));
        position = skipSpace(text, close + 1);
    } while (isAt(text, position++, ','));
    return isAt(text, position - 1, ')') ? position : -1;
}

bool TutorialEditor::parseTranslationExpression(
    const QString& value, TranslationExpression* expression)
{
    QVector<QStringView> literals;
    const QString text = value.trimmed();
    const int end = translationExpressionEnd(text, 0, &literals);
    if (end == -1 || literals.size() > 2)
        return false;
    if (end != text.size() && QStringView(text).mid(end).trimmed() != QLatin1String(","))
        return false;

    const QString first = unescaped(literals.first());
    const QString second = literals.size() == 2 ? unescaped(literals.last()) : QString();
    if (text.startsWith(kTr) || literals.size() == 1)
        *expression = {QString(), first, second};
    else
        *expression = {first, second, QString()};
    return true;
}
