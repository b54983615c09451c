// SPDX-License-Identifier: MIT
#include "hostkit/core/conditionrecorder.h"

#include <QVector>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

// A second click that makes a double click comes within it, and so does the
// next letter that is typed.
constexpr int kQuietMs = 700;

// The condition that this event meets; one with a fault when there is none.
Condition conditionOf(const HostEvent& event)
{
    const QString kind = getConditionKindName(event.kind);
    const auto condition =
        Condition::fromText((QStringList(kind) + event.parameters).join(QLatin1Char(',')));
    // Only some lists have a name that a condition knows.
    if (event.kind == Condition_popup && !condition.fault().isEmpty())
        return Condition::fromText(kind + QStringLiteral(",*"));
    return condition;
}

// How much a condition tells about what the author did.
int weight(const Condition& condition)
{
    static const QVector<EnumConditionKind> kLeastFirst = {Condition_textLength,
        Condition_mouseEvent, Condition_list, Condition_pressed, Condition_action,
        Condition_spinBox, Condition_comboBox, Condition_checked, Condition_popup,
        Condition_windowState};
    // The chosen row tells of the single click, but not of the double click.
    const bool isDoubleClick = condition.kind == Condition_mouseEvent
        && condition.parameter(1) == QLatin1String("doubleClick");
    return kLeastFirst.indexOf(isDoubleClick ? Condition_popup : condition.kind);
}

} // namespace

ConditionRecorder::ConditionRecorder(QObject* parent) : QObject(parent)
{
    mQuietTimer.setInterval(kQuietMs);
    mQuietTimer.setSingleShot(true);
    connect(&mQuietTimer, &QTimer::timeout, this, [this] {
        const Condition condition = *mBest;
        stop();
        emit recorded(condition);
    });
}

void ConditionRecorder::start()
{
    stop();
    mRecording = true;
}

void ConditionRecorder::stop()
{
    mRecording = false;
    mBest.reset();
    mQuietTimer.stop();
}

void ConditionRecorder::onEvent(const HostEvent& event)
{
    if (!mRecording)
        return;
    const Condition condition = conditionOf(event);
    if (!condition.fault().isEmpty())
        return;
    if (!mBest || weight(condition) >= weight(*mBest))
        mBest = condition;
    mQuietTimer.start();
}
