// SPDX-License-Identifier: MIT
#include "finddialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

FindDialog::FindDialog(QWidget* parent)
    : QDialog(parent), mText(new QLineEdit), mMatchCase(new QCheckBox(tr("Match case")))
{
    setObjectName(QStringLiteral("findDialog"));
    setWindowTitle(tr("Find"));
    mText->setObjectName(QStringLiteral("text"));
    mMatchCase->setObjectName(QStringLiteral("matchCase"));
    auto* buttons = new QDialogButtonBox;
    QPushButton* find = buttons->addButton(tr("Find Next"), QDialogButtonBox::ActionRole);
    find->setObjectName(QStringLiteral("findNext"));
    find->setDefault(true);
    buttons->addButton(QDialogButtonBox::Close)->setObjectName(QStringLiteral("close"));
    connect(find, &QPushButton::clicked, this, &FindDialog::findRequested);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mText);
    layout->addWidget(mMatchCase);
    layout->addWidget(buttons);
    resize(320, sizeHint().height());
}

QString FindDialog::text() const
{
    return mText->text();
}

bool FindDialog::matchesCase() const
{
    return mMatchCase->isChecked();
}
