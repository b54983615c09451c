#include "editor/savecheck.h"
#include "editor/scenarioreader.h"
#include "editor/scenariowriter.h"
#include "editor/translationexpression.h"
#include "tests/fuzz/fuzzer.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace TutorialEditor;

namespace {

// What steps, and the steps in their groups, say about being written.
struct Traits {
    // A text that is written bare is not one whole expression, so that no reader
    // can tell where it ends; or a key looks like one.
    bool hasHalfExpression = false;
    // A group's hint, which is copied as it is, cannot stand in quotes.
    bool hasUnquotable = false;

    void look(const QJsonArray& steps)
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
                look(step.value(QLatin1String("group")).toArray());
            }
        }
    }
};

} // namespace

// What was read without an error is written and read again unchanged, or the
// author is told which step cannot be.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QtParsesJson noLeaks;
    QStringList errors;
    const QString input = textOf(data, size);
    const QJsonArray steps = readScenario(input, &errors);
    if (!errors.isEmpty())
        return 0;

    const QString json = scenarioJson(steps);
    const bool hasSurrogates =
        std::any_of(json.begin(), json.end(), [](QChar c) { return c.isSurrogate(); });
    // Qt's parser orders keys with such characters by whether they were escaped,
    // and half a pair of surrogates, which must have been, cannot be in a file.
    if (input.contains(QChar::Null) || (hasSurrogates && input.contains(QLatin1String("\\u"))))
        return 0;

    const QString file = textOf(scenarioFileText(json).toUtf8());
    const bool isSame = scenarioJson(readScenario(file, &errors)) == json && errors.isEmpty();
    Traits traits;
    traits.look(steps);
    expect(isSame || traits.hasHalfExpression, "what was read is written and read again unchanged");
    expect(isSame == findUnreadable(json, steps).isEmpty(),
        "exactly what cannot be read again is reported");

    if (!traits.hasUnquotable) {
        const QString copied = scenarioJson(steps, StepListForm::Copied);
        const QJsonDocument pasted = QJsonDocument::fromJson(copied.toUtf8());
        expect(pasted.isArray(), "what was copied is JSON");
        expect(scenarioJson(pasted.array()).toUtf8() == json.toUtf8(), "what was copied is pasted");
    }
    return 0;
}
