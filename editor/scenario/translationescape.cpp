// SPDX-License-Identifier: MIT
#include "editor/scenario/translationescape.h"

#include "editor/scenario/jsonescape.h"
#include "editor/scenario/readerror.h"
#include "editor/scenario/textwalker.h"
#include "editor/scenario/translationexpression.h"

#include <QVector>

using namespace TutorialEditor;

namespace {

// A text on its way to JSON. Every expression that is in a JSON string already
// is listed, so that it is known from a string that stood quoted in the file.
struct Rewriting {
    struct Range {
        int begin; // the opening quote
        int end; // just past the closing one
    };

    QString text;
    QVector<Range> expressions;
};

struct ExpressionForm {
    QString openMarker;
    bool takesComma; // the comma goes into the string too, and the line end is dropped
    int reportNumber;
};

const QString kCloseMarker = QStringLiteral("),\n");
const ExpressionForm kExpressionForms[] = {
    {QStringLiteral("qsTr(\""), false, 2884},
    {QStringLiteral("QT_TRANSLATE_NOOP(\""), true, 2905},
};

// Position just past the expression that begins at `begin`; -1 when it is not
// closed. By itself the next close marker from `content` on is an expression's
// end, but it may stand inside of the quoted text, or far behind an expression
// that ends otherwise.
int expressionEnd(const QString& text, int begin, int content, NextOccurrence* closeMarker)
{
    const int parenthesis = translationExpressionEnd(text, begin);
    if (parenthesis != -1) {
        int end = parenthesis;
        while (end < text.size() && text.at(end).isSpace())
            ++end;
        // The blanks were typed by the author.
        if (isAt(text, end, ',') && isAt(text, end + 1, '\n'))
            return end;
        // The last key of its step has no comma after it. As in the close marker,
        // the line ends with a line feed alone.
        const int lineEnd = end > parenthesis ? text.lastIndexOf(QLatin1Char('\n'), end - 1) : -1;
        if (isAt(text, end, '}') && lineEnd >= parenthesis && !isAt(text, lineEnd - 1, '\r'))
            return lineEnd;
        // Other ends are no part of the format, but better than the steps
        // between here and the close marker taken for a part of the text.
        if ((isAt(text, end, ',') || isAt(text, end, '}')) && closeMarker->from(content) != -1)
            return parenthesis;
    }
    const int close = closeMarker->from(content);
    return close == -1 ? -1 : close + 1;
}

bool rewriteExpressions(Rewriting* rewriting, const ExpressionForm& form,
    std::optional<ReadFailure>* failure, PositionMap* map)
{
    const QString& text = rewriting->text;
    if (!text.contains(form.openMarker))
        return true;

    Rewriting result;
    result.text.reserve(text.size() + text.size() / 8);
    int copied = 0;
    auto known = rewriting->expressions.cbegin();
    const auto copyUntil = [&](int end) {
        const int shift = result.text.size() - copied;
        for (; known != rewriting->expressions.cend() && known->begin < end; ++known)
            result.expressions.append({known->begin + shift, known->end + shift});
        copyPart(&result.text, text, copied, end, map);
        copied = end;
    };

    const char first = form.openMarker.front().toLatin1();
    TextWalker walker(text);
    NextOccurrence closeMarker(text, kCloseMarker);
    for (int i = walker.find(first, 0); i < text.size(); i = walker.find(first, i)) {
        if (!QStringView(text).mid(i).startsWith(form.openMarker)) {
            i = walker.next(i);
            continue;
        }
        int end = expressionEnd(text, i, i + form.openMarker.size(), &closeMarker);
        if (end == -1) {
            const QString message =
                ReadError::tr("closeMarker(%1) not found (l:%3): %2")
                    .arg(kCloseMarker, text.mid(copied), QString::number(form.reportNumber));
            *failure = {ReadFailure::OpenExpression, message, i};
            return false;
        }
        const bool hasComma = isAt(text, end, ',');
        const int begin = result.text.size() + i - copied;
        copyUntil(i);
        if (map)
            map->add(begin, i);
        result.text += QLatin1Char('"');
        appendJsonEscaped(&result.text,
            QStringView(text).mid(i, end - i + (hasComma && form.takesComma ? 1 : 0)));
        result.text += QLatin1Char('"');
        result.expressions.append({begin, int(result.text.size())});
        if (hasComma) {
            result.text += QLatin1Char(',');
            ++end;
            if (form.takesComma && isAt(text, end, '\n'))
                ++end;
        }
        i = copied = end;
    }
    copyUntil(text.size());
    *rewriting = result;
    return true;
}

// A quote that ends a string for the string check, with what follows it.
struct StringEnd {
    enum Kind { None, Key, Value };

    Kind kind;
    int quote;
    int end; // just past the quote and the colon, line end or comma and line end
};

bool isLineEnd(const QString& text, int position)
{
    return isAt(text, position, '\n') || isAt(text, position, '\r');
}

StringEnd stringEndAt(const QString& text, int quote)
{
    if (isAt(text, quote + 1, ':'))
        return {StringEnd::Key, quote, quote + 2};
    if (isLineEnd(text, quote + 1))
        return {StringEnd::Value, quote, quote + 2};
    if (isAt(text, quote + 1, ',') && isLineEnd(text, quote + 2))
        return {StringEnd::Value, quote, quote + 3};
    return {StringEnd::None, quote, quote + 1};
}

StringEnd stringEnd(const QString& text, int content)
{
    for (int quote = content; (quote = text.indexOf(QLatin1Char('"'), quote)) != -1; ++quote) {
        const StringEnd end = stringEndAt(text, quote);
        if (end.kind != StringEnd::None)
            return end;
    }
    return {StringEnd::None, int(text.size()), int(text.size())};
}

StringEnd valueEnd(const QString& text, int content)
{
    StringEnd end = stringEnd(text, content);
    while (end.kind == StringEnd::Key)
        end = stringEnd(text, end.end);
    return end;
}

// Goes from string to string by the line ends that follow them, not by JSON's
// rules, and reports a string that a file laid out as ours cannot hold.
bool checkStrings(const Rewriting& rewriting, std::optional<ReadFailure>* failure)
{
    const QString& text = rewriting.text;
    const QStringView whole(text);
    NextOccurrence commaCr(text, QStringLiteral("\",\r"));
    NextOccurrence commaLf(text, QStringLiteral("\",\n"));
    auto expression = rewriting.expressions.cbegin();
    int quote = 0;
    for (int position = 0; (quote = text.indexOf(QLatin1Char('"'), position)) != -1;) {
        const auto fail = [&](ReadFailure::Kind kind, const QString& message) {
            *failure = {kind, message, quote};
            return false;
        };
        const int content = quote + 1;
        while (expression != rewriting.expressions.cend() && expression->begin < quote)
            ++expression;
        if (expression != rewriting.expressions.cend() && expression->begin == quote) {
            position = stringEndAt(text, expression->end - 1).end;
            continue;
        }
        if (beginsTranslationExpression(whole.mid(content))) {
            const StringEnd end = valueEnd(text, content);
            if (end.kind == StringEnd::None)
                return fail(ReadFailure::QuotedExpression,
                    ReadError::tr("No close \" found: %1").arg(text.mid(position)));
            if (commaCr.from(content) == -1 && commaLf.from(content) == -1)
                return fail(ReadFailure::QuotedExpression,
                    ReadError::tr("qsTr/QT_TRANSLATE_NOOP not closed: %1").arg(text.mid(position)));
            position = end.end;
            continue;
        }
        const StringEnd end = stringEnd(text, content);
        if (end.kind == StringEnd::None)
            return fail(ReadFailure::NoLineEnd,
                ReadError::tr("closeMarker(%1) not found (l:%3): %2")
                    .arg(QStringLiteral("\",\r"), text.mid(position), QString::number(2985)));
        const QStringView key = whole.mid(content, end.quote - content);
        if (end.kind == StringEnd::Value || key == QLatin1String("comment")
            || key == QLatin1String("hint")) {
            position = end.end;
            continue;
        }
        // The value of another key is passed over with its line.
        int lineEnd = end.end;
        while (lineEnd < text.size() && !isLineEnd(text, lineEnd))
            ++lineEnd;
        if (lineEnd == text.size())
            return fail(ReadFailure::NoLineEnd,
                ReadError::tr("No CR/NF found: %1").arg(text.mid(position)));
        position = lineEnd + 1;
    }
    return true;
}

} // namespace

QString TutorialEditor::escapeTranslations(
    const QString& text, std::optional<ReadFailure>* failure, PositionMaps* maps)
{
    Rewriting rewriting;
    rewriting.text = text;
    for (const ExpressionForm& form : kExpressionForms) {
        PositionMap map;
        if (!rewriteExpressions(&rewriting, form, failure, maps ? &map : nullptr))
            return QString();
        if (maps)
            maps->append(map);
    }
    return checkStrings(rewriting, failure) ? rewriting.text : QString();
}

QString TutorialEditor::escapeTranslationForJson(const QString& text, QStringList* errors)
{
    std::optional<ReadFailure> failure;
    const QString json = escapeTranslations(text, &failure);
    if (!failure)
        return json;
    PositionMaps maps;
    escapeTranslations(text, &failure, &maps);
    errors->append(describedFailure(*failure, text, originalPosition(maps, failure->position)));
    return QString();
}
