// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/hostnames.h"
#include "editor/scenario/rules.h"
#include "editor/scenario/translationcatalog.h"

#include <QRect>
#include <QSet>
#include <QString>
#include <QVector>

namespace TutorialEditor {

// What a scenario is checked against.
struct CheckOptions {
    bool isEnabled(Rule rule) const { return !disabled.contains(int(rule)); }

    QSet<int> disabled; // rules, as numbers
    HostNames names;
    // The screens of those who learn, in pixels. Without any, a point is only
    // outside when no usual screen is so large.
    QVector<QRect> screens;
    QVector<TranslationCatalog> translations;
    // That of texts which name none: the scenario file's name without folder
    // and suffix.
    QString context;
};

} // namespace TutorialEditor
