// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace TutorialEditor {

// The words that a host understands. Of a list that is not given nothing is
// known: then everything is taken for right that the program itself knows.
class HostNames {
public:
    enum List {
        Windows,
        Actions,
        Lists,
        ComboBoxes,
        CheckBoxes,
        Commands,
        Conditions,
        Targets,
        ListCount
    };

    // From {"windows": ["MainWindow", …], "combo boxes": […], …}; other keys are
    // passed over. Nothing, with the error, when it is no such object.
    static std::optional<HostNames> fromJson(const QByteArray& json, QString* error);

    // "windows", …, as that JSON and the host's messages call the list.
    static QString nameOf(List list);

    bool isGiven(List list) const { return mLists[list].has_value(); }
    bool contains(List list, const QString& name) const
    {
        return isGiven(list) && mLists[list]->contains(name);
    }
    // In no particular order.
    QStringList names(List list) const;
    void set(List list, const QStringList& names);

private:
    std::array<std::optional<QSet<QString>>, ListCount> mLists;
};

// That of the candidates which a misspelt name may stand for; empty when none
// is near.
QString nearestName(const QString& name, const QStringList& candidates);

} // namespace TutorialEditor
