// SPDX-License-Identifier: MIT
#include "editor/document/recovery.h"

#include "editor/document/recoverycopy.h"
#include "editor/scenario/scenariowriter.h"

#include <QDebug>
#include <QtConcurrent>

using namespace TutorialEditor;

namespace {

constexpr int kDelayMs = 500;
constexpr int kRetryMs = 10000;

} // namespace

Recovery::Recovery(const QString& scenarioPath, std::function<State()> state)
    : mState(std::move(state)), mCopy(new RecoveryCopy(scenarioPath))
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &Recovery::update);
    connect(&mUpdate, &QFutureWatcher<bool>::finished, this, &Recovery::onUpdated);
}

Recovery::~Recovery()
{
    mUpdate.waitForFinished();
}

void Recovery::adopt(std::unique_ptr<RecoveryCopy> copy)
{
    discard();
    mCopy = std::move(copy);
}

void Recovery::noteChange()
{
    if (!mTimer.isActive() || mTimer.interval() != kDelayMs)
        mTimer.start(kDelayMs);
}

void Recovery::flush()
{
    mUpdate.waitForFinished();
    if (!mTimer.isActive())
        return;
    mTimer.stop();
    updateCopy(mState());
}

void Recovery::discard()
{
    mTimer.stop();
    mUpdate.waitForFinished();
    mCopy->remove();
}

void Recovery::update()
{
    if (mUpdate.isRunning()) {
        mTimer.start(kDelayMs);
        return;
    }
    mUpdate.setFuture(QtConcurrent::run([this, state = mState()] { return updateCopy(state); }));
}

void Recovery::onUpdated()
{
    if (!mUpdate.result() && !mTimer.isActive())
        mTimer.start(kRetryMs);
}

bool Recovery::updateCopy(const State& state)
{
    if (state.saved.is(scenarioJson(state.steps))) {
        mCopy->remove();
        return true;
    }
    const bool isWritten = mCopy->write(state.steps);
    if (!isWritten && !mFailed)
        qWarning().noquote() << "Unsaved changes cannot be copied into" << RecoveryCopy::folder();
    mFailed = !isWritten;
    return isWritten;
}
