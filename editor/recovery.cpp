// SPDX-License-Identifier: MIT
#include "editor/recovery.h"

#include "editor/dialog.h"
#include "editor/document/recoverycopy.h"
#include "editor/document/savedstate.h"
#include "editor/scenario/scenariowriter.h"

#include <QDebug>
#include <QtConcurrent>

using namespace TutorialEditor;

namespace {

constexpr int kDelayMs = 500;
constexpr int kRetryMs = 10000;

} // namespace

Recovery::Recovery(Dialog* dialog, const QString& scenarioPath)
    : mDialog(dialog), mCopy(new RecoveryCopy(scenarioPath))
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &Recovery::update);
    connect(&mUpdate, &QFutureWatcher<bool>::finished, this, &Recovery::onUpdated);
    connect(dialog, &Dialog::changed, this, [this] {
        if (!mTimer.isActive() || mTimer.interval() != kDelayMs)
            mTimer.start(kDelayMs);
    });
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

void Recovery::flush()
{
    mUpdate.waitForFinished();
    if (!mTimer.isActive() || !mDialog)
        return;
    mTimer.stop();
    updateCopy(mDialog->getCurrentSteps(), mDialog->savedState());
}

void Recovery::discard()
{
    mTimer.stop();
    mUpdate.waitForFinished();
    mCopy->remove();
}

void Recovery::update()
{
    if (!mDialog)
        return;
    if (mUpdate.isRunning()) {
        mTimer.start(kDelayMs);
        return;
    }
    mUpdate.setFuture(
        QtConcurrent::run([this, steps = mDialog->getCurrentSteps(),
                              saved = mDialog->savedState()] { return updateCopy(steps, saved); }));
}

void Recovery::onUpdated()
{
    if (!mUpdate.result() && !mTimer.isActive())
        mTimer.start(kRetryMs);
}

bool Recovery::updateCopy(const QJsonArray& steps, const SavedState& saved)
{
    if (saved.is(scenarioJson(steps))) {
        mCopy->remove();
        return true;
    }
    const bool isWritten = mCopy->write(steps);
    if (!isWritten && !mFailed)
        qWarning().noquote() << "Unsaved changes cannot be copied into" << RecoveryCopy::folder();
    mFailed = !isWritten;
    return isWritten;
}
