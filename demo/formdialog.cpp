// SPDX-License-Identifier: MIT
#include "demo/formdialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kFieldWidth = 220;
constexpr int kRowHeight = 28;
constexpr int kButtonWidth = 96;

} // namespace

FormDialog::FormDialog(const QString& title, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);

    auto* ok = new QPushButton(tr("OK"), this);
    ok->setObjectName(QStringLiteral("ok"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cancel"));
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* button : {ok, cancel}) {
        button->setMinimumSize(kButtonWidth, kRowHeight + 2);
        buttons->addWidget(button);
    }

    mContents = new QVBoxLayout;
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setSpacing(16);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(mContents);
    layout->addLayout(buttons);
}

QFormLayout* FormDialog::newForm(int labelWidth)
{
    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    form->setHorizontalSpacing(12);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    auto* spacer = new QWidget;
    spacer->setMinimumWidth(labelWidth);
    form->addRow(spacer, static_cast<QWidget*>(nullptr));
    return form;
}

void FormDialog::prepare(QWidget* field, const char* name)
{
    field->setObjectName(QLatin1String(name));
    field->setMinimumSize(kFieldWidth, kRowHeight);
}
