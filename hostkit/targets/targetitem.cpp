// SPDX-License-Identifier: MIT
#include "hostkit/targets/targetitem.h"

#include "hostkit/targets/widgetsearch.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <functional>

using namespace TutorialHost;

namespace {

// Qt's names for the buttons that show what has no room.
const QLatin1String kScrollBack("ScrollLeftButton");
const QLatin1String kScrollOn("ScrollRightButton");
const QLatin1String kMoreMenus("qt_menubar_ext_button");

// Tabs, and the entries of menus: a row of texts.
struct Row {
    int count;
    std::function<QString(int)> text;
};

QList<QAction*> entriesOf(const QWidget* menu)
{
    QList<QAction*> entries = menu->actions();
    entries.erase(
        std::remove_if(entries.begin(), entries.end(),
            [](const QAction* entry) { return entry->isSeparator() || !entry->isVisible(); }),
        entries.end());
    return entries;
}

// The same rectangle, or an empty one when Qt put it under such a button.
QRect exposed(const QWidget& holder, const QRect& rect)
{
    for (const QLatin1String& name : {kScrollBack, kScrollOn, kMoreMenus}) {
        const auto* button = holder.findChild<QToolButton*>(name, Qt::FindDirectChildrenOnly);
        if (button && button->isVisible() && button->geometry().contains(rect.center()))
            return {};
    }
    return rect;
}

Row rowOf(const QWidget* holder)
{
    if (const auto* tabs = qobject_cast<const QTabBar*>(holder))
        return {tabs->count(), [tabs](int i) { return tabs->tabText(i); }};
    const QList<QAction*> entries = entriesOf(holder);
    return {int(entries.size()), [entries](int i) { return entries.at(i)->text(); }};
}

int find(const Row& row, const TargetPath::Item& item)
{
    if (const int number = item.number(); number >= 0 && number < row.count)
        return number;
    const QString wanted = plainText(item.text);
    for (int i = 0; i < row.count; ++i) {
        if (plainText(row.text(i)) == wanted)
            return i;
    }
    return -1;
}

TargetPath::Item itemOf(const Row& row, int number)
{
    const QString text = plainText(row.text(number));
    TargetPath::Item item{text, true};
    item.quoted = TargetPath::Item{text, false}.number() >= 0;
    if (!text.isEmpty() && find(row, item) == number)
        return item;
    return {QString::number(number), false};
}

bool reads(const QModelIndex& index, const QString& wanted)
{
    const QString text = index.data().toString();
    // Most texts are told apart by what needs no copy.
    return text == wanted || (text.size() >= wanted.size() && plainText(text) == wanted);
}

// A cell with this text below the parent, at any depth when deep is set.
QModelIndex find(const QAbstractItemModel& model, const QModelIndex& parent, const QString& text,
    int column, bool deep)
{
    const int columns = model.columnCount(parent);
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int i = column < 0 ? 0 : column; i < (column < 0 ? columns : column + 1); ++i) {
            const QModelIndex index = model.index(row, i, parent);
            if (reads(index, text))
                return index;
        }
    }
    for (int row = 0; deep && row < model.rowCount(parent); ++row) {
        const QModelIndex found = find(model, model.index(row, 0, parent), text, column, deep);
        if (found.isValid())
            return found;
    }
    return {};
}

// column: the only one that is looked at; -1 for all.
QModelIndex find(const QAbstractItemModel& model, const QModelIndex& root,
    const QVector<TargetPath::Item>& items, int column)
{
    QModelIndex index = root;
    for (int level = 0; level < items.size(); ++level) {
        const TargetPath::Item& item = items.at(level);
        // Rows hang on the first column, whichever cell was found.
        const QModelIndex parent = level > 0 ? index.sibling(index.row(), 0) : index;
        const int number = item.number();
        if (number >= 0 && number < model.rowCount(parent))
            index = model.index(number, qMax(column, 0), parent);
        else
            index = find(model, parent, plainText(item.text), column, items.size() == 1);
        if (!index.isValid())
            return {};
    }
    return index;
}

// The open list of a combo box; null while it is closed.
QAbstractItemView* popupOf(const QComboBox& box)
{
    auto* view = box.findChild<QAbstractItemView*>();
    return view && view->isVisible() ? view : nullptr;
}

QVector<TargetPath::Item> pathOf(const QAbstractItemView& view, const QModelIndex& index)
{
    const QAbstractItemModel& model = *view.model();
    const QString text = plainText(index.data().toString());
    TargetPath::Item item{text, TargetPath::Item{text, false}.number() >= 0};
    const auto isFound = [&](const QVector<TargetPath::Item>& path) {
        const QModelIndex found = find(model, view.rootIndex(), path, -1);
        return found.row() == index.row() && found.parent() == index.parent();
    };
    if (!text.isEmpty() && isFound({item}))
        return {item};
    QVector<TargetPath::Item> rows;
    for (QModelIndex one = index; one.isValid() && one != view.rootIndex(); one = one.parent())
        rows.prepend({QString::number(one.row()), false});
    return isFound(rows) ? rows : QVector<TargetPath::Item>();
}

} // namespace

std::optional<TargetItem> TargetItem::find(QWidget* widget, const QVector<TargetPath::Item>& items)
{
    TargetItem item;
    item.holder = widget;
    if (auto* box = qobject_cast<QComboBox*>(widget)) {
        item.index = ::find(*box->model(), box->rootModelIndex(), items, box->modelColumn());
        item.view = popupOf(*box);
        item.isBehind = !item.view;
        if (item.view)
            item.holder = item.view->viewport();
        return item.index.isValid() ? std::make_optional(item) : std::nullopt;
    }
    if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
        if (view->model())
            item.index = ::find(*view->model(), view->rootIndex(), items, -1);
        item.view = view;
        item.holder = view->viewport();
        return item.index.isValid() ? std::make_optional(item) : std::nullopt;
    }
    auto* tabs = qobject_cast<QTabWidget*>(widget);
    if (tabs)
        item.holder = tabs->tabBar();
    const bool isRow = tabs || qobject_cast<QTabBar*>(widget) || qobject_cast<QMenu*>(widget)
        || qobject_cast<QMenuBar*>(widget);
    if (!isRow || items.size() != 1)
        return {};
    item.number = ::find(rowOf(item.holder), items.first());
    if (item.number < 0)
        return {};
    if (tabs)
        item.page = tabs->widget(item.number);
    return item;
}

QVector<TargetPath::Item> TargetItem::at(QWidget* widget, const QPoint& point)
{
    if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
        const QModelIndex index = view->indexAt(view->viewport()->mapFromGlobal(point));
        return index.isValid() ? pathOf(*view, index) : QVector<TargetPath::Item>();
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(widget))
        widget = tabs->tabBar();
    const QPoint local = widget->mapFromGlobal(point);
    int number = -1;
    if (auto* tabs = qobject_cast<QTabBar*>(widget))
        number = tabs->rect().contains(local) ? tabs->tabAt(local) : -1;
    else if (auto* menu = qobject_cast<QMenu*>(widget))
        number = entriesOf(menu).indexOf(menu->actionAt(local));
    else if (auto* bar = qobject_cast<QMenuBar*>(widget))
        number = entriesOf(bar).indexOf(bar->actionAt(local));
    if (number < 0)
        return {};
    return {itemOf(rowOf(widget), number)};
}

TargetPath::Item TargetItem::ofTab(const QTabWidget& tabs, int number)
{
    return itemOf(rowOf(tabs.tabBar()), number);
}

QRect TargetItem::entryOf(const QWidget& menu, const QAction& action)
{
    auto* entry = const_cast<QAction*>(&action);
    if (const auto* open = qobject_cast<const QMenu*>(&menu))
        return open->actionGeometry(entry);
    const auto* bar = qobject_cast<const QMenuBar*>(&menu);
    // What has no room stands in the menu of a button; where its rectangle is then
    // depends on Qt's version.
    const auto* more = menu.findChild<QToolButton*>(kMoreMenus, Qt::FindDirectChildrenOnly);
    if (more && more->isVisible() && more->menu() && more->menu()->actions().contains(entry))
        return QRect();
    return bar ? exposed(menu, bar->actionGeometry(entry)) : QRect();
}

QRect TargetItem::rect() const
{
    if (isBehind)
        return holder->rect();
    if (view)
        return view->visualRect(index);
    if (const auto* tabs = qobject_cast<const QTabBar*>(holder))
        return exposed(*holder, tabs->tabRect(number));
    const QAction* entry = entriesOf(holder).value(number);
    return entry ? entryOf(*holder, *entry) : QRect();
}

void TargetItem::scrollTo() const
{
    if (view)
        view->scrollTo(index);
}

std::optional<TargetItem::Lead> TargetItem::lead() const
{
    if (view) {
        for (QModelIndex one = index.parent(); one.isValid(); one = one.parent()) {
            if (const QRect around = view->visualRect(one); !around.isEmpty())
                return Lead{holder, around};
        }
        return {};
    }
    const auto* tabs = qobject_cast<QTabBar*>(holder);
    const bool isBefore =
        tabs && (tabs->tabRect(number).center().x() < 0 || tabs->tabRect(number).center().y() < 0);
    const QLatin1String name = !tabs ? kMoreMenus : isBefore ? kScrollBack : kScrollOn;
    auto* button = holder->findChild<QToolButton*>(name, Qt::FindDirectChildrenOnly);
    if (!button || !button->isVisible())
        return {};
    return Lead{button, button->rect()};
}
