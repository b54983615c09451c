// SPDX-License-Identifier: MIT
#include "editor/form/stepform.h"
#include "editor/scenario/debuglog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStringListModel>
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

StepFields StepForm::fields() const
{
    StepFields held;
    held.x = mX->text();
    held.y = mY->text();
    held.followWindow = mFollowWindow->currentText();
    held.target = mTarget->text();
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
    for (const Field& field : mFields)
        held.shown.setFlag(field.field, !field.widgets.first()->isHidden());
    return held;
}

void StepForm::setFields(const StepFields& fields)
{
    for (QWidget* widget : qAsConst(mEditors))
        widget->blockSignals(true);
    mX->setText(fields.x);
    mY->setText(fields.y);
    mFollowWindow->setCurrentIndex(mFollowWindow->findText(fields.followWindow));
    mTarget->setText(fields.target);
    mComment->setPlainText(fields.comment);
    mCommentTranslation->clear();
    mHint->setPlainText(fields.hint);
    mHintTranslation->clear();
    mCondition->setCurrentIndex(mCondition->findText(fields.condition));
    for (QComboBox* box : mParameterBoxes)
        box->setCurrentIndex(0);
    for (std::size_t i = 0; i < mParameters.size(); ++i) {
        mParameters[i]->setText(fields.parameters[i]);
        mParameters[i]->hide();
    }
    mIcon->setCurrentIndex(mIcon->findText(fields.icon));
    mCommand->setCurrentIndex(mCommand->findText(fields.command));
    mCommandParameter->setText(fields.commandParameter);
    mLabel->setText(fields.label);
    mShowArrow->setChecked(fields.showArrow);

    for (const Field& field : qAsConst(mFields)) {
        for (QWidget* widget : field.widgets)
            widget->setVisible(fields.shown & field.field);
    }
    adjustComboBox();
    // A box that does not know its parameter is left empty, so that each of its
    // rows can be chosen.
    const ConditionParameters& parameters = shownParameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (QComboBox* box = parameterBox(parameters[i].view))
            box->setCurrentIndex(box->findText(fields.boxes[i]));
    }
    for (QWidget* widget : qAsConst(mEditors))
        widget->blockSignals(false);
}

void StepForm::showFields(ShownFields fields)
{
    for (const Field& field : qAsConst(mFields)) {
        for (QWidget* widget : field.widgets) {
            if (fields & field.field)
                widget->show();
        }
    }
}

void StepForm::setPosition(int x, int y)
{
    const QSignalBlocker xBlocker(mX);
    const QSignalBlocker yBlocker(mY);
    mX->setText(QString::number(x));
    mY->setText(QString::number(y));
}

void StepForm::setTarget(const QString& target)
{
    const QSignalBlocker blocker(mTarget);
    mTarget->setText(target);
}

void StepForm::setTargets(const QStringList& targets)
{
    auto* completer = mTarget->completer();
    if (!completer) {
        completer = new QCompleter(mTarget);
        completer->setModel(new QStringListModel(completer));
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        mTarget->setCompleter(completer);
    }
    static_cast<QStringListModel*>(completer->model())->setStringList(targets);
}

void StepForm::setCondition(const QStringList& condition)
{
    const QString kind = condition.value(0);
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
}

const ConditionParameters& StepForm::shownParameters() const
{
    return conditionParameters(Tutorial::getConditionKind(mCondition->currentText()));
}

void StepForm::setEditConditionDefault()
{
    const ConditionParameters& parameters = shownParameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const QSignalBlocker blocker(mParameters[i]);
        if (parameters[i].byDefault)
            mParameters[i]->setText(QLatin1String(parameters[i].byDefault));
    }
}

void StepForm::adjustComboBox()
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

void StepForm::onParameterBoxChanged(const QComboBox* box)
{
    // The fields hold the parameters, also those that a box shows.
    const ConditionParameters& parameters = shownParameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (parameterBox(parameters[i].view) == box)
            mParameters[i]->setText(box->currentText());
    }
}
