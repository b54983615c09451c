// SPDX-License-Identifier: MIT
#include "hostkit/windows/controlobserver.h"

#include "hostkit/windows/windowregistry.h"
#include "tutorial/vocabulary/tutorialaction.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

// Marks a control that is watched already: a window may open more than once.
const char kWatched[] = "tutorialHostWatches";

template <typename Control, typename Watch>
void watchEach(const QObject* window, Watch watch)
{
    const auto controls = window->findChildren<Control*>();
    for (Control* control : controls) {
        if (control->property(kWatched).toBool())
            continue;
        control->setProperty(kWatched, true);
        watch(control);
    }
}

// The lists and maps are seen through what gets their mouse events; the name is
// that of the list itself.
QString listName(const QObject* target)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(target->parent());
    return view && view->viewport() == target ? view->objectName() : target->objectName();
}

// Page and number of a button as the condition counts them.
QStringList buttonAddress(QPushButton* button)
{
    const QWidget* window = button->window();
    int page = 0;
    const QWidget* scope = window;
    if (const auto* tabs = window->findChild<QTabWidget*>()) {
        page = tabs->currentIndex();
        scope = tabs->currentWidget();
    }
    const int number = scope->findChildren<QPushButton*>().indexOf(button);
    return number < 0 ? QStringList() : QStringList{QString::number(page), QString::number(number)};
}

} // namespace

ControlObserver::ControlObserver(const WindowRegistry& registry, QObject* parent)
    : QObject(parent), mRegistry(registry)
{
    connect(&registry, &WindowRegistry::opened, this, &ControlObserver::onOpened);
    connect(&registry, &WindowRegistry::changed, this, &ControlObserver::onWindowChanged);
    connect(qApp, &QApplication::focusChanged, this,
        [this](QWidget*, QWidget* now) { onFocusChanged(now); });
}

QString ControlObserver::windowState(EnumWindowKind window) const
{
    return mRegistry.state(window);
}

std::optional<int> ControlObserver::textLength(EnumWindowKind window) const
{
    const auto* edit = lastFocused<QLineEdit>(window);
    return edit ? std::make_optional(edit->text().size()) : std::nullopt;
}

std::optional<int> ControlObserver::spinBoxValue(EnumWindowKind window) const
{
    const auto* box = lastFocused<QSpinBox>(window);
    return box ? std::make_optional(box->value()) : std::nullopt;
}

std::optional<int> ControlObserver::comboBoxRow(EnumWindowKind window, const QString& name) const
{
    const QWidget* scope = searched(window);
    const auto* box = scope ? scope->findChild<QComboBox*>(name) : nullptr;
    return box ? std::make_optional(box->currentIndex()) : std::nullopt;
}

std::optional<bool> ControlObserver::isChecked(EnumWindowKind window, const QString& name) const
{
    const QWidget* scope = searched(window);
    const auto* box = scope ? scope->findChild<QCheckBox*>(name) : nullptr;
    return box ? std::make_optional(box->isChecked()) : std::nullopt;
}

bool ControlObserver::eventFilter(QObject* watched, QEvent* event)
{
    auto* target = static_cast<QWidget*>(watched);
    const auto mouseEvent = [&](const QString& name) {
        report(Condition_mouseEvent, {listName(target), name}, target);
    };
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            mouseEvent(QStringLiteral("click"));
        break;
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            mouseEvent(QStringLiteral("doubleClick"));
        break;
    case QEvent::ContextMenu:
        mMenuOwner = target;
        // A menu that opens later, from the menu bar, is not this one's.
        QTimer::singleShot(0, this, [this] { mMenuOwner = nullptr; });
        break;
    default:
        break;
    }
    return false;
}

void ControlObserver::onOpened(EnumWindowKind kind, QWidget* window)
{
    if (kind == Window_Popup && mMenuOwner) {
        report(Condition_popup, {listName(mMenuOwner)}, mMenuOwner);
        mMenuOwner = nullptr;
    }
    // What the controls hold is looked at after every change; as something that
    // happened counts only what the user did.
    watchEach<QLineEdit>(window, [this](QLineEdit* edit) {
        connect(edit, &QLineEdit::textChanged, this, &ControlObserver::changed);
        connect(edit, &QLineEdit::textEdited, this, [this, edit](const QString& text) {
            report(
                Condition_textLength, {QStringLiteral(">="), QString::number(text.size())}, edit);
        });
    });
    watchEach<QSpinBox>(window, [this](QSpinBox* box) {
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, box](int value) {
            if (box->hasFocus())
                report(Condition_spinBox, {QStringLiteral("="), QString::number(value)}, box);
            emit changed();
        });
    });
    watchEach<QComboBox>(window, [this](QComboBox* box) {
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ControlObserver::changed);
        connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box](int row) {
            report(Condition_comboBox, {box->objectName(), QString::number(row)}, box);
        });
    });
    watchEach<QCheckBox>(window, [this](QCheckBox* box) {
        connect(box, &QCheckBox::toggled, this, &ControlObserver::changed);
        connect(box, &QCheckBox::clicked, this, [this, box](bool on) {
            report(Condition_checked, {box->objectName(), QString::number(on)}, box);
        });
    });
    watchEach<QPushButton>(window, [this](QPushButton* button) {
        connect(button, &QPushButton::clicked, this,
            [this, button] { report(Condition_pressed, buttonAddress(button), button); });
    });
    watchEach<QAction>(window, [this](QAction* action) {
        connect(action, &QAction::triggered, this, [this, action] {
            emit happened({Condition_action, {action->objectName()}, {}});
        });
    });
    watchEach<QAbstractItemView>(window, [this, window](QAbstractItemView* view) {
        // A combo box's list is a window of its own.
        if (view->window() != window->window())
            return;
        const auto chosen = [this, view](const QModelIndex& index) {
            if (index.isValid())
                report(Condition_list, {QString::number(index.row())}, view);
        };
        connect(view, &QAbstractItemView::clicked, this, chosen);
        connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, chosen);
        view->viewport()->installEventFilter(this);
    });
    if (auto* map = window->findChild<QWidget*>(QStringLiteral("Map")))
        map->installEventFilter(this);
}

void ControlObserver::onWindowChanged(EnumWindowKind kind)
{
    // Menus come and go with every action.
    if (kind != Window_Popup)
        report(Condition_windowState, {TutorialAction::getWindowKindName(kind), windowState(kind)},
            mRegistry.window(kind));
    emit changed();
}

void ControlObserver::onFocusChanged(QWidget* now)
{
    if (!now)
        return;
    mFocused.removeAll(nullptr);
    mFocused.removeAll(now);
    mFocused.prepend(now);
    emit changed();
}

void ControlObserver::report(
    EnumConditionKind kind, const QStringList& parameters, const QWidget* where)
{
    emit happened({kind, parameters, mRegistry.windowsAround(where)});
}

QWidget* ControlObserver::searched(EnumWindowKind window) const
{
    return mRegistry.window(window == WindowKindCount ? Window_MainWindow : window);
}

template <typename Control>
Control* ControlObserver::lastFocused(EnumWindowKind window) const
{
    const QWidget* scope = searched(window);
    for (const QPointer<QWidget>& widget : mFocused) {
        auto* control = qobject_cast<Control*>(widget.data());
        if (control && scope && scope->isAncestorOf(control))
            return control;
    }
    return nullptr;
}
