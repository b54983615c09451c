// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QFormLayout>
#include <QString>
#include <QVBoxLayout>

// A dialog of labelled fields above OK and Cancel. It deletes itself when it
// is closed. The sizes are fixed, so that a field stands at the same place in
// every language.
class FormDialog : public QDialog {
    Q_OBJECT

public:
    FormDialog(const QString& title, QWidget* parent);

    // A form whose labels take this width, wide enough for every language.
    static QFormLayout* newForm(int labelWidth = 110);
    // Adds a field under its object name, with its label as its buddy.
    template <typename Field>
    static Field* addRow(QFormLayout* form, const QString& label, const char* name, Field* field)
    {
        prepare(field, name);
        form->addRow(label, field);
        return field;
    }

protected:
    // Above the buttons; the derived class fills it.
    QVBoxLayout* mContents;

private:
    static void prepare(QWidget* field, const char* name);
};
