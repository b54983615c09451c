// SPDX-License-Identifier: MIT
#include "editor/scenario/condition.h"
#include "editor/scenario/stepfields.h"
#include "editor/scenario/stepjson.h"
#include "tests/fuzz/fuzzer.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QJsonDocument>
#include <QVector>

using namespace TutorialEditor;

namespace {

// A field whose text is typed or chosen, and the key that it is stored under.
struct Field {
    const char* key;
    StepField field;
    QString* text;
};

QVector<Field> textFields(StepFields* fields)
{
    QVector<Field> result = {{"x", XField, &fields->x}, {"y", YField, &fields->y},
        {"followWindow", FollowWindowField, &fields->followWindow},
        {"comment", CommentField, &fields->comment}, {"hint", HintField, &fields->hint},
        {"condition", ConditionField, &fields->condition}, {"icon", IconField, &fields->icon},
        {"command", CommandField, &fields->command},
        {"command", CommandParameterField, &fields->commandParameter},
        {"label", LabelField, &fields->label}};
    const auto kind = Tutorial::getConditionKind(fields->condition);
    for (int i = 0; i < 3; ++i) {
        const ParameterView view = conditionParameters(kind)[i].view;
        if (kind != Tutorial::ConditionKindCount && view != ParameterView::None)
            result.append({"condition", parameterField(i),
                isBox(view) ? &fields->boxes[i] : &fields->parameters[i]});
    }
    return result;
}

// Whether the form lets the author put this text into the field, and the step
// can hold it: a parameter with a comma is two.
bool isOffered(StepField field, const StepFields& fields, const QString& text)
{
    switch (field) {
    case FollowWindowField:
        return Tutorial::getWindowKind(text) != Tutorial::WindowKindCount;
    case ConditionField:
        return Tutorial::getConditionKind(text) != Tutorial::ConditionKindCount;
    case IconField:
        return Tutorial::getIconKind(text) != Tutorial::IconKindCount;
    case CommandField:
        return Tutorial::getCommandKind(text) != Tutorial::CommandKindCount;
    case CommandParameterField:
        return !fields.command.isEmpty() && !text.contains(QLatin1Char(','));
    case ParameterField1:
    case ParameterField2:
    case ParameterField3:
        return !text.contains(QLatin1Char(','));
    default:
        return true;
    }
}

QJsonObject without(QJsonObject step, const char* key)
{
    step.remove(QLatin1String(key));
    return step;
}

void expectSameJson(const QJsonObject& step)
{
    expect(stepJson(step) == textOf(QJsonDocument(step).toJson(QJsonDocument::Compact)),
        "a step's text is the one that Qt writes");
}

} // namespace

// A text on one line, and below it a step, whose fields get that text in turn.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QtParsesJson noLeaks;
    const QString input = textOf(data, size);
    const QString text = input.section(QLatin1Char('\n'), 0, 0);
    const QString json = input.section(QLatin1Char('\n'), 1);
    QJsonObject step = QJsonDocument::fromJson(json.toUtf8()).object();
    const bool isGroup = !step.take(QStringLiteral("group")).isUndefined();
    expectSameJson(step);

    StepFields loaded = loadStep(step, isGroup);
    const QJsonObject same = rebuildStep(step, isGroup, loaded, loaded, QString()).step;
    expect(without(same, "condition") == without(step, "condition"), "an untouched step stays");
    const QString condition = step.value(QLatin1String("condition")).toString();
    QString completed = same.value(QLatin1String("condition")).toString();
    expect(completed.startsWith(condition), "an untouched condition stays");
    expect(completed.remove(0, condition.size()).remove(QLatin1Char(',')).isEmpty(),
        "an untouched condition is completed by empty parameters");

    const StepFields before = loaded;
    StepFields now = before;
    const auto rebuild = [&](const char* key) {
        const QJsonObject changed = rebuildStep(same, isGroup, before, now, QString()).step;
        expect(without(changed, key) == without(same, key), "one field changes one key");
        expectSameJson(changed);
        loaded = loadStep(changed, isGroup);
        return changed;
    };
    for (int i = 0; i < textFields(&now).size(); ++i) {
        now = before;
        const Field field = textFields(&now).at(i);
        const bool isOfGroups = field.field == HintField || field.field == LabelField;
        if ((isGroup && !isOfGroups) || !isOffered(field.field, before, text))
            continue;
        *field.text = text;
        now.shown |= field.field;
        const QJsonObject changed = rebuild(field.key);
        const bool isNumber = field.field == XField || field.field == YField;
        const bool isStored = changed.contains(QLatin1String(field.key));
        expect(*textFields(&loaded).at(i).text
                == (isNumber && isStored ? QString::number(coordinate(text)) : text),
            "what was typed is loaded again");
    }
    if (!isGroup) {
        now = before;
        now.showArrow = !before.showArrow;
        rebuild("option");
        expect(loaded.showArrow == now.showArrow, "the arrow is loaded again");
    }
    return 0;
}
