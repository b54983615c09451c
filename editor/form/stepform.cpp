// SPDX-License-Identifier: MIT
#include "editor/form/stepform.h"

#include "editor/form/formrows.h"
#include "editor/form/textbox.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

using namespace TutorialEditor;

namespace {

constexpr QSize kIconSize(24, 24);

QWidget* createWidget(const FormCell& cell)
{
    switch (cell.kind) {
    case FormCell::Line:
        return new QLineEdit;
    case FormCell::Note: {
        auto* note = new QLabel;
        note->setWordWrap(true);
        note->setTextFormat(Qt::PlainText);
        return note;
    }
    case FormCell::Text:
        return new TextBox(cell.size);
    case FormCell::ReadOnlyText: {
        auto* box = new TextBox(cell.size);
        box->setReadOnly(true);
        return box;
    }
    case FormCell::Box: {
        auto* box = new QComboBox;
        box->addItems(boxRows(cell.name));
        // Not as wide as the longest name, so that the row fits a narrow window.
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(cell.size);
        return box;
    }
    case FormCell::Button: {
        // Return does not press it.
        auto* button = new QPushButton(cell.label);
        button->setAutoDefault(false);
        return button;
    }
    case FormCell::CheckBox:
        return new QCheckBox(cell.label);
    }
    return nullptr;
}

bool hasTextOfItsOwn(const FormCell& cell)
{
    return cell.kind == FormCell::Button || cell.kind == FormCell::CheckBox;
}

} // namespace

// Makes the widgets of the table's rows.
struct StepForm::Builder {
    Q_DISABLE_COPY(Builder)

    explicit Builder(StepForm* parent) : form(*parent), layout(new QFormLayout(parent))
    {
        layout->setContentsMargins(0, 0, 0, 0);
        for (const FormRow& row : formRows())
            addRow(row);
    }

    void addRow(const FormRow& cells)
    {
        auto* row = new QHBoxLayout;
        auto* rowLabel = new QLabel(cells.first().label);
        QGridLayout* place = nullptr;
        int lastPlace = 0;
        for (const FormCell& cell : cells) {
            QWidget* widget = createWidget(cell);
            widget->setObjectName(QLatin1String(cell.name));
            widget->setToolTip(cell.toolTip);
            QLabel* label = nullptr;
            if (&cell == &cells.first()) {
                label = rowLabel;
            } else if (!cell.label.isEmpty() && !hasTextOfItsOwn(cell)) {
                label = new QLabel(cell.label);
                row->addWidget(label);
            }
            if (label)
                label->setBuddy(widget);
            if (cell.place && cell.place == lastPlace) {
                place->addWidget(widget, 0, 0);
            } else if (cell.place) {
                place = new QGridLayout;
                place->addWidget(widget, 0, 0);
                row->addLayout(place, cell.stretch);
            } else {
                row->addWidget(widget, cell.stretch);
            }
            lastPlace = cell.place;
            note(cell, widget, label);
        }
        layout->addRow(rowLabel, row);
    }

    void note(const FormCell& cell, QWidget* widget, QLabel* label)
    {
        if (cell.kind != FormCell::Note)
            form.mEditors << widget;
        if (!cell.field)
            return;
        const auto field = static_cast<StepField>(cell.field);
        const bool isOfLast = !form.mFields.isEmpty() && form.mFields.last().field == field;
        if (!isOfLast)
            form.mFields.append({field, cell.addedAs, {}});
        form.mFields.last().widgets << widget;
        if (label)
            form.mFields.last().widgets << label;
    }

    template <typename Widget>
    void find(Widget** widget, const char* name) const
    {
        *widget = form.findChild<Widget*>(QLatin1String(name));
        Q_ASSERT(*widget);
    }

    StepForm& form;
    QFormLayout* layout;
};

StepForm::StepForm(const QVector<QIcon>& icons)
{
    const Builder builder(this);
    builder.find(&mX, "x");
    builder.find(&mY, "y");
    builder.find(&mFollowWindow, "followWindow");
    builder.find(&mRefWindow, "refWindow");
    builder.find(&mTarget, "target");
    builder.find(&mComment, "comment");
    builder.find(&mCommentTranslation, "commentTranslation");
    builder.find(&mHint, "hint");
    builder.find(&mHintTranslation, "hintTranslation");
    builder.find(&mCondition, "condition");
    const char* const boxes[] = {
        "conditionWindow", "windowState", "list", "mouseEvent", "comparison", "hostAction"};
    for (std::size_t i = 0; i < mParameterBoxes.size(); ++i)
        builder.find(&mParameterBoxes[i], boxes[i]);
    const char* const parameters[] = {"parameter1", "parameter2", "parameter3"};
    for (std::size_t i = 0; i < mParameters.size(); ++i)
        builder.find(&mParameters[i], parameters[i]);
    builder.find(&mIcon, "icon");
    builder.find(&mCommand, "command");
    builder.find(&mCommandParameter, "commandParameter");
    builder.find(&mLabel, "label");
    builder.find(&mShowArrow, "showArrow");

    mIcon->setIconSize(kIconSize);
    const int count = std::min(static_cast<int>(icons.size()), mIcon->count());
    for (int kind = 0; kind < count; ++kind)
        mIcon->setItemIcon(kind, icons.at(kind));
    for (QWidget* widget : findChildren<QWidget*>()) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
    // The program has one history, which is not the boxes'.
    for (auto* box : {mComment, mHint})
        box->setUndoRedoEnabled(false);
    connectWidgets();
}

void StepForm::connectWidgets()
{
    connect(mX, &QLineEdit::textChanged, this, &StepForm::xChanged);
    connect(mY, &QLineEdit::textChanged, this, &StepForm::yChanged);
    connect(mFollowWindow, &QComboBox::currentTextChanged, this, &StepForm::followWindowChanged);
    connect(mRefWindow, &QPushButton::clicked, this, &StepForm::refWindowClicked);
    connect(mTarget, &QLineEdit::textChanged, this, &StepForm::targetChanged);
    connect(mComment, &QTextEdit::textChanged, this, &StepForm::commentChanged);
    connect(mHint, &QTextEdit::textChanged, this, &StepForm::hintChanged);
    connect(mCondition, &QComboBox::currentTextChanged, this, [this](const QString& text) {
        setEditConditionDefault();
        adjustComboBox();
        emit conditionChanged(text);
    });
    for (QComboBox* box : mParameterBoxes)
        connect(
            box, &QComboBox::currentTextChanged, this, [this, box] { onParameterBoxChanged(box); });
    for (std::size_t i = 0; i < mParameters.size(); ++i)
        connect(mParameters[i], &QLineEdit::textChanged, this,
            [this, i](const QString& text) { emit conditionParameterChanged(text, int(i)); });
    connect(mIcon, &QComboBox::currentTextChanged, this, &StepForm::iconChanged);
    connect(mCommand, &QComboBox::currentTextChanged, this, &StepForm::commandChanged);
    connect(mCommandParameter, &QLineEdit::textChanged, this, &StepForm::commandParameterChanged);
    connect(mLabel, &QLineEdit::textChanged, this, &StepForm::labelChanged);
    connect(mShowArrow, &QCheckBox::stateChanged, this, &StepForm::showArrowChanged);
    for (QWidget* widget : qAsConst(mEditors))
        widget->installEventFilter(this);
}

QComboBox* StepForm::parameterBox(ParameterView view) const
{
    return isBox(view)
        ? mParameterBoxes.at(std::size_t(view) - std::size_t(ParameterView::ConditionWindow))
        : nullptr;
}

bool StepForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        emit fieldEntered();
    auto* line = qobject_cast<QLineEdit*>(watched);
    if (event->type() == QEvent::ContextMenu && line) {
        showMenu(line, static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    // Scrolling the form must not change the box that comes below the cursor.
    const auto* box = qobject_cast<QComboBox*>(watched);
    if (event->type() != QEvent::Wheel || !box || box->hasFocus())
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

void StepForm::showMenu(QLineEdit* line, const QPoint& place)
{
    QMenu* menu = line->createStandardContextMenu();
    // Its Undo and Redo are the line's, which has no history of its own here.
    const QList<QAction*> actions = menu->actions();
    constexpr int kOwnHistory = 3; // with the separator behind it
    if (actions.size() > kOwnHistory && actions.at(kOwnHistory - 1)->isSeparator()) {
        for (int i = 0; i < kOwnHistory; ++i)
            delete actions.at(i);
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(place);
}

void StepForm::setRefWindowEnabled(bool enabled)
{
    mRefWindow->setEnabled(enabled);
}

void StepForm::setFollowWindow(Tutorial::EnumWindowKind kind)
{
    mFollowWindow->setCurrentIndex(kind == Tutorial::WindowKindCount ? 0 : kind);
}

QString StepForm::hintTranslation() const
{
    return mHintTranslation->toPlainText();
}

void StepForm::setHintTranslation(const QString& text)
{
    mHintTranslation->setPlainText(text);
}

void StepForm::setCommentTranslation(const QString& text)
{
    mCommentTranslation->setText(text);
}

void StepForm::fillFieldMenu(QMenu* menu, bool isGroup)
{
    menu->clear();
    for (int i = 0; i < mFields.size(); ++i) {
        const Field& field = mFields.at(i);
        const bool isOffered = !field.name.isEmpty() && field.widgets.first()->isHidden();
        const bool isOfGroups = field.field == HintField || field.field == LabelField;
        if (isOffered && (isOfGroups || !isGroup))
            connect(
                menu->addAction(field.name), &QAction::triggered, this, [this, i] { addField(i); });
    }
    if (menu->isEmpty())
        menu->addAction(tr("All fields are shown"))->setEnabled(false);
}

void StepForm::addField(int i)
{
    const Field& first = mFields.at(i);
    ShownFields fields;
    do
        fields |= mFields.at(i++).field;
    while (i < mFields.size() && mFields.at(i).name.isEmpty());
    showFields(fields);
    adjustComboBox();
    emit fieldAdded(fields, first.name, first.widgets.first());
}

QString StepForm::fieldName(StepField field) const
{
    if (field >= ParameterField1 && field <= ParameterField3)
        return fieldName(ConditionField);
    QString name;
    for (const Field& candidate : mFields) {
        if (!candidate.name.isEmpty())
            name = candidate.name;
        if (candidate.field == field)
            break;
    }
    return name;
}

void StepForm::focusField(StepField field)
{
    QWidget* widget = nullptr;
    if (field >= ParameterField1 && field <= ParameterField3) {
        int parameter = 0;
        while (parameterField(parameter) != field)
            ++parameter;
        QComboBox* box = parameterBox(shownParameters()[std::size_t(parameter)].view);
        widget = box ? static_cast<QWidget*>(box) : mParameters[std::size_t(parameter)];
    }
    for (const Field& candidate : qAsConst(mFields)) {
        // Of several fields the first.
        if (!widget && candidate.field & field)
            widget = candidate.widgets.first();
    }
    if (widget && !widget->isHidden())
        widget->setFocus();
}
