// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/targetpath.h"

#include <QModelIndex>
#include <QRect>
#include <QWidget>

#include <optional>

class QAbstractItemView;
class QAction;
class QTabWidget;

namespace TutorialHost {

using TutorialEditor::TargetPath;

// A part of a widget that is no widget: a tab, a row, an entry.
struct TargetItem {
    // The item of the widget; a tree takes one for each level, or one text for
    // an item anywhere. Texts are compared without key marks and dots. Nothing
    // when there is none, or the widget has no items.
    static std::optional<TargetItem> find(QWidget* widget, const QVector<TargetPath::Item>& items);
    // The item of the widget at the screen point, as find() takes it: by its text
    // when that is the only one. Nothing when there is none.
    static QVector<TargetPath::Item> at(QWidget* widget, const QPoint& point);

    // The tab as find() takes it.
    static TargetPath::Item ofTab(const QTabWidget& tabs, int number);
    // The action's entry in the menu or menu bar, in its coordinates; empty when
    // it has none, or no room for it.
    static QRect entryOf(const QWidget& menu, const QAction& action);

    // Where it is: in the coordinates of the widget that shows it. Empty while
    // that does not.
    QRect rect() const;
    // Scrolls it into view, as far as the widget itself can.
    void scrollTo() const;
    // The next thing to press when the item is not on show: the entry around it, a
    // button that scrolls; in the coordinates of place's widget.
    struct Lead {
        QWidget* widget = nullptr;
        QRect rect;
    };
    std::optional<Lead> lead() const;

    // The widget in whose coordinates it is.
    QWidget* holder = nullptr;
    // The page that a tab shows; null otherwise.
    QWidget* page = nullptr;
    // The item is behind the holder, a combo box that is closed.
    bool isBehind = false;
    // In a view; otherwise the number counts.
    QAbstractItemView* view = nullptr;
    QModelIndex index;
    int number = -1;
};

} // namespace TutorialHost
