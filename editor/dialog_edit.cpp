// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/form/formarea.h"
#include "editor/form/stepform.h"
#include "editor/history/stephistory.h"
#include "editor/model/model.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/debuglog.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QPushButton>

using namespace TutorialEditor;

namespace {

// What a picked point changes: x and y, and the target with them.
constexpr auto kPickedFields = static_cast<StepField>(int(XField) | int(YField));

} // namespace

void Dialog::onFieldChanged(
    const char* handler, const QString& text, StepField field, bool isTyping)
{
    qCDebug(debugLog).noquote() << handler << __LINE__ << logged(text);
    onValueChanged(field, isTyping);
}

void Dialog::onXChanged(const QString& text)
{
    onFieldChanged(__func__, text, XField);
}

void Dialog::onYChanged(const QString& text)
{
    onFieldChanged(__func__, text, YField);
}

void Dialog::onFollowWindowCurrentIndexChanged(const QString& text)
{
    checkTreeBox();
    onFieldChanged(__func__, text, FollowWindowField, false);
}

void Dialog::onTargetChanged(const QString& text)
{
    onFieldChanged(__func__, text, TargetField);
}

void Dialog::onCommentChanged()
{
    const QString text = mForm->fields().comment;
    onFieldChanged(__func__, text, CommentField);
    requestComment(text);
}

void Dialog::onHintChanged()
{
    const QString text = mForm->fields().hint;
    onFieldChanged(__func__, text, HintField);
    requestHint(text);
}

void Dialog::onConditionCurrentIndexChanged(const QString& text)
{
    onFieldChanged(__func__, text, ConditionField, false);
}

void Dialog::onConditionParamChanged(const QString& text, int parameter)
{
    onFieldChanged(__func__, text, parameterField(parameter));
}

void Dialog::onIconCurrentIndexChanged(const QString& text)
{
    onFieldChanged(__func__, text, IconField, false);
}

void Dialog::onCommandCurrentIndexChanged(const QString& text)
{
    onFieldChanged(__func__, text, CommandField, false);
}

void Dialog::onCommandParamChanged(const QString& text)
{
    onFieldChanged(__func__, text, CommandParameterField);
}

void Dialog::onLabelChanged(const QString& text)
{
    onFieldChanged(__func__, text, LabelField);
}

void Dialog::onArrowVisibleChanged(int state)
{
    onFieldChanged(__func__, QString::number(state), ShowArrowField, false);
}

void Dialog::onRefWindowClicked()
{
    EDITOR_DEBUG;
    mForm->showFields(FollowWindowField);
    mForm->setFollowWindow(TutorialManager::mInstance
            ? TutorialManager::mInstance->getLastWindowKind(0)
            : Tutorial::WindowKindCount);
}

void Dialog::onAddFieldMenu()
{
    mForm->fillFieldMenu(mAddField->menu(), mItem->isGroup());
}

void Dialog::onFieldAdded(ShownFields fields, const QString& name, QWidget* widget)
{
    mFields = mForm->fields();
    mHistory->addFields(mItem, fields, tr("Added Field: %1").arg(name));
    widget->setFocus();
    mFormArea->ensureWidgetVisible(widget);
}

void Dialog::onValueChanged(StepField field, bool isTyping, const QString& name)
{
    EDITOR_DEBUG;
    if (!mItem)
        return;
    const StepFields now = mForm->fields();
    const RebuiltStep rebuilt =
        rebuildStep(mItem->step(), mItem->isGroup(), mFields, now, mItem->translation());
    if (Tutorial::getConditionKind(now.condition) == Tutorial::Condition_windowState)
        EDITOR_DEBUG << "jsonize: mComboBoxWindowKind = " << now.boxes[0];
    const QVariant icon = mModel->icon(Tutorial::getIconKind(now.icon));
    if (now.icon != mFields.icon && icon.isValid())
        mItem->setData(icon, Qt::DecorationRole);
    mFields = now;
    if (rebuilt.step != mItem->step())
        mHistory->edit(mItem, rebuilt.step, field, isTyping,
            name.isEmpty() ? tr("Change of Field: %1").arg(mForm->fieldName(field)) : name);
    mItem->setData(rebuilt.displayText, Qt::EditRole);
    emit changed();
    pointIndicator(rebuilt.x, rebuilt.y);
}

void Dialog::requestUntr(const QString& key, const QString& text) const
{
    if (TutorialManager::mInstance)
        TutorialManager::mInstance->requestUntr(key, text);
}

void Dialog::checkTreeBox() const
{
    const auto kind = Tutorial::getWindowKind(mForm->fields().followWindow);
    if (TutorialManager::mInstance)
        TutorialManager::mInstance->requestCheckMapEditTreeBox(
            kind == Tutorial::Window_MapEditTreeBox);
}

void Dialog::pointIndicator(int x, int y)
{
    if (!mItem || mItem->isGroup() || !TutorialManager::mInstance)
        return;
    const StepFields fields = mForm->fields();
    tellTarget(fields.target);
    TutorialManager::mInstance->updateIndicator(x, y, Tutorial::getWindowKind(fields.followWindow),
        mForm->hintTranslation(), indicatorFlags(mFields), Tutorial::getIconKind(fields.icon));
}

void Dialog::tellTarget(const QString& target)
{
    if (!target.isEmpty() || mTargetTold)
        TutorialManager::mInstance->sendEditor({QStringLiteral("target"), target});
    mTargetTold = !target.isEmpty();
}

void Dialog::setCoordinates(int x, int y)
{
    EDITOR_DEBUG << x << y;
    mHistory->endTyping();
    // The step moves once.
    mForm->setPosition(x, y);
    if (mItem && !mItem->isGroup())
        mForm->showFields(XField | YField);
    onValueChanged(kPickedFields, true, tr("Picked Point"));
}

void Dialog::setTarget(const QString& target)
{
    EDITOR_DEBUG << target;
    mForm->setTarget(target);
    if (mItem && !mItem->isGroup() && !target.isEmpty())
        mForm->showFields(TargetField);
    // With the point that came before it is one act.
    onValueChanged(kPickedFields, true, tr("Picked Point"));
    mHistory->endTyping();
}

void Dialog::setTargets(const QStringList& targets)
{
    mForm->setTargets(targets);
}

void Dialog::setCondition(const QStringList& condition)
{
    EDITOR_DEBUG << condition;
    if (mItem && !mItem->isGroup())
        mForm->showFields(ConditionField);
    mForm->setCondition(condition);
    onValueChanged(ConditionField, false, tr("Recorded Condition"));
}
