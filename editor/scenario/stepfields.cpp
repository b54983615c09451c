// SPDX-License-Identifier: MIT
#include "editor/scenario/stepfields.h"

#include "editor/scenario/condition.h"
#include "tutorial/vocabulary/vocabulary.h"

using namespace TutorialEditor;

namespace {

const QString kX = QStringLiteral("x");
const QString kY = QStringLiteral("y");
const QString kFollowWindow = QStringLiteral("followWindow");
const QString kTarget = QStringLiteral("target");
const QString kComment = QStringLiteral("comment");
const QString kHint = QStringLiteral("hint");
const QString kCondition = QStringLiteral("condition");
const QString kIcon = QStringLiteral("icon");
const QString kCommand = QStringLiteral("command");
const QString kLabel = QStringLiteral("label");
const QString kOption = QStringLiteral("option");

// Fills a step's fields from its object, key by key.
class Loader {
public:
    explicit Loader(const QJsonObject& step) : mStep(step) { }

    StepFields load(bool isGroup)
    {
        mFields.hint = shownText(kHint, HintField);
        mFields.label = shownText(kLabel, LabelField);
        if (isGroup)
            return mFields;
        mFields.x = shownNumber(kX, XField);
        mFields.y = shownNumber(kY, YField);
        mFields.target = shownText(kTarget, TargetField);
        mFields.comment = shownText(kComment, CommentField);
        loadFollowWindow();
        loadCondition();
        loadIcon();
        loadCommand();
        shownText(kOption, ShowArrowField);
        mFields.showArrow = mStep[kOption].toInt() == 0;
        return mFields;
    }

private:
    QString shownText(const QString& key, StepField field)
    {
        mFields.shown.setFlag(field, mStep.contains(key));
        return mStep[key].toString();
    }

    QString shownNumber(const QString& key, StepField field)
    {
        mFields.shown.setFlag(field, mStep.contains(key));
        return mStep.contains(key) ? QString::number(mStep[key].toInt()) : QString();
    }

    void loadFollowWindow()
    {
        const QString window = mStep[kFollowWindow].toString();
        if (Tutorial::getWindowKind(window) == Tutorial::WindowKindCount)
            return;
        mFields.followWindow = window;
        mFields.shown |= FollowWindowField;
    }

    void loadCondition()
    {
        const QStringList parts = splitCondition(shownText(kCondition, ConditionField));
        const auto kind = Tutorial::getConditionKind(parts.first());
        mFields.condition = Tutorial::getConditionKindName(kind);
        const ConditionParameters& parameters = conditionParameters(kind);
        for (int i = 0; i < int(parameters.size()); ++i) {
            const ParameterView view = parameters[i].view;
            mFields.parameters[i] = parts.value(i + 1);
            if (isBox(view))
                mFields.boxes[i] = mFields.parameters[i];
            else if (view == ParameterView::Field && kind != Tutorial::ConditionKindCount)
                mFields.shown |= parameterField(i);
        }
    }

    void loadIcon()
    {
        const auto kind = Tutorial::getIconKind(shownText(kIcon, IconField));
        mFields.icon = Tutorial::getIconKindName(kind);
    }

    void loadCommand()
    {
        const QStringList parts = splitCondition(shownText(kCommand, CommandField));
        mFields.command = Tutorial::getCommandKindName(Tutorial::getCommandKind(parts.first()));
        mFields.commandParameter = parts.value(1);
        mFields.shown.setFlag(CommandParameterField, mStep.contains(kCommand));
    }

    const QJsonObject& mStep;
    StepFields mFields;
};

// A text that was emptied takes its key away.
void setText(QJsonObject* step, const QString& key, const QString& text)
{
    if (text.isEmpty())
        step->remove(key);
    else
        step->insert(key, text);
}

void setChangedText(
    QJsonObject* step, const QString& key, const QString& before, const QString& now)
{
    if (now != before)
        setText(step, key, now);
}

void setPosition(QJsonObject* step, const StepFields& before, const StepFields& now)
{
    if (now.x.isEmpty() && now.y.isEmpty()) {
        step->remove(kX);
        step->remove(kY);
        return;
    }
    if (now.x != before.x || (now.shown.testFlag(XField) && !step->contains(kX)))
        step->insert(kX, coordinate(now.x));
    if (now.y != before.y || (now.shown.testFlag(YField) && !step->contains(kY)))
        step->insert(kY, coordinate(now.y));
}

QStringList conditionParts(const StepFields& fields)
{
    QStringList parts(fields.condition);
    const ConditionParameters& parameters =
        conditionParameters(Tutorial::getConditionKind(fields.condition));
    for (int i = 0; i < int(parameters.size()); ++i) {
        const ParameterView view = parameters[i].view;
        const bool isHidden =
            view == ParameterView::Field && !fields.shown.testFlag(parameterField(i));
        if (view == ParameterView::None || isHidden)
            break;
        parts << (isBox(view) ? fields.boxes[i] : fields.parameters[i]);
    }
    return parts;
}

QStringList commandParts(const StepFields& fields)
{
    QStringList parts(fields.command);
    if (fields.shown.testFlag(CommandParameterField))
        parts << fields.commandParameter;
    return parts;
}

// Size of the stored part that begins at `position`: what the form held of it,
// which may have commas of its own, else all up to the next comma.
int partSize(const QString& stored, int position, const QString& held)
{
    const int end = position + held.size();
    const bool endsThere =
        end == stored.size() || (end < stored.size() && stored.at(end) == QLatin1Char(','));
    if (endsThere && QStringView(stored).mid(position, held.size()) == held)
        return held.size();
    const int comma = stored.indexOf(QLatin1Char(','), position);
    return (comma == -1 ? stored.size() : comma) - position;
}

// The stored text with the parts that changed in the form; all new when the
// name did. Parts beyond the form's stay, parts that it has in addition follow.
QString composed(const QString& stored, const QStringList& before, const QStringList& now)
{
    if (now.first() != before.first())
        return joinCondition(now);
    QStringList parts;
    int position = 0; // beyond the stored text when that has no further part
    for (int i = 0; i < now.size(); ++i) {
        const QString held = before.value(i);
        if (position > stored.size()) {
            parts << now.at(i);
            continue;
        }
        const int size = partSize(stored, position, held);
        parts << (now.at(i) == held ? stored.mid(position, size) : now.at(i));
        position += size + 1;
    }
    if (position <= stored.size())
        parts << stored.mid(position);
    return joinCondition(parts);
}

void setCondition(QJsonObject* step, const StepFields& before, const StepFields& now)
{
    const QString stored = step->value(kCondition).toString();
    const QString text = composed(stored, conditionParts(before), conditionParts(now));
    // Parameters alone are no condition.
    if (text != stored && !text.isEmpty() && !text.startsWith(QLatin1Char(',')))
        step->insert(kCondition, text);
}

void setCommand(QJsonObject* step, const StepFields& before, const StepFields& now)
{
    if (commandParts(now) == commandParts(before))
        return;
    const QString text =
        composed(step->value(kCommand).toString(), commandParts(before), commandParts(now));
    // A parameter alone is no command.
    setText(step, kCommand, text.startsWith(QLatin1Char(',')) ? QString() : text);
}

} // namespace

StepFields TutorialEditor::loadStep(const QJsonObject& step, bool isGroup)
{
    return Loader(step).load(isGroup);
}

RebuiltStep TutorialEditor::rebuildStep(const QJsonObject& step, bool isGroup,
    const StepFields& before, const StepFields& now, const QString& translation)
{
    QJsonObject rebuilt = step;
    if (!isGroup) {
        setPosition(&rebuilt, before, now);
        setChangedText(&rebuilt, kTarget, before.target, now.target);
        setChangedText(&rebuilt, kComment, before.comment, now.comment);
        setCondition(&rebuilt, before, now);
        setCommand(&rebuilt, before, now);
        if (now.followWindow != before.followWindow)
            rebuilt.insert(kFollowWindow, now.followWindow);
        if (now.icon != before.icon)
            rebuilt.insert(kIcon, now.icon);
    }
    setChangedText(&rebuilt, kHint, before.hint, now.hint);
    setChangedText(&rebuilt, kLabel, before.label, now.label);
    if (now.showArrow && !before.showArrow)
        rebuilt.remove(kOption);
    else if (!now.showArrow && before.showArrow)
        rebuilt.insert(kOption, 1);

    QString window = now.followWindow;
    if (window.isEmpty() && !isGroup)
        window = step.value(kFollowWindow).toString(); // a window that the form cannot show
    return {rebuilt, displayText(translation, now.x, now.y, window), coordinate(now.x),
        coordinate(now.y), indicatorFlags(now)};
}

int TutorialEditor::coordinate(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? number : Tutorial::kNoCoordinate;
}

int TutorialEditor::indicatorFlags(const StepFields& fields)
{
    int flags = fields.showArrow ? 0 : Tutorial::HideArrowFlag;
    const auto kind = Tutorial::getConditionKind(fields.condition);
    if (kind == Tutorial::Condition_click)
        flags |= Tutorial::ShowNextFlag;
    else if (kind == Tutorial::Condition_yesNo)
        flags |= Tutorial::ShowYesNoFlag;
    return flags;
}

QString TutorialEditor::displayText(
    const QString& hint, const QString& x, const QString& y, const QString& followWindow)
{
    if (followWindow.isEmpty())
        return hint;
    return hint + QLatin1String(" --- ") + QStringLiteral("%3(%1,%2)").arg(x, y, followWindow);
}
