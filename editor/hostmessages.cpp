// SPDX-License-Identifier: MIT
#include "editor/hostmessages.h"

#include "editor/manager.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QTimer>

using namespace TutorialEditor;

namespace {

constexpr int kRetryMs = 50;
constexpr int kMaximumParameters = 3;
// So many tasks are done before the link and the timers have their turn again.
// It is more than one read of the link brings, so that a flood does not pile up.
constexpr int kTasksAtATime = 500;
// Characters of the messages that wait for the author, each with an allowance for
// what keeps it: some 100,000 short ones.
constexpr int kMostWaiting = 16 * 1024 * 1024;
constexpr int kAllowance = 100;

// The fields as numbers; empty when one is none.
QList<int> numbersOf(const QStringList& fields)
{
    QList<int> numbers;
    for (const QString& field : fields) {
        bool isNumber = false;
        numbers << field.toInt(&isNumber);
        if (!isNumber)
            return QList<int>();
    }
    return numbers;
}

void openScenario(const QString& path)
{
    if (!Manager::mInstance || Manager::mInstance->checkSave(true))
        Manager::setContents(path);
    if (TutorialManager::mInstance)
        TutorialManager::mInstance->sendEditor({QStringLiteral("opened"), Manager::path()});
}

bool isWaitingForAuthor()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

} // namespace

HostMessages::HostMessages(TutorialManager* manager)
{
    connect(manager, &TutorialManager::received, this, &HostMessages::receive);
}

void HostMessages::receive(const QString& message)
{
    const QStringList fields = message.split(QChar(0x01));
    std::function<void()> task;
    if (fields.first() == QLatin1String("untr") && fields.size() == 3)
        task = [fields] { Manager::untrCallback(fields.at(1), fields.at(2)); };
    else if (fields.first() == QLatin1String("editor") && fields.size() >= 3)
        task = editorTask(fields.mid(1));
    if (!task)
        return;
    if (mWaiting > kMostWaiting) {
        if (!mIsFull)
            qWarning("Too many messages wait for the author: those of the host are dropped.");
        mIsFull = true;
        return;
    }
    // A posted call and no timer: those may not get their turn while messages
    // keep arriving.
    if (mTasks.isEmpty())
        QMetaObject::invokeMethod(this, &HostMessages::runTasks, Qt::QueuedConnection);
    mTasks.enqueue({task, int(message.size()) + kAllowance});
    mWaiting += mTasks.last().size;
}

std::function<void()> HostMessages::editorTask(const QStringList& fields) const
{
    const QString& name = fields.first();
    const QStringList arguments = fields.mid(1);
    const QList<int> numbers = numbersOf(arguments);
    if (name == QLatin1String("open") && arguments.size() == 1 && !arguments.first().isEmpty())
        return [path = arguments.first()] { openScenario(path); };
    if (name == QLatin1String("focus") && !numbers.isEmpty())
        return [numbers] { Manager::focusActionIndexList(numbers); };
    if (name == QLatin1String("target") && arguments.size() == 1)
        return [target = arguments.first()] { Manager::setTarget(target); };
    if (name == QLatin1String("names") && arguments.first() == QLatin1String("targets"))
        return [targets = arguments.mid(1)] { Manager::setTargets(targets); };
    if (name == QLatin1String("coordinates") && numbers.size() == 2)
        return [numbers] { Manager::setCoordinates(numbers.first(), numbers.last()); };
    if (name == QLatin1String("condition") && arguments.size() <= 1 + kMaximumParameters
        && Tutorial::getConditionKind(arguments.first()) != Tutorial::ConditionKindCount)
        return [arguments] { Manager::setCondition(arguments); };
    return nullptr;
}

void HostMessages::runTasks()
{
    if (mRunning)
        return;
    const QScopedValueRollback<bool> running(mRunning, true);
    for (int done = 0; !mTasks.isEmpty(); ++done) {
        // What a box's answer works on must not change below it.
        if (isWaitingForAuthor()) {
            QTimer::singleShot(kRetryMs, this, &HostMessages::runTasks);
            return;
        }
        if (done == kTasksAtATime) {
            QMetaObject::invokeMethod(this, &HostMessages::runTasks, Qt::QueuedConnection);
            return;
        }
        const Task task = mTasks.dequeue();
        mWaiting -= task.size;
        task.run();
    }
    mIsFull = false;
}
