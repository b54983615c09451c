#include "editor/manager.h"

#include "editor/debuglog.h"
#include "editor/dialog.h"
#include "editor/errorbox.h"
#include "editor/savecheck.h"
#include "editor/scenarioreader.h"
#include "editor/scenariowriter.h"

#include <QFile>
#include <QJsonArray>
#include <QMessageBox>

using namespace TutorialEditor;

namespace {

const QString kIconFiles[] = {QStringLiteral("click.png"), QStringLiteral("double_click.png"),
    QStringLiteral("right_click.png"), QStringLiteral("eye.png"), QStringLiteral("wait.png"),
    QStringLiteral("keyboard.png")};

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

} // namespace

Manager* Manager::mInstance = nullptr;

Manager::~Manager()
{
    EDITOR_DEBUG_NUMBER(43);
}

void Manager::setContents(const QString& path)
{
    EDITOR_DEBUG_NUMBER(48) << path;
    Manager* manager = ensure();
    manager->mPath = path;
    manager->mIsUnreadable = false;
    manager->mDialog->setWindowTitle(titleOf(path));
    QString text;
    QStringList errors;
    if (!readScenarioText(path, &text, &errors)) {
        EDITOR_DEBUG_NUMBER(69) << path << "cannot be opened";
        return;
    }
    manager->mDialog->setContents(removeMarkers(removeComments(text)), errors);
    manager->mDialog->localizeAll();
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
    if (!writeScenarioFile(path, json)) {
        EDITOR_DEBUG_NUMBER(130);
        return false;
    }
    manager->mIsUnreadable = !problems.isEmpty();
    manager->mDialog->setLastJson(json);
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
    return !mDialog || mDialog->checkSave(ask);
}

void Manager::keepUnsaved() const
{
    if (!mDialog || mPath.isEmpty() || mDialog->isSaved())
        return;
    const QString path = mPath + QLatin1String(".unsaved");
    const bool isWritten = writeScenarioFile(path, mDialog->getCurrentJson());
    EDITOR_DEBUG << path << isWritten;
}

void Manager::clearDialog()
{
    EDITOR_DEBUG_NUMBER(154);
    mDialog = nullptr;
}

Manager* Manager::ensure()
{
    if (!mInstance)
        mInstance = new Manager;
    if (!mInstance->mDialog)
        mInstance->mDialog = new Dialog(nullptr);
    return mInstance;
}

QString TutorialEditor::getIconFilename(Tutorial::EnumIconKind kind)
{
    if (kind < 0 || kind >= Tutorial::IconKindCount)
        return QString();
    return QStringLiteral(":/resource/png/%1").arg(kIconFiles[kind]);
}
