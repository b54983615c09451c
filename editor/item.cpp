// SPDX-License-Identifier: MIT
#include "editor/item.h"

#include "editor/scenario/debuglog.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QTextEdit>

using namespace TutorialEditor;

Item::Item(QWidget* parent) : QWidget(parent)
{
    EDITOR_DEBUG;
    auto* layout = new QBoxLayout(QBoxLayout::TopToBottom);
    layout->addWidget(new QCheckBox(tr("c.b.")));
    layout->addWidget(new QTextEdit(QString::fromLocal8Bit("てきすと")));
    setLayout(layout);
    show();
}

Item::~Item()
{
    EDITOR_DEBUG;
}

void Item::closeEvent(QCloseEvent*)
{
    EDITOR_DEBUG;
}
