#include "editor/stepjson.h"

#include <QJsonDocument>

QJsonObject TutorialEditor::stepObject(const QString& json)
{
    return QJsonDocument::fromJson(json.toUtf8()).object();
}

QString TutorialEditor::stepJson(const QJsonObject& step)
{
    return QString::fromUtf8(QJsonDocument(step).toJson(QJsonDocument::Compact));
}
