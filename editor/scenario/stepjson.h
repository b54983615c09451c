// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>

namespace TutorialEditor {

// A step as compact JSON text, its keys in alphabetical order: what QJsonDocument
// writes.
QString stepJson(const QJsonObject& step);

} // namespace TutorialEditor
