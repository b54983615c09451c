#include "editor/scenarioreader.h"

#include "editor/jsonescape.h"
#include "editor/translationexpression.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QTextCodec>

#include <limits>

using namespace TutorialEditor;

namespace {

// The context under which translators find the messages of the scenario model.
struct Message {
    Q_DECLARE_TR_FUNCTIONS(QStandardItemModel)
};

bool isAt(const QString& text, int position, char character)
{
    return position < text.size() && text.at(position) == QLatin1Char(character);
}

// Steps through a text from character to character, but over a quoted string
// and over a complete translation expression at once.
class Walker {
public:
    explicit Walker(const QString& text) : mText(text) { }

    // Position after the character, string or expression at `position`.
    int next(int position)
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

private:
    // A quote that no other one closes on its line is a character like others,
    // and so is every quote after it: that line is not looked through again.
    int afterString(int quote)
    {
        int position = quote + 1;
        if (quote < mNoStringBefore)
            return position;
        while (position < mText.size() && !isAt(mText, position, '\n')) {
            if (isAt(mText, position, '"'))
                return position + 1;
            position += isAt(mText, position, '\\') && !isAt(mText, position + 1, '\n') ? 2 : 1;
        }
        mNoStringBefore = position;
        return quote + 1;
    }

    const QString& mText;
    int mNoStringBefore = 0;
};

// Position of a text outside of strings; -1 when it is not there.
int findOutsideStrings(const QString& text, const QString& wanted)
{
    Walker walker(text);
    for (int i = 0; i < text.size(); i = walker.next(i)) {
        if (text.at(i) == wanted.front() && text.midRef(i).startsWith(wanted))
            return i;
    }
    return -1;
}

// Finds a pattern from positions that only grow. However many there are, they
// make it read the text once.
class NextOccurrence {
public:
    NextOccurrence(const QString& text, const QString& pattern)
        : mText(text), mPattern(pattern), mFound(text.indexOf(pattern))
    {
    }

    int size() const { return mPattern.size(); }

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
    int mFound;
};

QString removeBlockComments(const QString& text)
{
    QString result;
    result.reserve(text.size());
    Walker walker(text);
    int copied = 0;
    for (int i = 0; i < text.size();) {
        // The slash may stand before a comment that was just removed.
        const bool slashInText = i > copied && isAt(text, i - 1, '/');
        const bool slashInResult = i == copied && result.endsWith(QLatin1Char('/'));
        if (!isAt(text, i, '*') || !(slashInText || slashInResult)) {
            i = walker.next(i);
            continue;
        }
        const int close = text.indexOf(QLatin1String("*/"), i + 1);
        if (close == -1)
            break;
        result += text.midRef(copied, i - copied);
        result.chop(1);
        i = copied = close + 2;
    }
    return result += text.midRef(copied);
}

QString removeLineComments(const QString& text)
{
    QString result;
    result.reserve(text.size());
    Walker walker(text);
    for (int line = 0; line < text.size();) {
        int first = line;
        while (isAt(text, first, ' ') || isAt(text, first, '\t'))
            ++first;
        const bool isComment = isAt(text, first, '/') && isAt(text, first + 1, '/');
        int end = first;
        while (end < text.size() && !isAt(text, end, '\n'))
            end = isComment ? end + 1 : walker.next(end);
        // A comment that the text's end cuts off is no whole line: it stays.
        if (!isComment || end == text.size())
            result += text.midRef(line, end + 1 - line);
        line = end + 1;
    }
    return result;
}

// "step 2,0": the action index list of the step that `position` stands in;
// empty outside of all steps.
QString stepAt(const QString& text, int position)
{
    struct Level {
        bool isList;
        int index;
    };
    QVector<Level> levels;
    Walker walker(text);
    for (int i = 0; i < position && i < text.size(); i = walker.next(i)) {
        const QChar character = text.at(i);
        if (character == QLatin1Char('[') || character == QLatin1Char('{'))
            levels.append({character == QLatin1Char('['), 0});
        else if (levels.isEmpty())
            continue;
        else if (character == QLatin1Char(']') || character == QLatin1Char('}'))
            levels.removeLast();
        else if (character == QLatin1Char(','))
            ++levels.last().index;
    }
    QStringList indexes;
    for (const Level& level : qAsConst(levels)) {
        if (level.isList)
            indexes << QString::number(level.index);
    }
    if (indexes.isEmpty())
        return QString();
    return Message::tr("step %1").arg(indexes.join(QLatin1Char(',')));
}

// Appends where it is to a message that says what is wrong.
QString located(const QString& message, const QStringList& where)
{
    QStringList parts = where;
    parts.removeAll(QString());
    if (parts.isEmpty())
        return message;
    return message + QLatin1String(" (") + parts.join(QLatin1String(", ")) + QLatin1Char(')');
}

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
// closed. `close` is the next close marker, -1 for none: by itself that is an
// expression's end, but it may stand inside of the quoted text, or far behind
// an expression that ends otherwise.
int expressionEnd(const QString& text, int begin, int close)
{
    const int parenthesis = translationExpressionEnd(text, begin);
    if (parenthesis != -1) {
        int end = parenthesis;
        while (end < text.size() && text.at(end).isSpace())
            ++end;
        // The blanks were typed by the author.
        if (isAt(text, end, ',') && isAt(text, end + 1, '\n'))
            return end;
        // The last key of its step has no comma after it.
        const int lineEnd = end > parenthesis ? text.lastIndexOf(QLatin1Char('\n'), end - 1) : -1;
        if (isAt(text, end, '}') && lineEnd >= parenthesis)
            return lineEnd;
        // Other ends are no part of the format, but better than the steps
        // between here and the close marker taken for a part of the text.
        if (close != -1 && (isAt(text, end, ',') || isAt(text, end, '}')))
            return parenthesis;
    }
    return close == -1 ? -1 : close + 1;
}

bool rewriteExpressions(Rewriting* rewriting, const ExpressionForm& form, QStringList* errors)
{
    const QString& text = rewriting->text;
    Rewriting result;
    result.text.reserve(text.size() + text.size() / 8);
    auto known = rewriting->expressions.cbegin();
    Walker walker(text);
    NextOccurrence closeMarker(text, kCloseMarker);
    int copied = 0;
    for (int i = 0; i < text.size();) {
        if (known != rewriting->expressions.cend() && known->begin == i) {
            const int shift = result.text.size() - copied;
            result.expressions.append({known->begin + shift, known->end + shift});
            i = known->end;
            ++known;
            continue;
        }
        if (text.at(i) != form.openMarker.front() || !text.midRef(i).startsWith(form.openMarker)) {
            i = walker.next(i);
            continue;
        }
        int end = expressionEnd(text, i, closeMarker.from(i + form.openMarker.size()));
        if (end == -1) {
            errors->append(located(
                Message::tr("closeMarker(%1) not found (l:%3): %2")
                    .arg(kCloseMarker, text.mid(copied), QString::number(form.reportNumber)),
                {stepAt(text, i)}));
            return false;
        }
        const bool hasComma = isAt(text, end, ',');
        const QString expression = text.mid(i, end - i);
        result.text += text.midRef(copied, i - copied);
        const int begin = result.text.size();
        result.text += QLatin1Char('"')
            + jsonEscaped(hasComma && form.takesComma ? expression + QLatin1Char(',') : expression)
            + QLatin1Char('"');
        result.expressions.append({begin, result.text.size()});
        if (hasComma) {
            result.text += QLatin1Char(',');
            ++end;
            if (form.takesComma && isAt(text, end, '\n'))
                ++end;
        }
        i = copied = end;
    }
    result.text += text.midRef(copied);
    *rewriting = result;
    return true;
}

struct Occurrence {
    int begin = std::numeric_limits<int>::max();
    int end = -1;

    bool exists() const { return end != -1; }
};

Occurrence nearest(std::initializer_list<NextOccurrence*> patterns, int position)
{
    Occurrence result;
    for (NextOccurrence* pattern : patterns) {
        const int found = pattern->from(position);
        if (found != -1 && found < result.begin)
            result = {found, found + pattern->size()};
    }
    return result;
}

// Goes from string to string by the line ends that follow them, not by JSON's
// rules, and reports a string that a file laid out as ours cannot hold.
bool checkStrings(const Rewriting& rewriting, QStringList* errors)
{
    const QString& text = rewriting.text;
    NextOccurrence commaCr(text, QStringLiteral("\",\r"));
    NextOccurrence commaLf(text, QStringLiteral("\",\n"));
    NextOccurrence quoteCr(text, QStringLiteral("\"\r"));
    NextOccurrence quoteLf(text, QStringLiteral("\"\n"));
    NextOccurrence quoteColon(text, QStringLiteral("\":"));
    NextOccurrence cr(text, QStringLiteral("\r"));
    NextOccurrence lf(text, QStringLiteral("\n"));
    auto expression = rewriting.expressions.cbegin();

    for (int position = 0;;) {
        const int quote = text.indexOf(QLatin1Char('"'), position);
        if (quote == -1)
            return true;
        const auto fail = [&](const QString& message) {
            errors->append(located(message, {stepAt(text, quote)}));
            return false;
        };
        const int content = quote + 1;
        const Occurrence commaEnd = nearest({&commaCr, &commaLf}, content);
        const Occurrence valueEnd = nearest({&commaCr, &commaLf, &quoteCr, &quoteLf}, content);
        const Occurrence keyEnd = nearest({&quoteColon}, content);
        while (expression != rewriting.expressions.cend() && expression->begin < quote)
            ++expression;
        if (expression != rewriting.expressions.cend() && expression->begin == quote) {
            position = valueEnd.exists() ? valueEnd.end : expression->end;
        } else if (beginsTranslationExpression(text.midRef(content))) {
            if (!valueEnd.exists())
                return fail(Message::tr("No close \" found: %1").arg(text.mid(position)));
            if (!commaEnd.exists())
                return fail(
                    Message::tr("qsTr/QT_TRANSLATE_NOOP not closed: %1").arg(text.mid(position)));
            position = valueEnd.end;
        } else if (keyEnd.begin < valueEnd.begin) {
            const QStringRef key = text.midRef(content, keyEnd.begin - content);
            if (key == QLatin1String("comment") || key == QLatin1String("hint")) {
                position = keyEnd.end;
                continue;
            }
            const Occurrence lineEnd = nearest({&cr, &lf}, keyEnd.end);
            if (!lineEnd.exists())
                return fail(Message::tr("No CR/NF found: %1").arg(text.mid(position)));
            position = lineEnd.end;
        } else {
            if (!valueEnd.exists())
                return fail(
                    Message::tr("closeMarker(%1) not found (l:%3): %2")
                        .arg(QStringLiteral("\",\r"), text.mid(position), QString::number(2985)));
            position = valueEnd.end;
        }
    }
}

} // namespace

bool TutorialEditor::readScenarioText(const QString& path, QString* text, QStringList* errors)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    QTextCodec::ConverterState state;
    *text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        errors->append(
            Message::tr("%1 is not UTF-8 text: what could not be read was replaced").arg(path));
    return true;
}

QString TutorialEditor::removeComments(const QString& text)
{
    return removeLineComments(removeBlockComments(text));
}

QString TutorialEditor::removeMarkers(const QString& text)
{
    QString result = text;
    for (const QString& marker : {QStringLiteral("var scenario = ["), QStringLiteral("];")}) {
        const int position = findOutsideStrings(result, marker);
        if (position != -1)
            result.replace(position, marker.size(),
                marker.endsWith(QLatin1Char('[')) ? QLatin1Char('[') : QLatin1Char(']'));
    }
    return result;
}

QString TutorialEditor::escapeTranslationForJson(const QString& text, QStringList* errors)
{
    Rewriting rewriting;
    rewriting.text = text;
    for (const ExpressionForm& form : kExpressionForms) {
        if (!rewriteExpressions(&rewriting, form, errors))
            return QString();
    }
    return checkStrings(rewriting, errors) ? rewriting.text : QString();
}

QJsonArray TutorialEditor::parseSteps(const QString& text, QStringList* errors)
{
    const QByteArray bytes = text.toUtf8();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (document.isArray())
        return document.array();

    const QString message = Message::tr("json is not array");
    if (error.error == QJsonParseError::NoError || bytes.isEmpty()) {
        errors->append(message);
        return QJsonArray();
    }
    constexpr int kShownLength = 60;
    const int position = QString::fromUtf8(bytes.left(error.offset)).size();
    const int lineBegin = position > 0 ? text.lastIndexOf(QLatin1Char('\n'), position - 1) + 1 : 0;
    const QString line =
        text.mid(lineBegin, text.indexOf(QLatin1Char('\n'), lineBegin) - lineBegin);
    errors->append(located(
        message, {error.errorString(), stepAt(text, position), line.trimmed().left(kShownLength)}));
    return QJsonArray();
}

bool TutorialEditor::readScenarioFile(const QString& path, QJsonArray* steps, QStringList* errors)
{
    QString text;
    if (!readScenarioText(path, &text, errors)) {
        errors->append(Message::tr("%1 cannot be opened").arg(path));
        return false;
    }
    text = removeMarkers(removeComments(text));
    *steps = parseSteps(escapeTranslationForJson(text, errors), errors);
    return errors->isEmpty();
}
