// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/targetpath.h"
#include "hostkit/targets/target.h"

#include <QAction>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QVector>

#include <functional>
#include <optional>

namespace TutorialHost {

using TutorialEditor::TargetPath;

// The windows that the host has names of its own for.
struct TargetWindows {
    // The widgets that are the window of this name, open or not, the one that
    // was opened last first; nothing when no window is called so.
    std::function<std::optional<QVector<QWidget*>>(const QString& name)> find;
    // The name of the window that the widget itself is; empty when it is none.
    std::function<QString(const QWidget& widget)> nameOf;
};

// Finds what a step's target is in the host's windows, and the other way round.
//
//   TargetResolver resolver;
//   const Target target = resolver.resolve("settings/tabs[Colours]");
//   if (target.isOnScreen()) arrow.pointAt(target.point);
class TargetResolver : public QObject {
    Q_OBJECT

public:
    using Locator = std::function<std::optional<QRect>(const QString& target)>;

    // Without windows of the host's own only object names count.
    explicit TargetResolver(TargetWindows windows = {}, QObject* parent = nullptr);

    // Asked for what is no widget and no action: the screen rectangle of the
    // target, or nothing.
    void setLocator(const Locator& locator) { mLocator = locator; }

    // Where the target is now. Of several windows of one name the active one
    // counts, then the one that was opened last.
    Target resolve(const QString& target);
    // Scrolls what is around the target so that it can be seen; what is hidden
    // for another reason stays so.
    void reveal(const QString& target);
    // The best target for a point in the widget: resolve() gives a place in it
    // back. Empty when the widget and what is around it have no names.
    QString describe(QWidget* widget, const QPoint& point);

    // Forgets where things were found. They are looked for anew by themselves
    // when they go, are hidden or renamed; not when something of the same name
    // comes nearer.
    void forget();

private:
    // The widget of a path's last segment, or why there is none.
    struct Found {
        QWidget* widget = nullptr;
        Target::State state = Target::Missing;
        QString reason;
    };

    const TargetPath& pathOf(const QString& target);
    Target resolveWidget(const TargetPath& path);
    Target resolveAction(const TargetPath& path);
    Target ask(const QString& target, const Target& otherwise) const;
    // What shows the widget that hides the target.
    Target leadTo(QWidget* hider);
    Found find(const TargetPath& path);
    Found findBelow(QWidget* scope, const TargetPath& path);
    // What findBelow() found the last time, if it is still right.
    Found findAgain(const QWidget* scope, const TargetPath& path) const;
    // What the first segment may be, the best first; nothing when no widget is
    // called so.
    std::optional<QVector<QWidget*>> candidates(const QString& name);
    QVector<QAction*> actions(const QString& name);
    // The names from a window down to the widget; no segments when there are not
    // enough of them.
    TargetPath pathTo(QWidget* widget) const;
    // The target is at the point, and not only led to from there.
    bool means(const QString& target, const QPoint& point);

    const TargetWindows mWindows;
    Locator mLocator;
    // The target that was resolved last, taken apart.
    QString mText;
    TargetPath mPath = TargetPath::fromText({});
    // The widget of its first segment when that is no window's own name, and the
    // widgets of all segments.
    QPointer<QWidget> mScope;
    QVector<QPointer<QWidget>> mWay;
    QHash<QString, QVector<QPointer<QAction>>> mActions;
};

} // namespace TutorialHost
