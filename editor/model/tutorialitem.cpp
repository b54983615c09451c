// SPDX-License-Identifier: MIT
#include "editor/model/tutorialitem.h"

#include "editor/scenario/stepjson.h"

using namespace TutorialEditor;

TutorialItem::TutorialItem(const QString& text) : QStandardItem(text) { }

TutorialItem::TutorialItem(int rows, int columns) : QStandardItem(rows, columns) { }

TutorialItem* TutorialItem::from(QStandardItem* item)
{
    return item && item->type() == UserType ? static_cast<TutorialItem*>(item) : nullptr;
}

QString TutorialItem::json() const
{
    return stepJson(mStep);
}

void TutorialItem::setData(const QVariant& value, int role)
{
    QString text = value.toString();
    if (text.contains(QLatin1Char('\n')))
        QStandardItem::setData(text.replace(QLatin1Char('\n'), QLatin1Char('/')), role);
    else
        QStandardItem::setData(value, role);
}
