// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/stepfields.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace TutorialEditor {

// One widget of the form for a step.
struct FormCell {
    enum Kind { Line, Note, Text, ReadOnlyText, Box, Button, CheckBox };

    Kind kind;
    const char* name; // its object name
    QString label; // before it, if there is one; the first of a row has one
    QString toolTip; // none for one that changes
    int stretch; // its share of the row's width
    // Cells of one place, which follow one another, lie over one another: at most
    // one of them is shown. 0: a place of its own.
    int place = 0;
    // What the widget shows; 0 for what the condition shows and hides.
    int field = 0;
    // In the menu of fields to add; null for a field that comes with the one before.
    QString addedAs = QString();
    int size = 0; // lines of a text, or characters that a box shows at least
};

using FormRow = QVector<FormCell>;

// All of the form, from the top, in the author's language.
QVector<FormRow> formRows();

// The rows of a combo box.
QStringList boxRows(const char* name);

} // namespace TutorialEditor
