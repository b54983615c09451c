// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/document/scenariodocument.h"
#include "editor/form/formarea.h"
#include "editor/form/textbox.h"
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/scenario/condition.h"
#include "editor/scenario/debuglog.h"
#include "tutorial/vocabulary/tutorialaction.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

using namespace TutorialEditor;

namespace {

constexpr QSize kIconSize(24, 24);
constexpr int kCommentLines = 2;
constexpr int kHintLines = 3;
constexpr int kBoxCharacters = 7; // so many a combo box shows at least
constexpr int kConditionCharacters = 11;

// The actions of the host that a step can wait for. Some names stand for two
// of its actions, so they are listed twice.
const char* const kHostActions[] = {"New", "Edit", "Cut", "Copy", "Paste", "Delete", "Clear",
    "Select All", "Undo", "Redo", "CopyAsText", "CopyAsHTML", "Test", "New Event Page",
    "Copy Event Page", "Paste Event Page", "Clear Event Page", "Transfer", "Door", "Treasure",
    "Inn", "Set Starting Position Player", "Set Starting Position Boat",
    "Set Starting Position Ship", "Set Starting Position Airship", "New Project", "Open Project",
    "Close Project", "Save Project", "Deployment", "Edit Map", "New Map", "New Map", "Load",
    "mapShift", "Generate Dungeon", "Save as Image", "Edit Event", "Edit Event", "eventNew",
    "eventNew", "editCut", "editCopy", "editPaste", "editDelete", "editUndo", "Map", "Event",
    "Pencil", "Rectangle", "Ellipse", "Flood Fill", "Shadow Pen", "Zoom In", "Zoom Out",
    "Actual Size", "Database", "Plugin Manager", "Sound Test", "Event Searcher",
    "Character Generator", "Resource Manager", "Options", "Playtest", "Open Folder", "Contents",
    "About", "Tutorial", "Exit", "Project Loaded"};

// The names of a kind's enumeration, its last value being `last`.
template <typename Kind, typename Name>
QStringList kindNames(int last, Name name)
{
    QStringList names;
    for (int kind = 0; kind <= last; ++kind)
        names << name(static_cast<Kind>(kind));
    return names;
}

QStringList windowKindNames()
{
    return kindNames<Tutorial::EnumWindowKind>(
        Tutorial::WindowKindCount - 1, TutorialAction::getWindowKindName);
}

QStringList hostActions()
{
    QStringList names;
    for (const char* name : kHostActions)
        names << QLatin1String(name);
    return names;
}

template <typename Widget>
Widget* named(Widget* widget, const char* name, const QString& toolTip)
{
    widget->setObjectName(QLatin1String(name));
    widget->setToolTip(toolTip);
    return widget;
}

QComboBox* createBox(const char* name, const QStringList& rows, const QString& toolTip)
{
    auto* box = named(new QComboBox, name, toolTip);
    box->addItems(rows);
    // Not as wide as the longest name, so that the row fits a narrow window.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(kBoxCharacters);
    return box;
}

// A button that Return does not press.
QPushButton* createButton(const char* name, const QString& text, const QString& toolTip)
{
    auto* button = named(new QPushButton(text), name, toolTip);
    button->setAutoDefault(false);
    return button;
}

struct RowWidget {
    QWidget* widget;
    int stretch; // its share of the row's width
};

// A row of the form; the label belongs to the first widget.
QHBoxLayout* addRow(QFormLayout* form, QLabel* label, const QVector<RowWidget>& widgets)
{
    auto* row = new QHBoxLayout;
    for (const RowWidget& entry : widgets)
        row->addWidget(entry.widget, entry.stretch);
    form->addRow(label, row);
    label->setBuddy(widgets.first().widget);
    return row;
}

// One place for widgets of which at most one is shown.
QLayout* createSlot(const QVector<QWidget*>& widgets)
{
    auto* slot = new QGridLayout;
    for (QWidget* widget : widgets)
        slot->addWidget(widget, 0, 0);
    return slot;
}

} // namespace

Dialog::Dialog(QWidget* parent)
    : QDialog(parent), mModel(new Model(this)),
      mDocument(new ScenarioDocument([this] { return getCurrentSteps(); }, this))
{
    connect(this, &Dialog::changed, mDocument, &ScenarioDocument::noteChange);
    setAttribute(Qt::WA_DeleteOnClose);
    setGeometry(QSettings()
                    .value(QStringLiteral("TutorialEditor.geometry"), QRect(200, 200, 200, 300))
                    .toRect());
    mFormArea = new FormArea(createForm());
    mAddField = createButton(
        "addField", tr("Add field"), tr("Shows a field that the step does not use yet"));
    mAddField->setMenu(new QMenu(mAddField));
    mSave = createButton("save", tr("Save"), tr("Writes the scenario to its file"));
    // The tree speaks to the form as soon as it has its model.
    createTree();
    createContextMenu();

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(mAddField);
    buttons->addStretch();
    buttons->addWidget(mSave);

    auto* layout = new QBoxLayout(QBoxLayout::TopToBottom);
    layout->addWidget(mTreeView, 1);
    layout->addWidget(mFormArea);
    layout->addLayout(buttons);
    // The geometry is the author's, whatever the font.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    setLayout(layout);
    connectForm();

    QWidget* previous = mTreeView;
    for (QWidget* widget : formWidgets() + QVector<QWidget*>{mAddField, mSave}) {
        setTabOrder(previous, widget);
        previous = widget;
    }
    linkToEdit(nullptr);
}

Dialog::~Dialog()
{
    EDITOR_DEBUG;
    // The view first: it must not speak of a model that goes away.
    delete mTreeView;
    delete mModel;
}

void Dialog::createTree()
{
    mModel->setColumnCount(1);
    mModel->setHorizontalHeaderItem(0, new QStandardItem(tr("Item")));
    mTreeView = named(new TreeView(this), "steps",
        tr("The steps of the tutorial. Space starts it from the selected step."));
    mTreeView->setIconSize(kIconSize);
    mTreeView->setUniformRowHeights(true);
    mTreeView->setModel(mModel);
    mTreeView->setSelectionMode(QAbstractItemView::ContiguousSelection);
    mTreeView->setContextMenuPolicy(Qt::CustomContextMenu);

    // An item that goes away must not stay in the form.
    connect(mModel, &Model::rowsAboutToBeRemoved, this,
        [this](const QModelIndex& level, int first, int last) {
            if (isInForm(level, first, last))
                linkToEdit(nullptr);
        });
    connect(mModel, &Model::modelAboutToBeReset, this, [this] { linkToEdit(nullptr); });
    connect(mModel, &Model::rowsInserted, this, &Dialog::changed);
    connect(mModel, &Model::rowsRemoved, this, &Dialog::changed);

    connect(mTreeView, &QWidget::customContextMenuRequested, this,
        &Dialog::onCustomContextMenuRequested);
    connect(mTreeView, &TreeView::startTriggered, this, &Dialog::onStartTriggered);
    connect(mTreeView, &TreeView::newTriggered, this, &Dialog::onNewTriggered);
    connect(mTreeView, &TreeView::cutTriggered, this, &Dialog::onCutTriggered);
    connect(mTreeView, &TreeView::deleteTriggered, this, &Dialog::onDeleteTriggered);
    connect(mTreeView, &TreeView::copyTriggered, this, &Dialog::onCopyTriggered);
    connect(mTreeView, &TreeView::pasteTriggered, this, &Dialog::onPasteTriggered);
    connect(mTreeView, &TreeView::groupingTriggered, this, &Dialog::onGroupingTriggered);
    connect(mTreeView, &TreeView::ungroupingTriggered, this, &Dialog::onUngroupingTriggered);
    connect(mTreeView, &TreeView::mousePosTriggered, this, &Dialog::onMousePosTriggered);
}

void Dialog::createContextMenu()
{
    mContextMenu = new QMenu(this);
    const auto add = [this](const QString& text, const QList<QKeySequence>& shortcuts,
                         const QString& statusTip, void (Dialog::*slot)()) {
        auto* action = new QAction(text, this);
        action->setShortcuts(shortcuts);
        action->setStatusTip(statusTip);
        connect(action, &QAction::triggered, this, slot);
        mContextMenu->addAction(action);
    };
    const auto keys = QKeySequence::keyBindings;
    add(tr("&Start"), keys(QKeySequence::Forward), tr("Start from here"),
        &Dialog::onStartTriggered);
    mContextMenu->addSeparator();
    add(tr("&New"), {QKeySequence(Qt::Key_Enter)}, tr("New"), &Dialog::onNewTriggered);
    mContextMenu->addSeparator();
    add(tr("&Cut"), keys(QKeySequence::Cut), tr("Cut item(s)"), &Dialog::onCutTriggered);
    add(tr("&Copy"), keys(QKeySequence::Copy), tr("Copy item(s)"), &Dialog::onCopyTriggered);
    add(tr("&Paste"), keys(QKeySequence::Paste), tr("Paste item(s)"), &Dialog::onPasteTriggered);
    mContextMenu->addSeparator();
    add(tr("&Grouping"), keys(QKeySequence::Bold), tr("Move item(s) into a new group"),
        &Dialog::onGroupingTriggered);
    add(tr("&Ungrouping"), keys(QKeySequence::Italic), tr("Take item(s) out of the group"),
        &Dialog::onUngroupingTriggered);
}

QWidget* Dialog::createForm()
{
    auto* form = new QWidget;
    auto* layout = new QFormLayout(form);
    layout->setContentsMargins(0, 0, 0, 0);

    mX = named(new QLineEdit, "x",
        tr("Pixels from the left edge of the followed window to the point that the step shows"));
    mY = named(new QLineEdit, "y",
        tr("Pixels from the top edge of the followed window to the point that the step shows"));
    mFollowWindow = createBox("followWindow", windowKindNames(),
        tr("The window of the editor that the indicator follows"));
    mRefWindow = createButton("refWindow", tr("RefWindow"),
        tr("Follows the window of the editor that was in front last"));
    auto* xLabel = new QLabel(tr("X:"));
    auto* yLabel = new QLabel(tr("Y:"));
    addRow(layout, xLabel, {{mX, 1}, {yLabel, 0}, {mY, 1}, {mFollowWindow, 2}, {mRefWindow, 0}});
    yLabel->setBuddy(mY);

    mComment = named(new TextBox(kCommentLines), "comment", tr("A note of the author's"));
    mCommentTranslation = named(new QLabel, "commentTranslation", tr("The note, translated"));
    mCommentTranslation->setWordWrap(true);
    mCommentTranslation->setTextFormat(Qt::PlainText);
    auto* commentLabel = new QLabel(tr("log comment:"));
    addRow(layout, commentLabel, {{mComment, 1}, {mCommentTranslation, 1}});

    mHint = named(new TextBox(kHintLines), "hint",
        tr("What the balloon says; qsTr(\"…\") around it makes it translatable"));
    mHintTranslation = named(new TextBox(kHintLines), "hintTranslation",
        tr("The hint as the learner sees it, translated by the editor"));
    mHintTranslation->setReadOnly(true);
    auto* hintLabel = new QLabel(tr("hint:"));
    addRow(layout, hintLabel, {{mHint, 1}, {mHintTranslation, 1}});

    mCondition = createBox("condition",
        kindNames<Tutorial::EnumConditionKind>(
            Tutorial::ConditionKindCount - 1, Tutorial::getConditionKindName),
        tr("What the learner has to do before the next step comes"));
    mParameterBoxes = {
        createBox("conditionWindow", windowKindNames(), tr("The window that is waited for")),
        createBox("windowState",
            {QStringLiteral("open"), QStringLiteral("close"), QStringLiteral("ok"),
                QStringLiteral("cancel")},
            tr("What has to happen to the window")),
        createBox("list",
            {QStringLiteral("listBox1"), QStringLiteral("listBox2"), QStringLiteral("Map")},
            tr("Where the mouse has to be used")),
        createBox("mouseEvent", {QStringLiteral("click"), QStringLiteral("doubleClick")},
            tr("What the mouse has to do")),
        createBox("comparison",
            {QStringLiteral("="), QStringLiteral("<"), QStringLiteral("<="), QStringLiteral(">"),
                QStringLiteral(">="), QStringLiteral("!=")},
            tr("How the value has to compare with the number beside")),
        createBox("hostAction", hostActions(), tr("The action that has to be chosen")),
    };
    mParameters = {
        named(new QLineEdit, "parameter1", QString()),
        named(new QLineEdit, "parameter2", QString()),
        named(new QLineEdit, "parameter3", QString()),
    };
    mCondition->setMinimumContentsLength(kConditionCharacters);
    auto* conditionLabel = new QLabel(tr("condition:"));
    QHBoxLayout* conditionRow = addRow(layout, conditionLabel, {{mCondition, 1}});
    conditionRow->addLayout(
        createSlot({parameterBox(ParameterView::ConditionWindow), parameterBox(ParameterView::List),
            parameterBox(ParameterView::Comparison), parameterBox(ParameterView::HostAction),
            mParameters[0]}),
        2);
    conditionRow->addLayout(createSlot({parameterBox(ParameterView::WindowState),
                                parameterBox(ParameterView::MouseEvent), mParameters[1]}),
        1);
    conditionRow->addWidget(mParameters[2], 1);

    mIcon = createBox("icon", {}, tr("The picture beside the arrow"));
    for (int kind = 0; kind < Tutorial::IconKindCount; ++kind) {
        const auto iconKind = static_cast<Tutorial::EnumIconKind>(kind);
        mIcon->addItem(mModel->icon(iconKind).value<QIcon>(), Tutorial::getIconKindName(iconKind));
    }
    mIcon->setIconSize(kIconSize);

    mCommand = createBox("command",
        kindNames<Tutorial::EnumCommandKind>(
            Tutorial::CommandKindCount, Tutorial::getCommandKindName),
        tr("What the editor does when the step begins; the empty row is nothing"));
    mCommandParameter = named(new QLineEdit, "commandParameter", tr("What the command works on"));
    auto* iconLabel = new QLabel(tr("icon:"));
    auto* commandLabel = new QLabel(tr("command:"));
    addRow(
        layout, iconLabel, {{mIcon, 1}, {commandLabel, 0}, {mCommand, 1}, {mCommandParameter, 1}});
    commandLabel->setBuddy(mCommand);

    mLabel = named(new QLineEdit, "label", tr("The name by which other steps go to this one"));
    mShowArrow = named(new QCheckBox(tr("Show arrow")), "showArrow",
        tr("Whether the arrow points at the step's point"));
    auto* labelLabel = new QLabel(tr("label:"));
    addRow(layout, labelLabel, {{mLabel, 1}, {mShowArrow, 0}});

    mFormFields = {
        {XField, tr("Position"), {mX, xLabel}},
        {YField, QString(), {mY, yLabel}},
        {FollowWindowField, tr("Followed window"), {mFollowWindow}},
        {CommentField, tr("Comment"), {mComment, commentLabel, mCommentTranslation}},
        {HintField, tr("Hint"), {mHint, hintLabel, mHintTranslation}},
        {ConditionField, tr("Condition"), {mCondition, conditionLabel}},
        {IconField, tr("Icon"), {mIcon, iconLabel}},
        {LabelField, tr("Label"), {mLabel, labelLabel}},
        {CommandField, tr("Command"), {mCommand, commandLabel}},
        {CommandParameterField, QString(), {mCommandParameter}},
        {ShowArrowField, tr("Hidden arrow"), {mShowArrow}},
    };
    // The form keeps its shape while fields come and go.
    for (QWidget* widget : form->findChildren<QWidget*>()) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
    return form;
}

void Dialog::connectForm()
{
    connect(mX, &QLineEdit::textChanged, this, &Dialog::onXChanged);
    connect(mY, &QLineEdit::textChanged, this, &Dialog::onYChanged);
    connect(mFollowWindow, &QComboBox::currentTextChanged, this,
        &Dialog::onFollowWindowCurrentIndexChanged);
    connect(mRefWindow, &QPushButton::clicked, this, &Dialog::onRefWindowClicked);
    connect(mComment, &QTextEdit::textChanged, this, &Dialog::onCommentChanged);
    connect(mHint, &QTextEdit::textChanged, this, &Dialog::onHintChanged);
    connect(
        mCondition, &QComboBox::currentTextChanged, this, &Dialog::onConditionCurrentIndexChanged);
    for (QComboBox* box : mParameterBoxes)
        connect(box, &QComboBox::currentTextChanged, this, &Dialog::onConditionBoxChanged);
    for (QLineEdit* parameter : mParameters)
        connect(parameter, &QLineEdit::textChanged, this, &Dialog::onConditionParamChanged);
    connect(mIcon, &QComboBox::currentTextChanged, this, &Dialog::onIconCurrentIndexChanged);
    connect(mCommand, &QComboBox::currentTextChanged, this, &Dialog::onCommandCurrentIndexChanged);
    connect(mCommandParameter, &QLineEdit::textChanged, this, &Dialog::onCommandParamChanged);
    connect(mLabel, &QLineEdit::textChanged, this, &Dialog::onLabelChanged);
    connect(mShowArrow, &QCheckBox::stateChanged, this, &Dialog::onArrowVisibleChanged);
    connect(mAddField->menu(), &QMenu::aboutToShow, this, &Dialog::onAddFieldMenu);
    connect(mSave, &QPushButton::clicked, this, &Dialog::onSaveClicked);

    for (QWidget* widget : formWidgets()) {
        if (qobject_cast<QComboBox*>(widget))
            widget->installEventFilter(this);
    }
}

QVector<QWidget*> Dialog::formWidgets() const
{
    QVector<QWidget*> widgets{
        mX, mY, mFollowWindow, mRefWindow, mComment, mHint, mHintTranslation, mCondition};
    for (QComboBox* box : mParameterBoxes)
        widgets << box;
    for (QLineEdit* parameter : mParameters)
        widgets << parameter;
    return widgets << mIcon << mCommand << mCommandParameter << mLabel << mShowArrow;
}

QComboBox* Dialog::parameterBox(ParameterView view) const
{
    return isBox(view)
        ? mParameterBoxes.at(std::size_t(view) - std::size_t(ParameterView::ConditionWindow))
        : nullptr;
}

bool Dialog::eventFilter(QObject* watched, QEvent* event)
{
    // Scrolling the form must not change the box that comes below the cursor.
    const auto* box = qobject_cast<QComboBox*>(watched);
    if (event->type() != QEvent::Wheel || !box || box->hasFocus())
        return QDialog::eventFilter(watched, event);
    event->ignore();
    return true;
}
