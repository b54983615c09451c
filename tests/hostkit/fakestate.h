// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/condition.h"
#include "hostkit/core/targetview.h"

#include <QHash>

// A host whose state is what the test says.
struct FakeState : TutorialHost::HostState {
    QString windowState(Tutorial::EnumWindowKind window) const override
    {
        return states.value(window, QStringLiteral("close"));
    }
    std::optional<int> textLength(Tutorial::EnumWindowKind) const override { return length; }
    std::optional<int> spinBoxValue(Tutorial::EnumWindowKind) const override { return {}; }
    std::optional<int> comboBoxRow(Tutorial::EnumWindowKind, const QString& name) const override
    {
        return name == QLatin1String("trigger") ? row : std::nullopt;
    }
    std::optional<bool> isChecked(Tutorial::EnumWindowKind, const QString& name) const override
    {
        return name == QLatin1String("walkAnime") ? checked : std::nullopt;
    }

    QHash<Tutorial::EnumWindowKind, QString> states;
    std::optional<int> length;
    std::optional<int> row;
    std::optional<bool> checked;
};

// Targets that are where the test says; the others are missing.
struct FakeTargets : TutorialHost::TargetView {
    void follow(const QString& target) override { followed = target; }
    Reach reach(const QString& target) override { return reaches.value(target, Missing); }

    QHash<QString, Reach> reaches;
    QString followed;
};
