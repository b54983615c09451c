// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/condition.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QAction;
namespace TutorialHost {

class WindowRegistry;

// Watches the controls in the host's windows: it tells what happens there and
// how things are, in the terms of the conditions. It needs nothing of the
// windows but standard widgets, object names (a combo box's, a check box's, a
// list's) and actions whose object names are those of the host-action list.
class ControlObserver : public QObject, public HostState {
    Q_OBJECT

public:
    // registry: outlives the observer. Every window that opens is watched.
    explicit ControlObserver(const WindowRegistry& registry, QObject* parent = nullptr);

    QString windowState(Tutorial::EnumWindowKind window) const override;
    std::optional<int> textLength(Tutorial::EnumWindowKind window) const override;
    std::optional<int> spinBoxValue(Tutorial::EnumWindowKind window) const override;
    std::optional<int> comboBoxRow(
        Tutorial::EnumWindowKind window, const QString& name) const override;
    std::optional<bool> isChecked(
        Tutorial::EnumWindowKind window, const QString& name) const override;

signals:
    void happened(const HostEvent& event);
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void onOpened(Tutorial::EnumWindowKind kind, QWidget* window);
    void onWindowChanged(Tutorial::EnumWindowKind kind);
    void onFocusChanged(QWidget* now);
    void report(
        Tutorial::EnumConditionKind kind, const QStringList& parameters, const QWidget* where);
    QWidget* searched(Tutorial::EnumWindowKind window) const;
    // The control of this type that had the focus last within the window.
    template <typename Control>
    Control* lastFocused(Tutorial::EnumWindowKind window) const;

    const WindowRegistry& mRegistry;
    // Widgets that had the focus, the last one first.
    QList<QPointer<QWidget>> mFocused;
    // Where the context menu that opens next belongs to.
    QPointer<QWidget> mMenuOwner;
};

} // namespace TutorialHost
