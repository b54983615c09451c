// SPDX-License-Identifier: MIT
#include "editor/manager.h"

#include "editor/dialog.h"
#include "editor/document/openmark.h"
#include "editor/document/recoverycopy.h"
#include "editor/document/scenariodocument.h"
#include "editor/questions.h"
#include "editor/scenario/debuglog.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"

#include <QCoreApplication>
#include <QJsonArray>

using namespace TutorialEditor;

namespace {

QString titleOf(const QString& path)
{
    return path.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0);
}

} // namespace

Manager* Manager::mInstance = nullptr;

Manager::Manager()
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { mOpenMark.reset(); });
}

Manager::~Manager()
{
    EDITOR_DEBUG_NUMBER(43);
}

void Manager::setContents(const QString& path)
{
    EDITOR_DEBUG_NUMBER(48) << path;
    if (!mInstance)
        mInstance = new Manager;
    if (!mInstance->mayOpen(path))
        return;
    Manager* manager = ensure();
    Dialog* dialog = manager->mDialog;
    manager->mPath = path;
    dialog->setWindowTitle(titleOf(path));
    QString text;
    QStringList errors;
    if (dialog->document()->open(path, &text, &errors)) {
        dialog->setContents(removeMarkers(removeComments(text)), errors, text);
        dialog->localizeAll();
    } else {
        EDITOR_DEBUG_NUMBER(69) << path << "cannot be opened";
        // The steps of another scenario must not be taken for this one's.
        if (dialog->document()->isUnread())
            dialog->clearContents();
    }
    manager->offerRecovery();
}

bool Manager::save(const QString& json)
{
    Manager* manager = ensure();
    EDITOR_DEBUG_NUMBER(123) << logged(manager->mPath) << json;
    if (manager->mPath.isEmpty())
        return false;
    const bool isWritten = manager->mDialog->write(json);
    EDITOR_DEBUG_NUMBER(isWritten ? 149 : 130);
    return isWritten;
}

void Manager::focusActionIndexList(const QList<int>& actionIndexList)
{
    EDITOR_DEBUG_NUMBER(160) << actionIndexList;
    ensure()->mDialog->focusActionIndexList(actionIndexList);
}

void Manager::setCoordinates(int x, int y)
{
    EDITOR_DEBUG_NUMBER(172) << x << y;
    ensure()->mDialog->setCoordinates(x, y);
}

QString Manager::path()
{
    return mInstance ? mInstance->mPath : QString();
}

void Manager::setTarget(const QString& target)
{
    ensure()->mDialog->setTarget(target);
}

void Manager::setTargets(const QStringList& targets)
{
    ensure()->mDialog->setTargets(targets);
}

void Manager::untrCallback(const QString& first, const QString& second)
{
    ensure()->mDialog->untrCallback(first, second);
}

void Manager::setCondition(const QStringList& condition)
{
    EDITOR_DEBUG_NUMBER(197) << condition;
    ensure()->mDialog->setCondition(condition);
}

bool Manager::checkSave(bool ask)
{
    if (!mDialog)
        return true;
    if (!mDialog->checkSave(ask))
        return false;
    mDialog->document()->discardUnsaved();
    return true;
}

void Manager::keepUnsaved()
{
    if (mDialog)
        mDialog->document()->keepUnsaved();
}

void Manager::clearDialog()
{
    EDITOR_DEBUG_NUMBER(154);
    if (mDialog)
        mDialog->document()->discardUnsaved();
    mDialog = nullptr;
    mOpenMark.reset();
}

void Manager::offerRecovery()
{
    ScenarioDocument* document = mDialog->document();
    for (auto& copy : document->takeAbandoned()) {
        QJsonArray steps;
        if (!copy->read(&steps)) {
            qWarning() << "A recovery copy cannot be read, of" << mPath;
            continue;
        }
        // The process ended after it had saved.
        if (scenarioJson(steps) == mDialog->getCurrentJson()) {
            copy->remove();
            continue;
        }
        const auto answer = askToRecover(*document, copy->time());
        if (answer == QMessageBox::Discard)
            copy->remove();
        if (answer == QMessageBox::Yes) {
            mDialog->recover(steps);
            mDialog->localizeAll();
            document->adopt(std::move(copy));
            return;
        }
    }
}

bool Manager::mayOpen(const QString& path)
{
    if (mOpenMark && mOpenMark->isFor(path))
        return true;
    auto mark = std::make_unique<OpenMark>(path);
    if (mark->hasOthers() && askToOpen(path) != QMessageBox::Yes) {
        // What the author had given up for the other scenario stays.
        if (mDialog)
            mDialog->document()->noteChange();
        return false;
    }
    mOpenMark = std::move(mark);
    return true;
}

Manager* Manager::ensure()
{
    if (!mInstance)
        mInstance = new Manager;
    if (!mInstance->mDialog) {
        mInstance->mDialog = new Dialog(nullptr);
        if (!mInstance->mPath.isEmpty())
            mInstance->mDialog->document()->setPath(mInstance->mPath);
    }
    return mInstance;
}
