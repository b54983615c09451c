// SPDX-License-Identifier: MIT
#include "demo/databasedialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>

EntryPage::EntryPage(const Texts& texts, const QVector<Entry>& entries, QWidget* parent)
    : QWidget(parent), mEntries(entries), mList(new QListWidget), mForm(new QWidget)
{
    mList->setObjectName(QStringLiteral("entries"));
    mList->setMinimumWidth(170);
    for (const Entry& entry : entries)
        mList->addItem(entry.name);

    QFormLayout* form = FormDialog::newForm(52);
    mForm->setLayout(form);
    mName = FormDialog::addRow(form, tr("Name:"), "name", new QLineEdit);
    mRole = FormDialog::addRow(form, texts.role, "role", new QComboBox);
    mRole->addItems(texts.roles);
    mLevel = FormDialog::addRow(form, texts.level, "level", new QSpinBox);
    mLevel->setRange(1, 99);
    mSpecial = FormDialog::addRow(form, {}, "special", new QCheckBox(texts.special));

    auto* add = new QPushButton(tr("Add"), this);
    auto* remove = new QPushButton(tr("Remove"), this);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {add, remove}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto* left = new QVBoxLayout;
    left->addWidget(mList);
    left->addLayout(buttons);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addWidget(mForm);

    connect(mList, &QListWidget::currentRowChanged, this, &EntryPage::showRow);
    connect(mName, &QLineEdit::textEdited, this, &EntryPage::storeRow);
    connect(mRole, QOverload<int>::of(&QComboBox::activated), this, &EntryPage::storeRow);
    connect(mSpecial, &QCheckBox::clicked, this, &EntryPage::storeRow);
    connect(mLevel, QOverload<int>::of(&QSpinBox::valueChanged), this, &EntryPage::storeRow);
    connect(add, &QPushButton::clicked, this, [this, texts] {
        mEntries << Entry{texts.newName};
        mList->addItem(texts.newName);
        mList->setCurrentRow(mList->count() - 1);
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        const int row = mList->currentRow();
        if (row < 0)
            return;
        mEntries.remove(row);
        // The list reports its new current row while the old one is still in it.
        {
            const QSignalBlocker blocker(mList);
            delete mList->takeItem(row);
        }
        showRow(mList->currentRow());
    });
    showRow(-1);
}

void EntryPage::showRow(int row)
{
    mForm->setEnabled(row >= 0);
    const Entry entry = mEntries.value(row);
    mName->setText(entry.name);
    mRole->setCurrentIndex(entry.role);
    mSpecial->setChecked(entry.special);
    // Last, because its change is stored: all the fields are this entry's then.
    mLevel->setValue(entry.level);
}

void EntryPage::storeRow()
{
    const int row = mList->currentRow();
    if (row < 0)
        return;
    mEntries[row] = {mName->text(), mRole->currentIndex(), mLevel->value(), mSpecial->isChecked()};
    mList->item(row)->setText(mName->text());
}

DatabaseDialog::DatabaseDialog(const Project& project, QWidget* parent)
    : FormDialog(tr("Database"), parent),
      mHeroes(
          new EntryPage({tr("New hero"), tr("Class:"), {tr("Fighter"), tr("Healer"), tr("Mage")},
                            tr("Level:"), tr("Joins at the start")},
              project.heroes)),
      mItems(new EntryPage({tr("New item"), tr("Kind:"), {tr("Food"), tr("Tool"), tr("Weapon")},
                               tr("Price:"), tr("Is used up")},
          project.items))
{
    auto* pages = new QTabWidget;
    pages->setObjectName(QStringLiteral("pages"));
    pages->addTab(mHeroes, tr("Heroes"));
    pages->addTab(mItems, tr("Items"));
    mContents->addWidget(pages);
}
