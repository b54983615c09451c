// SPDX-License-Identifier: MIT
#include "tutorial/runtime/tutorialmanager.h"

#include "tutorial/vocabulary/tutorialaction.h"

#include <QMetaObject>

namespace {

bool isWindowKind(Tutorial::EnumWindowKind kind)
{
    return kind >= 0 && kind < Tutorial::WindowKindCount;
}

} // namespace

Tutorial::EnumWindowKind TutorialManager::getCurrentWindowKind() const
{
    return mWindowStack.isEmpty() ? Tutorial::Window_MainWindow : mWindowStack.last();
}

Tutorial::EnumWindowKind TutorialManager::getLastWindowKind(int depth) const
{
    if (depth < 0 || depth >= mWindowStack.size())
        return Tutorial::WindowKindCount;
    return mWindowStack.at(mWindowStack.size() - 1 - depth);
}

void TutorialManager::popWindowStack(Tutorial::EnumWindowKind kind)
{
    dropPopup();
    if (!mWindowStack.isEmpty() && mWindowStack.last() == kind)
        mWindowStack.removeLast();
}

void TutorialManager::reorderWindow()
{
    dropPopup();
}

QPoint TutorialManager::getXy(Tutorial::EnumWindowKind kind) const
{
    return isWindowKind(kind) ? mWindowPositions[kind] : QPoint();
}

QPoint TutorialManager::getXy(QObject* object) const
{
    return getXy(getWindowKind(object));
}

void TutorialManager::setXy(Tutorial::EnumWindowKind kind, int x, int y)
{
    if (isWindowKind(kind))
        mWindowPositions[kind] = QPoint(x, y);
}

Tutorial::EnumWindowKind TutorialManager::getWindowKind(QObject* object) const
{
    if (!object)
        return Tutorial::WindowKindCount;
    QString name = QString::fromLatin1(object->metaObject()->className());
    const int end = name.indexOf(QLatin1String("_QMLTYPE_"));
    if (end < 0)
        return Tutorial::WindowKindCount;
    name.truncate(end);
    const QLatin1String dialogPrefix("Dialog_");
    if (name.startsWith(dialogPrefix))
        name.remove(0, dialogPrefix.size());
    return getWindowKind(name);
}

Tutorial::EnumWindowKind TutorialManager::getWindowKind(const QString& name)
{
    return Tutorial::getWindowKind(name);
}

QObject* TutorialManager::getWindowObject(Tutorial::EnumWindowKind kind) const
{
    return isWindowKind(kind) ? mWindowObjects[kind] : nullptr;
}

int TutorialManager::getWindowState(Tutorial::EnumWindowKind kind) const
{
    return kind == mStateWindowKind ? mStateValue : kUnknownWindowState;
}

void TutorialManager::dropPopup()
{
    if (!mWindowStack.isEmpty() && mWindowStack.last() == Tutorial::Window_Popup)
        mWindowStack.removeLast();
}
