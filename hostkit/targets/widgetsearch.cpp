// SPDX-License-Identifier: MIT
#include "hostkit/targets/widgetsearch.h"

#include <QApplication>
#include <QDockWidget>
#include <QToolBar>

#include <algorithm>

using namespace TutorialHost;

namespace {

// A window that is searched as a part of the one it belongs to.
bool isPart(const QWidget* widget)
{
    return !widget->isWindow() || qobject_cast<const QDockWidget*>(widget)
        || qobject_cast<const QToolBar*>(widget);
}

// Smaller is better.
int rankOf(const QWidget* widget)
{
    const QWidget* window = widget->window();
    const int visible = widget->isVisible() ? 0 : 2;
    return visible + (window->isActiveWindow() ? 0 : 1);
}

} // namespace

QWidget* TutorialHost::widgetBelow(QWidget* scope, const QString& name)
{
    QWidget* hidden = nullptr;
    QVector<QWidget*> level{scope};
    while (!level.isEmpty()) {
        QVector<QWidget*> next;
        for (QWidget* parent : qAsConst(level)) {
            for (QObject* child : parent->children()) {
                if (!child->isWidgetType())
                    continue;
                auto* widget = static_cast<QWidget*>(child);
                if (widget->objectName() == name) {
                    if (widget->isVisible())
                        return widget;
                    if (!hidden)
                        hidden = widget;
                }
                if (!widget->children().isEmpty() && isPart(widget))
                    next << widget;
            }
        }
        level = std::move(next);
    }
    return hidden;
}

QVector<QWidget*> TutorialHost::windowsByRank()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    QVector<QWidget*> sorted(windows.begin(), windows.end());
    sortByRank(sorted);
    return sorted;
}

void TutorialHost::sortByRank(QVector<QWidget*>& widgets)
{
    std::stable_sort(widgets.begin(), widgets.end(),
        [](const QWidget* a, const QWidget* b) { return rankOf(a) < rankOf(b); });
}

QWidget* TutorialHost::hiddenBy(QWidget* widget)
{
    if (widget->isVisible())
        return nullptr;
    QWidget* outermost = nullptr;
    for (QWidget* one = widget; one; one = one->parentWidget()) {
        if (one->isHidden())
            outermost = one;
        // A closed dock hides what it holds, even as a window of its own.
        if (one->isWindow() && !isPart(one))
            break;
    }
    return outermost ? outermost : widget->window();
}

QString TutorialHost::plainText(const QString& text)
{
    QString plain = text.section(QLatin1Char('\t'), 0, 0).trimmed();
    for (const QString& dots : {QStringLiteral("..."), QStringLiteral("…")}) {
        if (plain.endsWith(dots))
            plain.chop(dots.size());
    }
    // Languages without Latin letters add the key in brackets.
    const int size = plain.size();
    if (size > 4 && plain.endsWith(QLatin1Char(')')) && plain.at(size - 4) == QLatin1Char('(')
        && plain.at(size - 3) == QLatin1Char('&'))
        plain.chop(4);
    for (int i = plain.indexOf(QLatin1Char('&')); i >= 0;
         i = plain.indexOf(QLatin1Char('&'), i + 1))
        plain.remove(i, 1);
    return plain.trimmed();
}
