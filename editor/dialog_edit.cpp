// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/form/formarea.h"
#include "editor/model/model.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/debuglog.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QTextEdit>

using namespace TutorialEditor;

namespace {

// The text as it was typed. QTextEdit's own plain text has blanks for the
// non-breaking ones.
QString plainText(const QTextEdit* box)
{
    QString text = box->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text.replace(QChar::LineSeparator, QLatin1Char('\n'));
}

} // namespace

void Dialog::onFieldChanged(const char* handler, const QString& text)
{
    qCDebug(debugLog).noquote() << handler << __LINE__ << logged(text);
    onValueChanged();
}

void Dialog::onXChanged(const QString& text)
{
    onFieldChanged(__func__, text);
}

void Dialog::onYChanged(const QString& text)
{
    onFieldChanged(__func__, text);
}

void Dialog::onFollowWindowCurrentIndexChanged()
{
    checkTreeBox();
    onFieldChanged(__func__, mFollowWindow->currentText());
}

void Dialog::onCommentChanged()
{
    const QString text = plainText(mComment);
    onFieldChanged(__func__, text);
    requestUntr(QStringLiteral("comment"), text);
}

void Dialog::onHintChanged()
{
    const QString text = plainText(mHint);
    onFieldChanged(__func__, text);
    requestUntr(QStringLiteral("hint"), text);
}

void Dialog::onConditionCurrentIndexChanged()
{
    setEditConditionDefault();
    adjustComboBox();
    onFieldChanged(__func__, mCondition->currentText());
}

void Dialog::onConditionBoxChanged()
{
    // The fields hold the parameters, also those that a box shows.
    const ConditionParameters& parameters = shownParameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        QComboBox* box = parameterBox(parameters[i].view);
        if (box && box == sender())
            mParameters[i]->setText(box->currentText());
    }
}

void Dialog::onConditionParamChanged(const QString& text)
{
    onFieldChanged(__func__, text);
}

void Dialog::onIconCurrentIndexChanged(const QString& text)
{
    onFieldChanged(__func__, text);
}

void Dialog::onCommandCurrentIndexChanged(const QString& text)
{
    onFieldChanged(__func__, text);
}

void Dialog::onCommandParamChanged(const QString& text)
{
    onFieldChanged(__func__, text);
}

void Dialog::onLabelChanged(const QString& text)
{
    onFieldChanged(__func__, text);
}

void Dialog::onArrowVisibleChanged(int state)
{
    onFieldChanged(__func__, QString::number(state));
}

void Dialog::onRefWindowClicked()
{
    EDITOR_DEBUG;
    const auto kind = TutorialManager::mInstance ? TutorialManager::mInstance->getLastWindowKind(0)
                                                 : Tutorial::WindowKindCount;
    showFields(FollowWindowField);
    mFollowWindow->setCurrentIndex(kind == Tutorial::WindowKindCount ? 0 : kind);
}

void Dialog::onAddFieldMenu()
{
    QMenu* menu = mAddField->menu();
    menu->clear();
    for (int i = 0; i < mFormFields.size(); ++i) {
        const FormField& field = mFormFields.at(i);
        const bool isOffered = !field.name.isEmpty() && field.widgets.first()->isHidden();
        const bool isOfGroups = field.field == HintField || field.field == LabelField;
        if (isOffered && (isOfGroups || !mItem->isGroup()))
            connect(
                menu->addAction(field.name), &QAction::triggered, this, [this, i] { addField(i); });
    }
    if (menu->isEmpty())
        menu->addAction(tr("All fields are shown"))->setEnabled(false);
}

StepFields Dialog::heldFields() const
{
    StepFields held;
    held.x = mX->text();
    held.y = mY->text();
    held.followWindow = mFollowWindow->currentText();
    held.comment = plainText(mComment);
    held.hint = plainText(mHint);
    held.condition = mCondition->currentText();
    const ConditionParameters& parameters = shownParameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        held.parameters[i] = mParameters[i]->text();
        if (const QComboBox* box = parameterBox(parameters[i].view))
            held.boxes[i] = box->currentText();
        held.shown.setFlag(parameterField(int(i)), !mParameters[i]->isHidden());
    }
    held.icon = mIcon->currentText();
    held.command = mCommand->currentText();
    held.commandParameter = mCommandParameter->text();
    held.label = mLabel->text();
    held.showArrow = mShowArrow->isChecked();
    for (const FormField& field : mFormFields)
        held.shown.setFlag(field.field, !field.widgets.first()->isHidden());
    return held;
}

const ConditionParameters& Dialog::shownParameters() const
{
    return conditionParameters(Tutorial::getConditionKind(mCondition->currentText()));
}

void Dialog::setEditConditionDefault()
{
    const ConditionParameters& parameters = shownParameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const QSignalBlocker blocker(mParameters[i]);
        if (parameters[i].byDefault)
            mParameters[i]->setText(QLatin1String(parameters[i].byDefault));
    }
}

void Dialog::adjustComboBox()
{
    for (QComboBox* box : mParameterBoxes)
        box->hide();
    if (mCondition->isHidden() || mCondition->currentIndex() == -1)
        return;
    EDITOR_DEBUG;
    const ConditionParameters& parameters = shownParameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const ParameterView view = parameters[i].view;
        mParameters[i]->setVisible(view == ParameterView::Field);
        mParameters[i]->setToolTip(parameters[i].meaning ? tr(parameters[i].meaning) : QString());
        if (QComboBox* box = parameterBox(view)) {
            if (view == ParameterView::ConditionWindow)
                EDITOR_DEBUG << "set: mComboBoxWindowKind = " << mParameters[i]->text();
            const QSignalBlocker blocker(box);
            box->setCurrentText(mParameters[i]->text());
            box->show();
        }
    }
}

void Dialog::onValueChanged()
{
    EDITOR_DEBUG;
    if (!mItem)
        return;
    const StepFields now = heldFields();
    const RebuiltStep rebuilt =
        rebuildStep(mItem->step(), mItem->isGroup(), mFields, now, mItem->translation());
    if (shownParameters()[0].view == ParameterView::ConditionWindow)
        EDITOR_DEBUG << "jsonize: mComboBoxWindowKind = " << now.boxes[0];
    const QVariant icon = mModel->icon(Tutorial::getIconKind(now.icon));
    if (now.icon != mFields.icon && icon.isValid())
        mItem->setData(icon, Qt::DecorationRole);
    mFields = now;
    mItem->setStep(rebuilt.step);
    mItem->setData(rebuilt.displayText, Qt::EditRole);
    emit changed();
    pointIndicator(rebuilt.x, rebuilt.y);
}

void Dialog::addField(int i)
{
    QWidget* first = mFormFields.at(i).widgets.first();
    ShownFields fields;
    do
        fields |= mFormFields.at(i++).field;
    while (i < mFormFields.size() && mFormFields.at(i).name.isEmpty());
    showFields(fields);
    adjustComboBox();
    mFields = heldFields();
    first->setFocus();
    mFormArea->ensureWidgetVisible(first);
}

void Dialog::showFields(ShownFields fields)
{
    for (const FormField& field : qAsConst(mFormFields)) {
        for (QWidget* widget : field.widgets) {
            if (fields & field.field)
                widget->show();
        }
    }
}

void Dialog::requestUntr(const QString& key, const QString& text) const
{
    if (TutorialManager::mInstance)
        TutorialManager::mInstance->requestUntr(key, text);
}

void Dialog::checkTreeBox() const
{
    const auto kind = Tutorial::getWindowKind(mFollowWindow->currentText());
    if (TutorialManager::mInstance)
        TutorialManager::mInstance->requestCheckMapEditTreeBox(
            kind == Tutorial::Window_MapEditTreeBox);
}

void Dialog::pointIndicator(int x, int y) const
{
    if (!mItem || mItem->isGroup() || !TutorialManager::mInstance)
        return;
    TutorialManager::mInstance->updateIndicator(x, y,
        Tutorial::getWindowKind(mFollowWindow->currentText()), mHintTranslation->toPlainText(),
        indicatorFlags(mFields), Tutorial::getIconKind(mIcon->currentText()));
}

void Dialog::setCoordinates(int x, int y)
{
    EDITOR_DEBUG << x << y;
    {
        // The step moves once.
        const QSignalBlocker xBlocker(mX);
        const QSignalBlocker yBlocker(mY);
        mX->setText(QString::number(x));
        mY->setText(QString::number(y));
    }
    if (mItem && !mItem->isGroup())
        showFields(XField | YField);
    onValueChanged();
}

void Dialog::setCondition(const QStringList& condition)
{
    EDITOR_DEBUG << condition;
    const QString kind = condition.value(0);
    if (mItem && !mItem->isGroup())
        showFields(ConditionField);
    if (mCondition->currentText() != kind) {
        const QSignalBlocker blocker(mCondition);
        mCondition->setCurrentIndex(mCondition->findText(kind));
        setEditConditionDefault();
    }
    for (std::size_t i = 0; i < mParameters.size() && int(i) + 1 < condition.size(); ++i) {
        const QSignalBlocker blocker(mParameters[i]);
        mParameters[i]->setText(condition.at(int(i) + 1));
    }
    adjustComboBox();
    onValueChanged();
}
