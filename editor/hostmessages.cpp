#include "editor/hostmessages.h"

#include "editor/manager.h"
#include "tutorial/tutorialmanager.h"

#include <QApplication>
#include <QScopedValueRollback>

using namespace TutorialEditor;

namespace {

constexpr int kRetryMs = 50;
constexpr int kMaximumParameters = 3;

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
}

bool isWaitingForAuthor()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget();
}

} // namespace

HostMessages::HostMessages(TutorialManager* manager)
{
    mNext.setSingleShot(true);
    connect(&mNext, &QTimer::timeout, this, &HostMessages::runTasks);
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
    mTasks.enqueue(task);
    if (!mNext.isActive())
        mNext.start(0);
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
    while (!mTasks.isEmpty()) {
        // What a box's answer works on must not change below it.
        if (isWaitingForAuthor()) {
            mNext.start(kRetryMs);
            return;
        }
        mTasks.dequeue()();
    }
}
