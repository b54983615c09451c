// SPDX-License-Identifier: MIT
#pragma once

#include "tutorial/vocabulary/tutorialaction.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

namespace TutorialHost {

// The words of a scenario that are this host's own.
//
// A window of the host's own has a kind above WindowKindCount, which no link
// carries: there it is WindowKindCount, none.
struct HostWords {
    // The kind of the window, described or the host's own; WindowKindCount when
    // there is no such window.
    Tutorial::EnumWindowKind window(const QString& name) const
    {
        return windows.value(name, Tutorial::getWindowKind(name));
    }
    // The same; a name that is not known yet gets a kind.
    Tutorial::EnumWindowKind addWindow(const QString& name)
    {
        if (window(name) == Tutorial::WindowKindCount)
            windows.insert(name,
                Tutorial::EnumWindowKind(Tutorial::WindowKindCount + 1 + int(windows.size())));
        added.insert(window(name));
        return window(name);
    }
    // The name of the window that has this kind.
    QString windowName(Tutorial::EnumWindowKind kind) const
    {
        return windows.key(kind, TutorialAction::getWindowKindName(kind));
    }

    QHash<QString, Tutorial::EnumWindowKind> windows;
    // The kinds of the windows that the host has, described or its own.
    QSet<Tutorial::EnumWindowKind> added;
    // Also a described one that the host has.
    QSet<QString> commands;
    QHash<QString, std::function<bool(const QStringList& parameters)>> conditions;
};

} // namespace TutorialHost
