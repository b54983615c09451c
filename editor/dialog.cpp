// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/document/scenariodocument.h"
#include "editor/form/formarea.h"
#include "editor/form/stepform.h"
#include "editor/history/stephistory.h"
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/noticebar.h"
#include "editor/scenario/debuglog.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QVBoxLayout>

using namespace TutorialEditor;

namespace {

constexpr QSize kIconSize(24, 24);
constexpr int kCompareDelayMs = 300;
const QString kGeometry = QStringLiteral("TutorialEditor.geometry");

template <typename Widget>
Widget* named(Widget* widget, const char* name, const QString& toolTip)
{
    widget->setObjectName(QLatin1String(name));
    widget->setToolTip(toolTip);
    return widget;
}

// A button that Return does not press.
QPushButton* createButton(const char* name, const QString& text, const QString& toolTip)
{
    auto* button = named(new QPushButton(text), name, toolTip);
    button->setAutoDefault(false);
    return button;
}

QVector<QIcon> iconsOf(const Model& model)
{
    QVector<QIcon> icons;
    for (int kind = 0; kind < Tutorial::IconKindCount; ++kind)
        icons << model.icon(static_cast<Tutorial::EnumIconKind>(kind)).value<QIcon>();
    return icons;
}

} // namespace

Dialog::Dialog(QWidget* parent)
    : QDialog(parent), mModel(new Model(this)),
      mDocument(new ScenarioDocument([this] { return getCurrentSteps(); }, this))
{
    connect(this, &Dialog::changed, mDocument, &ScenarioDocument::noteChange);
    setAttribute(Qt::WA_DeleteOnClose);
    setGeometry(QSettings().value(kGeometry, QRect(200, 200, 200, 300)).toRect());
    mForm = new StepForm(iconsOf(*mModel));
    mFormArea = new FormArea(mForm);
    mAddField = createButton(
        "addField", tr("Add field"), tr("Shows a field that the step does not use yet"));
    mAddField->setMenu(new QMenu(mAddField));
    mSave = createButton("save", tr("Save"), tr("Writes the scenario to its file"));
    mNotice = new NoticeBar(this);
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
    layout->addWidget(mNotice);
    // The geometry is the author's, whatever the font.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    setLayout(layout);
    createMenuBar();
    connectForm();
    connectHistory();
    connectLookups();

    QWidget* previous = mTreeView;
    for (QWidget* widget : mForm->editors() + QVector<QWidget*>{mAddField, mSave}) {
        setTabOrder(previous, widget);
        previous = widget;
    }
    linkToEdit(nullptr);
}

void Dialog::showEvent(QShowEvent* event)
{
    if (!event->spontaneous() && !mWasShown && !QSettings().contains(kGeometry))
        growToRead();
    mWasShown = true;
    QDialog::showEvent(event);
}

void Dialog::growToRead()
{
    const QPoint end = screen()->availableGeometry().bottomRight();
    const QSize room = QRect(geometry().topLeft(), end).size();
    resize(size().expandedTo(layout()->totalSizeHint().boundedTo(room)));
}

Dialog::~Dialog()
{
    EDITOR_DEBUG;
    // The view first: it must not speak of a model that goes away.
    mHistory->stack()->disconnect(this);
    mHistory->clear();
    delete mTreeView;
    delete mModel;
}

void Dialog::createTree()
{
    mModel->setColumnCount(1);
    mModel->setHorizontalHeaderItem(0, new QStandardItem(tr("Item")));
    mTreeView = named(new TreeView(this), "steps",
        tr("The steps of the tutorial. Space starts it from the selected step."));
    mHistory = new StepHistory(mModel, mTreeView, this);
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

void Dialog::createMenuBar()
{
    auto* bar = new QMenuBar;
    auto* edit = new QMenu(tr("&Edit"), bar);
    bar->addMenu(edit);
    QUndoStack* stack = mHistory->stack();
    QAction* undo = stack->createUndoAction(this, tr("&Undo"));
    undo->setObjectName(QStringLiteral("undo"));
    undo->setShortcuts(QKeySequence::Undo);
    QAction* redo = stack->createRedoAction(this, tr("&Redo"));
    redo->setObjectName(QStringLiteral("redo"));
    redo->setShortcuts(QKeySequence::Redo);
    edit->addActions({undo, redo});
    layout()->setMenuBar(bar);
}

void Dialog::connectForm()
{
    connect(mForm, &StepForm::xChanged, this, &Dialog::onXChanged);
    connect(mForm, &StepForm::yChanged, this, &Dialog::onYChanged);
    connect(
        mForm, &StepForm::followWindowChanged, this, &Dialog::onFollowWindowCurrentIndexChanged);
    connect(mForm, &StepForm::refWindowClicked, this, &Dialog::onRefWindowClicked);
    connect(mForm, &StepForm::targetChanged, this, &Dialog::onTargetChanged);
    connect(mForm, &StepForm::commentChanged, this, &Dialog::onCommentChanged);
    connect(mForm, &StepForm::hintChanged, this, &Dialog::onHintChanged);
    connect(mForm, &StepForm::conditionChanged, this, &Dialog::onConditionCurrentIndexChanged);
    connect(mForm, &StepForm::conditionParameterChanged, this, &Dialog::onConditionParamChanged);
    connect(mForm, &StepForm::iconChanged, this, &Dialog::onIconCurrentIndexChanged);
    connect(mForm, &StepForm::commandChanged, this, &Dialog::onCommandCurrentIndexChanged);
    connect(mForm, &StepForm::commandParameterChanged, this, &Dialog::onCommandParamChanged);
    connect(mForm, &StepForm::labelChanged, this, &Dialog::onLabelChanged);
    connect(mForm, &StepForm::showArrowChanged, this, &Dialog::onArrowVisibleChanged);
    connect(mForm, &StepForm::fieldAdded, this, &Dialog::onFieldAdded);
    connect(mAddField->menu(), &QMenu::aboutToShow, this, &Dialog::onAddFieldMenu);
    connect(mSave, &QPushButton::clicked, this, &Dialog::onSaveClicked);
    connect(mDocument, &ScenarioDocument::noticed, this, &Dialog::updateNotice);
    connect(mNotice, &NoticeBar::reloadClicked, this, &Dialog::reload);
    for (QWidget* widget : mForm->editors())
        widget->installEventFilter(this);
}

void Dialog::connectHistory()
{
    connect(mForm, &StepForm::fieldEntered, mHistory, &StepHistory::endTyping);
    connect(mHistory, &StepHistory::stepChanged, this, &Dialog::onStepChanged);
    connect(mHistory, &StepHistory::fieldsShown, this, &Dialog::onFieldsShown);
    connect(mHistory, &StepHistory::rowsReturned, this, &Dialog::requestMissing);
    connect(mHistory, &StepHistory::rowsChanged, this, [this] { mTreeView->setFocus(); });
    mCompare.setSingleShot(true);
    mCompare.setInterval(kCompareDelayMs);
    connect(&mCompare, &QTimer::timeout, this, &Dialog::compareWithSaved);
    connect(mHistory->stack(), &QUndoStack::indexChanged, this, &Dialog::updateModified);
    connect(mHistory->stack(), &QUndoStack::cleanChanged, this, &Dialog::updateModified);
}

bool Dialog::eventFilter(QObject* watched, QEvent* event)
{
    // A field's own history must not take the keys of the scenario's.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
