// SPDX-License-Identifier: MIT
#include "editor/scenario/savecheck.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"
#include "editor/scenario/translationexpression.h"
#include "tests/fuzz/fuzzer.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace TutorialEditor;

namespace {

constexpr int kMostTexts = 6; // each is a level of nesting

// What steps, and the steps in their groups, say about being written.
struct Traits {
    // A text that is written bare is not one whole expression, so that no reader
    // can tell where it ends; or a key looks like one.
    bool hasHalfExpression = false;
    // A group's hint, which is copied as it is, cannot stand in quotes.
    bool hasUnquotable = false;

    explicit Traits(const QJsonArray& steps)
    {
        for (const QJsonValue& value : steps) {
            const QJsonObject step = value.toObject();
            const QString hint = step.value(QLatin1String("hint")).toString();
            for (const QString& text : {hint, step.value(QLatin1String("comment")).toString()}) {
                TranslationExpression expression;
                hasHalfExpression |= beginsTranslationExpression(text)
                    && !parseTranslationExpression(text, &expression);
            }
            for (const QString& key : step.keys())
                hasHalfExpression |= beginsTranslationExpression(key);
            if (step.contains(QLatin1String("group"))) {
                hasUnquotable |=
                    hint.contains(QLatin1Char('"')) || hint.contains(QLatin1Char('\\'));
                const Traits below(step.value(QLatin1String("group")).toArray());
                hasHalfExpression |= below.hasHalfExpression;
                hasUnquotable |= below.hasUnquotable;
            }
        }
    }
};

// The texts as the author types them, plainly and in expressions, in nested steps.
QJsonArray stepsOf(const QStringList& texts)
{
    QJsonArray steps;
    for (const QString& text : texts) {
        QString literal = text;
        literal.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
        literal.replace(QLatin1Char('"'), QLatin1String("\\\""));
        const QString literals = QStringLiteral("(\"%1\")").arg(literal);
        const QString tr = QLatin1String("qsTr") + literals;
        const QString noop = QLatin1String("QT_TRANSLATE_NOOP") + literals;
        steps = {QJsonObject{{QStringLiteral("group"), steps}, {QStringLiteral("hint"), tr},
                     {QStringLiteral("label"), text}},
            QJsonObject{{QStringLiteral("comment"), noop}, {QStringLiteral("hint"), text},
                {QStringLiteral("later"), QJsonArray{text}}},
            QJsonObject{{QStringLiteral("comment"), text}, {QStringLiteral("hint"), noop}}};
    }
    return steps;
}

// The steps are read as they were written, or the author is told which is not;
// and what was copied is pasted.
void expectKept(const QJsonArray& steps, const Traits& traits)
{
    const QString json = scenarioJson(steps);
    QStringList errors;
    const QString file = textOf(scenarioFileText(json).toUtf8());
    const bool isKept = scenarioJson(readScenario(file, &errors)) == json && errors.isEmpty();
    expect(isKept || traits.hasHalfExpression, "what was written is read again");
    expect(isKept == findUnreadable(json, steps).isEmpty(),
        "exactly what cannot be read again is reported");

    const QString copied = scenarioJson(steps, StepListForm::Copied);
    const QJsonArray pasted = QJsonDocument::fromJson(copied.toUtf8()).array();
    expect(scenarioJson(pasted) == json || traits.hasUnquotable, "what was copied is pasted");
}

} // namespace

// The text of a file, or what the author types: texts separated by the byte 1.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QtParsesJson noLeaks;
    const QString text = textOf(data, size);
    if (text.contains(QChar(1))) {
        const QStringList texts = text.split(QChar(1)).mid(0, kMostTexts);
        const QJsonArray typed = stepsOf(texts);
        Traits traits(typed);
        // The expressions are whole.
        traits.hasHalfExpression =
            std::any_of(texts.begin(), texts.end(), beginsTranslationExpression);
        expectKept(typed, traits);
        return 0;
    }

    QStringList errors;
    const QJsonArray steps = readScenario(text, &errors);
    const QString json = scenarioJson(steps);
    const bool hasSurrogates =
        std::any_of(json.begin(), json.end(), [](QChar c) { return c.isSurrogate(); });
    // Qt's parser orders keys with such characters by whether they were escaped,
    // and half a pair of surrogates, which must have been, cannot be in a file.
    if (errors.isEmpty() && !text.contains(QChar::Null)
        && !(hasSurrogates && text.contains(QLatin1String("\\u"))))
        expectKept(steps, Traits(steps));
    return 0;
}
