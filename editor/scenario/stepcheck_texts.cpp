// SPDX-License-Identifier: MIT
#include "editor/scenario/stepcheck.h"
#include "editor/scenario/textwalker.h"
#include "editor/scenario/translationexpression.h"

#include <QRegularExpression>

#include <algorithm>

using namespace TutorialEditor;

namespace {

const QString kHint = QStringLiteral("hint");
const QString kComment = QStringLiteral("comment");

// Of the balloon, 256 pixels wide: letters of the usual size that stand side by
// side, and lines that stand one above the other on a small screen.
constexpr int kLettersPerLine = 36;
constexpr int kLines = 24;

// Tags that Qt's rich text knows and that have to be closed, and those that
// need not be, or cannot.
const QStringList kPaired = QStringLiteral(
    "a address b big blockquote body center cite code dfn div em font h1 h2 h3 h4 h5 h6 html i kbd "
    "nobr ol pre qt s samp small span strong sub sup table tt u ul var")
                                .split(QLatin1Char(' '));
const QStringList kOthers =
    QStringLiteral("br hr img p li tr td th dd dt dl thead tbody tfoot head title meta style")
        .split(QLatin1Char(' '));

void addTagProblem(StepProblems* problems, const QString& message, const QString& tag)
{
    problems->add(Rule::OpenTag, kHint, message.arg(tag), Problem::tr("Close each tag"));
}

struct Tag {
    QString name; // in small letters; empty when it is none
    bool isEnd = false;
    bool closesItself = false;
    bool isWhole = false;
};

// The tag that begins with the "<" at a position.
Tag tagAt(const QString& text, int begin)
{
    Tag tag;
    tag.isEnd = isAt(text, begin + 1, '/');
    const int name = begin + 1 + tag.isEnd;
    int end = name;
    while (end < text.size() && text.at(end).isLetterOrNumber())
        ++end;
    const bool isName = end == text.size() || text.at(end).isSpace() || isAt(text, end, '>')
        || isAt(text, end, '/') || isAt(text, end, '<');
    if (!isName)
        return tag;
    tag.name = text.mid(name, end - name).toLower();
    while (end < text.size() && !isAt(text, end, '<') && !isAt(text, end, '>'))
        ++end;
    tag.isWhole = isAt(text, end, '>');
    tag.closesItself = tag.isWhole && isAt(text, end - 1, '/');
    return tag;
}

// Tags have to be closed in the opposite order.
void checkTags(const QString& text, StepProblems* problems)
{
    QStringList open;
    const QLatin1Char begin('<');
    for (int i = text.indexOf(begin); i != -1; i = text.indexOf(begin, i + 1)) {
        const Tag tag = tagAt(text, i);
        const bool isPaired = kPaired.contains(tag.name);
        if (!isPaired && !kOthers.contains(tag.name))
            continue;
        if (!tag.isWhole)
            return addTagProblem(problems, Problem::tr("The tag <%1 lacks its >"), tag.name);
        if (!isPaired || tag.closesItself)
            continue;
        if (!tag.isEnd)
            open << tag.name;
        else if (open.isEmpty() || open.last() != tag.name)
            return open.contains(tag.name)
                ? addTagProblem(problems, Problem::tr("<%1> is not closed"), open.last())
                : addTagProblem(problems, Problem::tr("</%1> closes no tag"), tag.name);
        else
            open.removeLast();
    }
    if (!open.isEmpty())
        addTagProblem(problems, Problem::tr("<%1> is not closed"), open.last());
}

QString withoutTags(const QString& text)
{
    static const QRegularExpression kBreak(QStringLiteral("<(br|p|/p|li|tr|/h[1-6])\\b[^<>]*>"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression kTag(QStringLiteral("</?[A-Za-z][^<>]*>"));
    if (!text.contains(QLatin1Char('<')))
        return text;
    return QString(text).replace(kBreak, QStringLiteral("\n")).remove(kTag);
}

void checkLength(const QString& text, StepProblems* problems)
{
    // As a tag begins a line at most, and a character is as wide as two at most.
    const int atMost = 1 + text.count(QLatin1Char('\n')) + text.count(QLatin1Char('<'))
        + 2 * int(text.size()) / kLettersPerLine;
    if (atMost <= kLines)
        return;
    int lines = 0;
    for (const QString& paragraph : withoutTags(text).split(QLatin1Char('\n'))) {
        // East Asian characters are as wide as two letters.
        const auto wide = std::count_if(paragraph.begin(), paragraph.end(),
            [](QChar character) { return character >= QChar(0x2E80); });
        lines += 1 + (paragraph.size() + int(wide)) / kLettersPerLine;
    }
    if (lines > kLines)
        problems->add(Rule::HintTooLong, kHint,
            Problem::tr("The hint is too long for the balloon: about %1 lines").arg(lines),
            Problem::tr("Tell it in %1 lines, or in several steps").arg(kLines));
}

// A hint or a comment that begins like an expression.
bool checkExpression(const QString& key, const QString& text, StepProblems* problems,
    TranslationExpression* expression)
{
    if (!parseTranslationExpression(text, expression)) {
        problems->add(Rule::HalfExpression, key,
            Problem::tr("This begins like a translation, but is none"),
            Problem::tr("Write qsTr(\"…\")"));
        return false;
    }
    QVector<QStringView> texts;
    const QString trimmed = text.trimmed();
    if (trimmed.startsWith(QLatin1String("QT_")))
        translationExpressionEnd(trimmed, 0, &texts);
    if (texts.size() == 1)
        problems->add(Rule::NoopOneArgument, key,
            Problem::tr("lupdate leaves out QT_TRANSLATE_NOOP with one text"),
            Problem::tr("Write qsTr(\"…\")"));
    return true;
}

void checkTranslations(const TranslationExpression& expression, StepProblems* problems)
{
    for (const TranslationCatalog& catalog : problems->options().translations) {
        if (!catalog.contains(expression, problems->options().context))
            problems->add(Rule::TranslationMissing, kHint,
                Problem::tr("%1 has no translation of the hint").arg(catalog.name()),
                Problem::tr("Run lupdate, and translate it"));
    }
}

bool hasLetters(const QString& text)
{
    return std::any_of(
        text.begin(), text.end(), [](QChar character) { return character.isLetter(); });
}

void checkHint(const QString& hint, bool isGroup, StepProblems* problems)
{
    TranslationExpression expression;
    const bool isExpression = beginsTranslationExpression(hint);
    if (isExpression && !checkExpression(kHint, hint, problems, &expression))
        return;
    // A group's name is for authors, and need not be translated.
    if (isGroup)
        return;
    const QString text = isExpression ? expression.sourceText : hint;
    if (isExpression)
        checkTranslations(expression, problems);
    else if (hasLetters(withoutTags(text)))
        problems->add(Rule::NotTranslatable, kHint, Problem::tr("The hint cannot be translated"),
            Problem::tr("Write qsTr(\"…\")"));
    checkTags(text, problems);
    checkLength(text, problems);
}

} // namespace

void TutorialEditor::checkTexts(const QJsonObject& step, bool isGroup, StepProblems* problems)
{
    const QString hint = step.value(kHint).toString();
    if (!hint.isEmpty())
        checkHint(hint, isGroup, problems);
    const QString comment = step.value(kComment).toString();
    TranslationExpression expression;
    if (beginsTranslationExpression(comment))
        checkExpression(kComment, comment, problems, &expression);
}
