// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

namespace TutorialHost {

// The widget with this object name below the scope: a visible one before a
// hidden one, and of these the one that is nearest to the scope. Docks and tool
// bars belong to their window even while they float; what is inside of other
// windows does not. Null when there is none.
QWidget* widgetBelow(QWidget* scope, const QString& name);

// The program's windows, the one that is active first, visible ones before
// hidden ones.
QVector<QWidget*> windowsByRank();
// Brings the widgets into that order of their windows; equal ones stay in
// theirs.
void sortByRank(QVector<QWidget*>& widgets);

// The first widget of the way from the window down to the widget, the window
// and itself included, that hides it; null when it is visible.
QWidget* hiddenBy(QWidget* widget);

// The same text without what marks a key ("&Find", "Find(&F)"), a shortcut
// behind a tabulator, and the dots that announce a dialog.
QString plainText(const QString& text);

} // namespace TutorialHost
