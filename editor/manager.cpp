// SPDX-License-Identifier: MIT
#include "editor/manager.h"

#include "editor/dialog.h"
#include "editor/document/recoverycopy.h"
#include "editor/errorbox.h"
#include "editor/recovery.h"
#include "editor/scenario/debuglog.h"
#include "editor/scenario/savecheck.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"

#include <QAbstractButton>
#include <QDateTime>
#include <QFileInfo>
#include <QJsonArray>
#include <QLocale>
#include <QMessageBox>

using namespace TutorialEditor;

namespace {

QString titleOf(const QString& path)
{
    return path.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0);
}

bool isReadable(const QString& path)
{
    QJsonArray steps;
    QStringList errors;
    return readScenarioFile(path, &steps, &errors);
}

// Keeps the file as <name>.bak, unless that would replace a scenario by a file
// that is none. False when there is no copy then.
bool keepFormerFile(const QString& path)
{
    const QString copy = path + QLatin1String(".bak");
    if (!QFile::exists(path) || (QFile::exists(copy) && !isReadable(path)))
        return true;
    QFile::remove(copy);
    return QFile::copy(path, copy);
}

// Yes, Discard, or anything else for later.
QMessageBox::StandardButton askToRecover(const QString& path, const QDateTime& copied)
{
    const auto shown = [](const QDateTime& time) {
        return time.isValid() ? QLocale().toString(time, QLocale::LongFormat)
                              : Manager::tr("there is none");
    };
    QMessageBox box(QMessageBox::Question, Manager::tr("Recover"),
        Manager::tr("The tool ended before changes of %1 were saved.\n\n"
                    "Changes: %2\nSaved file: %3\n\nRecover the changes?")
            .arg(path, shown(copied), shown(QFileInfo(path).lastModified())),
        QMessageBox::Yes | QMessageBox::Discard | QMessageBox::Cancel);
    box.button(QMessageBox::Yes)->setText(Manager::tr("&Recover"));
    box.button(QMessageBox::Discard)->setText(Manager::tr("&Discard"));
    box.button(QMessageBox::Cancel)->setText(Manager::tr("&Later"));
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

Manager* Manager::mInstance = nullptr;

Manager::Manager() = default;

Manager::~Manager()
{
    EDITOR_DEBUG_NUMBER(43);
}

void Manager::setContents(const QString& path)
{
    EDITOR_DEBUG_NUMBER(48) << path;
    Manager* manager = ensure();
    manager->keepUnsaved();
    manager->mPath = path;
    manager->mIsUnreadable = false;
    manager->mRecovery.reset(new Recovery(manager->mDialog, path));
    manager->mDialog->setWindowTitle(titleOf(path));
    QString text;
    QStringList errors;
    if (readScenarioText(path, &text, &errors)) {
        manager->mDialog->setContents(removeMarkers(removeComments(text)), errors, text);
        manager->mDialog->localizeAll();
    } else {
        EDITOR_DEBUG_NUMBER(69) << path << "cannot be opened";
    }
    manager->offerRecovery();
}

bool Manager::save(const QString& json)
{
    Manager* manager = ensure();
    const QString path = manager->mPath;
    EDITOR_DEBUG_NUMBER(123) << logged(path) << json;
    if (path.isEmpty())
        return false;

    // A scenario that cannot be read again, because of a half-typed translation
    // say, must not take the place of the last one that can.
    const QStringList problems = findUnreadable(json, manager->mDialog->getCurrentSteps());
    if (!problems.isEmpty() && !manager->mIsUnreadable && !keepFormerFile(path)) {
        EDITOR_DEBUG_NUMBER(130) << "no copy of the former file";
        return false;
    }
    // Whenever this is cut short, either the copy is newer than the file or both
    // are the same.
    manager->keepUnsaved();
    if (!writeScenarioFile(path, json)) {
        EDITOR_DEBUG_NUMBER(130);
        return false;
    }
    manager->mIsUnreadable = !problems.isEmpty();
    manager->mDialog->setLastJson(json);
    manager->discardRecovery();
    EDITOR_DEBUG_NUMBER(149);
    if (!problems.isEmpty())
        QMessageBox::warning(nullptr, tr("Save"),
            tr("The scenario was saved, but it cannot be read again as it is. "
               "The former file was kept as %1.bak.\n\n%2")
                .arg(path, errorText(problems)));
    return true;
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
    if (mDialog && !mDialog->checkSave(ask))
        return false;
    discardRecovery();
    return true;
}

void Manager::keepUnsaved()
{
    if (mRecovery)
        mRecovery->flush();
}

void Manager::clearDialog()
{
    EDITOR_DEBUG_NUMBER(154);
    discardRecovery();
    mRecovery.reset();
    mDialog = nullptr;
}

void Manager::discardRecovery()
{
    if (mRecovery)
        mRecovery->discard();
}

void Manager::offerRecovery()
{
    for (auto& copy : RecoveryCopy::takeAbandoned(mPath)) {
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
        const auto answer = askToRecover(mPath, copy->time());
        if (answer == QMessageBox::Discard)
            copy->remove();
        if (answer == QMessageBox::Yes) {
            mDialog->recover(steps);
            mDialog->localizeAll();
            mRecovery->adopt(std::move(copy));
            return;
        }
    }
}

Manager* Manager::ensure()
{
    if (!mInstance)
        mInstance = new Manager;
    if (!mInstance->mDialog)
        mInstance->mDialog = new Dialog(nullptr);
    return mInstance;
}
