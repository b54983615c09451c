#pragma once

#include <QJsonObject>

namespace TutorialEditor {

// The object of a step in JSON text; empty for a text that is no object.
QJsonObject stepObject(const QString& json);

// The other way: compact, keys in alphabetical order.
QString stepJson(const QJsonObject& step);

} // namespace TutorialEditor
