// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/document/scenariodocument.h"
#include "editor/history/stephistory.h"
#include "editor/manager.h"
#include "editor/model/model.h"
#include "editor/model/tutorialitem.h"
#include "editor/noticebar.h"
#include "editor/questions.h"
#include "editor/scenario/debuglog.h"
#include "editor/scenario/scenariowriter.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QCloseEvent>
#include <QJsonArray>
#include <QJsonObject>
#include <QSettings>

using namespace TutorialEditor;

namespace {

QJsonObject stepOf(const TutorialItem* item);

// A level's steps, with the contents of groups.
QJsonArray stepsOf(const QStandardItem* level)
{
    QJsonArray steps;
    for (int row = 0; row < level->rowCount(); ++row) {
        const TutorialItem* item = TutorialItem::from(level->child(row));
        if (item && !item->isEndMarker())
            steps.append(stepOf(item));
    }
    return steps;
}

QJsonObject stepOf(const TutorialItem* item)
{
    QJsonObject step = item->step();
    if (item->isGroup())
        step.insert(QStringLiteral("group"), stepsOf(item));
    return step;
}

} // namespace

QString Dialog::getCurrentJson() const
{
    return scenarioJson(getCurrentSteps());
}

QJsonArray Dialog::getCurrentSteps() const
{
    return stepsOf(mModel->invisibleRootItem());
}

QJsonArray Dialog::getSteps(const QList<QModelIndex>& indexes) const
{
    QJsonArray steps;
    for (const QModelIndex& index : indexes) {
        const TutorialItem* item = mModel->itemAt(index);
        if (item && !item->isEndMarker())
            steps.append(stepOf(item));
    }
    return steps;
}

void Dialog::getJsonText(int depth, QList<QModelIndex>& indexes, QString& out, bool compact) const
{
    QList<QModelIndex> written;
    while (!indexes.isEmpty()) {
        const TutorialItem* item = mModel->itemAt(indexes.first());
        if (item && item->depth() != depth)
            break;
        written << indexes.takeFirst();
    }
    out +=
        scenarioJson(getSteps(written), compact ? StepListForm::Copied : StepListForm::File, depth);
}

void Dialog::setLastJson(const QString& json)
{
    mDocument->setSaved(json);
    markClean();
}

void Dialog::markClean()
{
    if (isSaved())
        mHistory->stack()->setClean();
    else
        mHistory->stack()->resetClean();
}

bool Dialog::isSaved() const
{
    return mDocument->isSaved(getCurrentJson());
}

bool Dialog::checkSave(bool withNo)
{
    const QString json = getCurrentJson();
    const bool hasChanges = !mDocument->isSaved(json) || mDocument->isGone();
    if (!hasChanges && (withNo || !mDocument->isChangedOnDisk()))
        return true;
    if (hasChanges) {
        const auto answer = askToSave(*mDocument, withNo);
        if (answer == QMessageBox::No)
            return true;
        if (answer != QMessageBox::Yes)
            return false;
    }
    if (Manager::save(json))
        return true;
    tellNotSaved(*mDocument);
    return false;
}

bool Dialog::write(const QString& json)
{
    const QJsonArray steps = getCurrentSteps();
    ScenarioDocument::SaveReport report = mDocument->save(json, steps);
    while (report.result == ScenarioDocument::ChangedOnDisk) {
        const DiskFile disk = mDocument->disk();
        const auto answer = askToReplace(*mDocument, disk, steps);
        if (answer == QMessageBox::Retry)
            reload();
        if (answer != QMessageBox::Yes)
            return false;
        mDocument->agreeToReplace(disk);
        report = mDocument->save(json, steps);
    }
    if (report.result != ScenarioDocument::Saved)
        return false;
    markClean();
    if (!report.problems.isEmpty())
        tellUnreadable(report);
    return true;
}

void Dialog::onSaveClicked()
{
    EDITOR_DEBUG;
    checkSave(false);
}

void Dialog::updateNotice()
{
    if (mDocument->notice() == ScenarioDocument::NothingNew)
        mNotice->hide();
    else
        tellNotice();
}

void Dialog::tellNotice()
{
    const bool canReload = mDocument->notice() == ScenarioDocument::ReadableFile;
    mNotice->tell(noticeText(*mDocument, isWindowModified()), canReload && !isWindowModified());
}

void Dialog::reject()
{
    close();
}

void Dialog::closeEvent(QCloseEvent* event)
{
    EDITOR_DEBUG;
    if (!checkSave(true)) {
        event->ignore();
        return;
    }
    linkToEdit(nullptr);
    if (TutorialManager::mInstance)
        TutorialManager::mInstance->sendEditor({QStringLiteral("closed")});
    QSettings().setValue(QStringLiteral("TutorialEditor.geometry"), geometry());
    if (Manager::mInstance)
        Manager::mInstance->clearDialog();
}
