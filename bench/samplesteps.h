// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonObject>

// A step of a scenario as authors write them, and a list of the first so many.
QJsonObject step(int i);
QJsonArray steps(int count);
