// SPDX-License-Identifier: MIT
#include "editor/model/tutorialitem.h"

#include "editor/scenario/stepfields.h"
#include "editor/scenario/stepjson.h"

using namespace TutorialEditor;

TutorialItem::TutorialItem(const QString& text)
{
    setText(text);
}

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
    const bool isBroken = text.contains(QLatin1Char('\n'));
    if (isBroken)
        text.replace(QLatin1Char('\n'), QLatin1Char('/'));
    if (role == Qt::DecorationRole) {
        mIcon = value.value<QIcon>();
        emitDataChanged();
    } else if (role == Qt::DisplayRole || role == Qt::EditRole) {
        if (text.isNull())
            text = QLatin1String("");
        mText = text == stepText() ? QString() : text;
        emitDataChanged();
    } else {
        QStandardItem::setData(isBroken ? QVariant(text) : value, role);
    }
}

QVariant TutorialItem::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return mText.isNull() ? stepText() : mText;
    case Qt::DecorationRole:
        return mIcon.isNull() ? QVariant() : mIcon;
    }
    return QStandardItem::data(role);
}

QString TutorialItem::stepText() const
{
    const auto number = [this](const char* key) {
        const QJsonValue value = mStep.value(QLatin1String(key));
        return mTranslation.isEmpty() ? QString::number(value.toInt())
                                      : value.toVariant().toString();
    };
    QString text =
        mTranslation.isEmpty() ? mStep.value(QLatin1String("hint")).toString() : mTranslation;
    const QString window = mStep.value(QLatin1String("followWindow")).toString();
    if (!window.isEmpty())
        text = displayText(text, number("x"), number("y"), window);
    return text.replace(QLatin1Char('\n'), QLatin1Char('/'));
}
