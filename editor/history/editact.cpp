// SPDX-License-Identifier: MIT
#include "editor/history/editact.h"

#include "editor/model/model.h"
#include "editor/model/tutorialitem.h"

#include <QSet>

#include <algorithm>

using namespace TutorialEditor;

namespace {

// The value alone: one that is taken out of an object keeps all of that.
QJsonValue detached(const QJsonValue& value)
{
    return value.isString() ? QJsonValue(QString(value.toString())) : value;
}

// The one copy of a text that every act has: a key, or a name.
QString shared(const QString& text)
{
    static QSet<QString> texts;
    return *texts.insert(text);
}

} // namespace

StepHistory::EditAct::EditAct(StepHistory* history, TutorialItem* item, const QJsonObject& step,
    StepField field, int run, const QString& name)
    : Act(history, shared(name)), mItem(item), mField(field), mRun(run)
{
    mSince.start();
    const QJsonObject& former = item->step();
    QStringList keys = former.keys();
    for (const QString& key : step.keys()) {
        if (!former.contains(key))
            keys << key;
    }
    for (const QString& key : qAsConst(keys)) {
        if (former.value(key) != step.value(key))
            mChanges.append({shared(key), detached(former.value(key)), detached(step.value(key))});
    }
    item->setStep(step);
}

bool StepHistory::EditAct::mergeWith(const QUndoCommand* other)
{
    const auto* next = static_cast<const EditAct*>(other);
    if (mRun < 0 || next->mRun != mRun || next->mItem != mItem || next->mField != mField
        || mSince.hasExpired(kPauseMs))
        return false;
    mSince.start();
    for (const Change& change : next->mChanges) {
        const auto same = std::find_if(mChanges.begin(), mChanges.end(),
            [&change](const Change& candidate) { return candidate.key == change.key; });
        if (same == mChanges.end())
            mChanges << change;
        else
            same->after = change.after;
    }
    mChanges.erase(std::remove_if(mChanges.begin(), mChanges.end(),
                       [](const Change& change) { return change.before == change.after; }),
        mChanges.end());
    // Typed and deleted again: nothing was done.
    setObsolete(mChanges.isEmpty());
    return true;
}

void StepHistory::EditAct::undo()
{
    set(&Change::before);
}

void StepHistory::EditAct::redoAgain()
{
    set(&Change::after);
}

void StepHistory::EditAct::set(QJsonValue Change::*value)
{
    ++mHistory.mRun;
    QJsonObject step = mItem->step();
    bool isOtherHint = false;
    for (const Change& change : qAsConst(mChanges)) {
        isOtherHint |= change.key == QLatin1String("hint");
        if ((change.*value).isUndefined())
            step.remove(change.key);
        else
            step.insert(change.key, change.*value);
    }
    mItem->setStep(step);
    // That of the other hint is asked for.
    if (isOtherHint)
        mItem->setTranslation(QString());
    mHistory.mModel.updateRow(mItem);
    emit mHistory.stepChanged(mItem, mField);
}
