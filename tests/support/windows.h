// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QWidget>

// The top-level windows of a class, shown or not.
template <class Widget>
QList<Widget*> windows()
{
    QList<Widget*> found;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* widget = qobject_cast<Widget*>(window))
            found << widget;
    }
    return found;
}
