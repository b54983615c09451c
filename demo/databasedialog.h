// SPDX-License-Identifier: MIT
#pragma once

#include "demo/formdialog.h"
#include "demo/project.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

// A list of entries beside the form of the chosen one.
class EntryPage : public QWidget {
    Q_OBJECT

public:
    // What the fields are called for this kind of entries.
    struct Texts {
        QString newName;
        QString role;
        QStringList roles;
        QString level;
        QString special;
    };

    EntryPage(const Texts& texts, const QVector<Entry>& entries, QWidget* parent = nullptr);

    const QVector<Entry>& entries() const { return mEntries; }

private:
    void showRow(int row);
    void storeRow();

    QVector<Entry> mEntries;
    QListWidget* mList;
    QWidget* mForm;
    QLineEdit* mName;
    QComboBox* mRole;
    QSpinBox* mLevel;
    QCheckBox* mSpecial;
};

class DatabaseDialog : public FormDialog {
    Q_OBJECT

public:
    DatabaseDialog(const Project& project, QWidget* parent);

    const QVector<Entry>& heroes() const { return mHeroes->entries(); }
    const QVector<Entry>& items() const { return mItems->entries(); }

private:
    EntryPage* mHeroes;
    EntryPage* mItems;
};
