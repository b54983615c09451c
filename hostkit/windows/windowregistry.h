// SPDX-License-Identifier: MIT
#pragma once

#include "tutorial/vocabulary/vocabulary.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QSet>
#include <QSize>
#include <QVector>
#include <QWidget>

namespace TutorialHost {

// Knows which of the host's windows are open, in which order, and where they
// stand. A window is any widget that was added under its kind: a dialog, a
// menu, or a panel inside of the main window.
class WindowRegistry : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // From now on and until it is destroyed the widget is the window of this
    // kind. A kind may have several widgets (every context menu is a Popup).
    void add(Tutorial::EnumWindowKind kind, QWidget* window);

    bool contains(const QWidget* window) const { return mKinds.contains(window); }
    // The open window of the kind, the one that was opened last; null when there is none.
    QWidget* window(Tutorial::EnumWindowKind kind) const;
    // Every widget of the kind, open or not, the one that was opened last first.
    QVector<QWidget*> windows(Tutorial::EnumWindowKind kind) const;
    // The kind of the window that the widget itself is; WindowKindCount when it is
    // none.
    Tutorial::EnumWindowKind kindOf(const QWidget* widget) const
    {
        return mKinds.value(widget, Tutorial::WindowKindCount);
    }
    // The kinds of the widgets that there are.
    QSet<Tutorial::EnumWindowKind> kinds() const { return {mKinds.cbegin(), mKinds.cend()}; }
    // Kinds of the windows in which the widget is, the innermost first.
    QList<Tutorial::EnumWindowKind> windowsAround(const QWidget* widget) const;
    // "open", or how it was closed: see HostState::windowState().
    QString state(Tutorial::EnumWindowKind kind) const;
    // The top-level windows that are open, in the order of opening; panels are
    // no windows of their own here.
    const QList<Tutorial::EnumWindowKind>& stack() const { return mStack; }
    // The window that was opened last; null when none is open.
    QWidget* topWindow() const;
    // Screen position of the client area of every open window and panel.
    const QHash<Tutorial::EnumWindowKind, QPoint>& positions() const { return mPositions; }

    // Forgets how windows were closed.
    void forgetResults() { mResults.clear(); }

signals:
    // A window or panel was opened; opened() comes after all that state() and
    // positions() tell about it.
    void opened(Tutorial::EnumWindowKind kind, QWidget* window);
    void pushed(Tutorial::EnumWindowKind kind);
    // The last entry of the stack, which was of this kind, is gone.
    void popped(Tutorial::EnumWindowKind kind);
    void moved(Tutorial::EnumWindowKind kind, const QPoint& position);
    // The state of the window is another one.
    void changed(Tutorial::EnumWindowKind kind);
    // The window was minimised, or is back.
    void minimized(Tutorial::EnumWindowKind kind, bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void onShown(Tutorial::EnumWindowKind kind, QWidget* window);
    void onHidden(Tutorial::EnumWindowKind kind, const QWidget* window);
    void setResult(Tutorial::EnumWindowKind kind, const QString& result);
    void updatePositions();

    QHash<const QObject*, Tutorial::EnumWindowKind> mKinds;
    QHash<Tutorial::EnumWindowKind, QList<QWidget*>> mOpen;
    QHash<Tutorial::EnumWindowKind, QString> mResults;
    QHash<Tutorial::EnumWindowKind, QPoint> mPositions;
    QList<Tutorial::EnumWindowKind> mStack;
};

} // namespace TutorialHost
