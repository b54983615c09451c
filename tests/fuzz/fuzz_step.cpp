#include "editor/condition.h"
#include "editor/stepfields.h"
#include "editor/stepjson.h"
#include "tests/fuzz/fuzzer.h"
#include "tutorial/tutorialaction.h"

#include <QJsonDocument>

using namespace TutorialEditor;

namespace {

const QString kCondition = QStringLiteral("condition");

// A field whose text is typed or chosen.
struct Field {
    const char* name;
    const char* key;
    QString& (*text)(StepFields*);
    // Whether the form offers the text for a step that it shows like this.
    bool (*isOffered)(const StepFields& fields, const QString& text);
    StepField shown;
};

bool isNotIn(const QString& text, char character)
{
    return !text.contains(QLatin1Char(character));
}

template <int i>
bool isTypedParameter(const StepFields& fields, const QString& text)
{
    const auto kind = Tutorial::getConditionKind(fields.condition);
    const ParameterView view = conditionParameters(kind)[i].view;
    return kind != Tutorial::ConditionKindCount && isNotIn(text, ',')
        && (view == ParameterView::Field || view == ParameterView::HiddenField);
}

template <int i>
bool isChosenParameter(const StepFields& fields, const QString& text)
{
    const auto kind = Tutorial::getConditionKind(fields.condition);
    return isNotIn(text, ',') && isBox(conditionParameters(kind)[i].view);
}

bool isAny(const StepFields&, const QString&)
{
    return true;
}

const Field kFields[] = {
    {"x", "x", [](StepFields* fields) -> QString& { return fields->x; }, isAny, XField},
    {"y", "y", [](StepFields* fields) -> QString& { return fields->y; }, isAny, YField},
    {"comment", "comment", [](StepFields* fields) -> QString& { return fields->comment; }, isAny,
        CommentField},
    {"hint", "hint", [](StepFields* fields) -> QString& { return fields->hint; }, isAny, HintField},
    {"label", "label", [](StepFields* fields) -> QString& { return fields->label; }, isAny,
        LabelField},
    {"followWindow", "followWindow",
        [](StepFields* fields) -> QString& { return fields->followWindow; },
        [](const StepFields&, const QString& text) {
            return Tutorial::getWindowKind(text) != Tutorial::WindowKindCount;
        },
        FollowWindowField},
    {"icon", "icon", [](StepFields* fields) -> QString& { return fields->icon; },
        [](const StepFields&, const QString& text) {
            return Tutorial::getIconKind(text) != Tutorial::IconKindCount;
        },
        IconField},
    {"condition", "condition", [](StepFields* fields) -> QString& { return fields->condition; },
        [](const StepFields&, const QString& text) {
            return Tutorial::getConditionKind(text) != Tutorial::ConditionKindCount;
        },
        ConditionField},
    {"parameter1", "condition",
        [](StepFields* fields) -> QString& { return fields->parameters[0]; }, isTypedParameter<0>,
        ParameterField1},
    {"parameter2", "condition",
        [](StepFields* fields) -> QString& { return fields->parameters[1]; }, isTypedParameter<1>,
        ParameterField2},
    {"box1", "condition", [](StepFields* fields) -> QString& { return fields->boxes[0]; },
        isChosenParameter<0>, ConditionField},
    {"box2", "condition", [](StepFields* fields) -> QString& { return fields->boxes[1]; },
        isChosenParameter<1>, ConditionField},
    {"command", "command", [](StepFields* fields) -> QString& { return fields->command; },
        [](const StepFields&, const QString& text) {
            return Tutorial::getCommandKind(text) != Tutorial::CommandKindCount;
        },
        CommandField},
    {"commandParameter", "command",
        [](StepFields* fields) -> QString& { return fields->commandParameter; },
        [](const StepFields& fields, const QString& text) {
            return !fields.command.isEmpty() && isNotIn(text, ',');
        },
        CommandParameterField},
};

QJsonObject without(QJsonObject step, const char* key)
{
    step.remove(QLatin1String(key));
    return step;
}

} // namespace

// The name of a field, a text for it and a step, each on its line.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString input = textOf(data, size);
    const QString name = input.section(QLatin1Char('\n'), 0, 0);
    const QString typed = input.section(QLatin1Char('\n'), 1, 1);
    const QtParsesJson noLeaks;
    QJsonObject step =
        QJsonDocument::fromJson(input.section(QLatin1Char('\n'), 2).toUtf8()).object();
    const bool isGroup = !step.take(QStringLiteral("group")).isUndefined();
    const auto expectSameJson = [](const QJsonObject& object) {
        expect(stepJson(object)
                == QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)),
            "a step's text is the one that Qt writes");
    };
    expectSameJson(step);

    const StepFields before = loadStep(step, isGroup);
    const QJsonObject same = rebuildStep(step, isGroup, before, before, QString()).step;
    expect(without(same, "condition") == without(step, "condition"), "an untouched step stays");
    QString added = same.value(kCondition).toString();
    const QString condition = step.value(kCondition).toString();
    expect(same.value(kCondition) == step.value(kCondition) || added.startsWith(condition),
        "an untouched condition stays");
    expect(added.remove(0, condition.size()).count(QLatin1Char(',')) == added.size(),
        "an untouched condition gets empty parameters");

    StepFields now = before;
    const auto rebuilt = [&] {
        const QJsonObject result = rebuildStep(same, isGroup, before, now, QString()).step;
        expectSameJson(result);
        return result;
    };
    if (!isGroup) {
        now.showArrow = !before.showArrow;
        expect(
            without(rebuilt(), "option") == without(same, "option"), "the arrow is the option's");
        expect(
            loadStep(rebuilt(), isGroup).showArrow == now.showArrow, "the arrow is loaded again");
        now = before;
    }
    for (const Field& field : kFields) {
        const bool isOfGroups = field.shown == HintField || field.shown == LabelField;
        if (name != QLatin1String(field.name) || (isGroup && !isOfGroups)
            || !field.isOffered(before, typed))
            continue;
        field.text(&now) = typed;
        now.shown |= field.shown;
        const QJsonObject changed = rebuilt();
        expect(
            without(changed, field.key) == without(same, field.key), "one field changes one key");
        StepFields loaded = loadStep(changed, isGroup);
        const bool isNumber = field.shown == XField || field.shown == YField;
        const QString expected = isNumber && changed.contains(QLatin1String(field.key))
            ? QString::number(coordinate(typed))
            : typed;
        expect(field.text(&loaded) == expected, "what was typed is loaded again");
    }
    return 0;
}
