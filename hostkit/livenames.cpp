// SPDX-License-Identifier: MIT
#include "hostkit/livenames.h"

#include "editor/scenario/targetpath.h"
#include "hostkit/core/hostwords.h"
#include "hostkit/windows/windowregistry.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QSet>

using namespace Tutorial;
using namespace TutorialHost;
using TutorialEditor::HostNames;
using TutorialEditor::TargetPath;

namespace {

// Qt's own parts are called so.
bool isOwn(const QString& name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1String("qt_"))
        && !name.startsWith(QLatin1String("_q_"));
}

QStringList sorted(const QSet<QString>& names)
{
    QStringList list(names.begin(), names.end());
    list.sort();
    return list;
}

class Collector {
public:
    Collector(const HostWords& words, const WindowRegistry& registry)
        : mWords(words), mRegistry(registry)
    {
    }

    void add(const QWidget* widget);
    void add(const QAction* action);
    HostNames result() const;

private:
    // By which a target begins in the window around the widget.
    QString windowName(const QWidget* widget) const;

    const HostWords& mWords;
    const WindowRegistry& mRegistry;
    QSet<QString> mActions;
    QSet<QString> mLists;
    QSet<QString> mComboBoxes;
    QSet<QString> mCheckBoxes;
    QSet<QString> mTargets;
};

QString Collector::windowName(const QWidget* widget) const
{
    for (;; widget = widget->parentWidget()) {
        const EnumWindowKind kind = mRegistry.kindOf(widget);
        if (kind != WindowKindCount)
            return mWords.windowName(kind);
        // The list of a combo box is a part of it.
        if (widget->isWindow() && !qobject_cast<QComboBox*>(widget->parentWidget()))
            return isOwn(widget->objectName()) ? widget->objectName() : QString();
    }
}

void Collector::add(const QWidget* widget)
{
    const QList<QAction*> actions = widget->actions();
    for (const QAction* action : actions)
        add(action);
    const QList<QAction*> children =
        widget->findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QAction* action : children)
        add(action);
    const QString name = widget->objectName();
    const QString window = windowName(widget);
    const bool isWindow = mRegistry.kindOf(widget) != WindowKindCount || widget->isWindow();
    TargetPath path;
    if (!window.isEmpty())
        path.segments << TargetPath::Segment{window, {}};
    if (!isWindow)
        path.segments << TargetPath::Segment{name, {}};
    if (!path.segments.isEmpty() && (isWindow || isOwn(name)))
        mTargets << path.toText();
    if (!isOwn(name))
        return;
    if (qobject_cast<const QComboBox*>(widget))
        mComboBoxes << name;
    else if (qobject_cast<const QCheckBox*>(widget))
        mCheckBoxes << name;
    else if (qobject_cast<const QAbstractItemView*>(widget) || name == QLatin1String("Map"))
        mLists << name;
}

void Collector::add(const QAction* action)
{
    if (!isOwn(action->objectName()))
        return;
    mActions << action->objectName();
    TargetPath path;
    path.action = action->objectName();
    mTargets << path.toText();
}

HostNames Collector::result() const
{
    QSet<QString> windows{mWords.windowName(Window_MainWindow), mWords.windowName(Window_Popup)};
    for (const EnumWindowKind kind : mWords.added)
        windows << mWords.windowName(kind);
    for (const EnumWindowKind kind : mRegistry.kinds())
        windows << mWords.windowName(kind);
    HostNames names;
    names.set(HostNames::Windows, sorted(windows));
    names.set(HostNames::Actions, sorted(mActions));
    names.set(HostNames::Lists, sorted(mLists));
    names.set(HostNames::ComboBoxes, sorted(mComboBoxes));
    names.set(HostNames::CheckBoxes, sorted(mCheckBoxes));
    names.set(HostNames::Commands, sorted(mWords.commands));
    names.set(HostNames::Conditions, mWords.conditions.keys());
    names.set(HostNames::Targets, sorted(mTargets));
    return names;
}

} // namespace

HostNames TutorialHost::liveNames(const HostWords& words, const WindowRegistry& registry)
{
    Collector collector(words, registry);
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets)
        collector.add(widget);
    const auto actions = qApp->findChildren<QAction*>();
    for (const QAction* action : actions)
        collector.add(action);
    return collector.result();
}
