// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/document/scenariodocument.h"
#include "editor/errorbox.h"
#include "editor/form/stepform.h"
#include "editor/history/stephistory.h"
#include "editor/lookups.h"
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/debuglog.h"
#include "editor/scenario/jsonescape.h"
#include "editor/scenario/scenarioreader.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QJsonArray>
#include <QPushButton>

using namespace TutorialEditor;

namespace {

const QString kHint = QStringLiteral("hint");
const QString kComment = QStringLiteral("comment");

QString rowsText(const QList<int>& rows)
{
    QStringList texts;
    for (int row : rows)
        texts << QString::number(row);
    return texts.join(QLatin1Char(','));
}

// Gives an item its hint's translation, and the text that follows from it.
void setLocalized(TutorialItem* item, const QString& translation)
{
    const QJsonObject step = item->step();
    item->setTranslation(translation);
    item->setData(displayText(translation, step.value(QLatin1String("x")).toVariant().toString(),
                      step.value(QLatin1String("y")).toVariant().toString(),
                      step.value(QLatin1String("followWindow")).toString()),
        Qt::EditRole);
}

TutorialItem* firstLike(QStandardItem* level, const QJsonObject& step)
{
    for (int row = 0; row < level->rowCount(); ++row) {
        TutorialItem* item = TutorialItem::from(level->child(row));
        if (item && !item->isEndMarker() && item->step() == step)
            return item;
        if (TutorialItem* below = firstLike(level->child(row), step))
            return below;
    }
    return nullptr;
}

// The item that a step has become after a reload: the one at its action index
// list when it is the same, else the first one that is, else what stands there
// now. Null when nothing does.
TutorialItem* findAgain(Model* model, const QJsonObject& step, const QList<int>& list)
{
    TutorialItem* there = TutorialItem::from(model->getItemByActionIndexList(list));
    if (!there || there->isEndMarker() || model->getActionIndexList(there) != list)
        there = nullptr;
    if (there && there->step() == step)
        return there;
    TutorialItem* same = firstLike(model->invisibleRootItem(), step);
    return same ? same : there;
}

} // namespace

void Dialog::setContents(const QString& text, QStringList errors, const QString& fileText)
{
    mHistory->clear();
    mModel->setContents(text, &errors, fileText);
    mDocument->setLoaded(getCurrentSteps(), errors.isEmpty());
    showErrors(tr("Parse error"), errors);
    bringToFront();
}

void Dialog::clearContents()
{
    QStringList errors;
    mHistory->clear();
    mModel->setSteps(QJsonArray(), &errors);
    mDocument->setLoaded(QJsonArray(), false);
    bringToFront();
}

void Dialog::reload()
{
    const QList<QModelIndex> selected = mTreeView->getSelectedIndexes();
    const TutorialItem* item = selected.isEmpty() ? nullptr : mModel->itemAt(selected.first());
    const QJsonObject step = item ? item->step() : QJsonObject();
    const QList<int> list = item ? mModel->getActionIndexList(item) : QList<int>();
    QString text;
    QStringList errors;
    if (!mDocument->reload(&text, &errors))
        return;
    const QJsonArray steps = readSteps(removeMarkers(removeComments(text)), &errors, text);
    mHistory->replaceAll(steps, &errors, tr("Reload"));
    mDocument->setLoaded(getCurrentSteps(), errors.isEmpty());
    mHistory->stack()->setClean();
    showErrors(tr("Parse error"), errors);
    localizeAll();
    if (step.isEmpty())
        return;
    if (const TutorialItem* again = findAgain(mModel, step, list))
        mTreeView->selectRows(mModel->levelOf(again), again->row(), again->row());
}

void Dialog::recover(const QJsonArray& steps)
{
    // What is wrong with a step was told when it was read from the file.
    QStringList errors;
    mHistory->replaceAll(steps, &errors, tr("Recovery"));
    bringToFront();
}

void Dialog::bringToFront()
{
    show();
    raise();
    activateWindow();
}

void Dialog::localizeAll()
{
    localizeSub(mModel->invisibleRootItem());
}

void Dialog::localizeSub(QStandardItem* item)
{
    if (!TutorialManager::mInstance)
        return;
    const QList<int> rows = mModel->getActionIndexList(item);
    for (int row = 0; row < item->rowCount(); ++row) {
        QStandardItem* child = item->child(row);
        localizeSub(child);
        localizeItem(TutorialItem::from(child), rows + QList<int>{row});
    }
}

void Dialog::localizeItem(const TutorialItem* item, const QList<int>& rows)
{
    const QJsonValue hint = item ? item->step().value(kHint) : QJsonValue::Undefined;
    if (!hint.isUndefined())
        requestUntr(kHint + rowsText(rows), hint.toString());
}

void Dialog::linkToEdit(TutorialItem* item)
{
    EDITOR_DEBUG << logged(item ? item->text() : QString());
    mItem = item && !item->isEndMarker() ? item : nullptr;
    mHistory->endTyping();
    mForm->setRefWindowEnabled(mItem && !mItem->isGroup());
    mAddField->setEnabled(mItem);
    if (!mItem) {
        fillForm(StepFields());
        return;
    }
    EDITOR_DEBUG << mItem->json();
    const StepFields fields = loadStep(mItem->step(), mItem->isGroup());
    fillForm(fields);

    if (fields.shown & FollowWindowField)
        checkTreeBox();
    if (fields.shown & CommentField)
        requestComment(fields.comment);
    if (!fields.hint.isEmpty() && mItem->translation().isEmpty())
        requestHint(fields.hint);
    pointIndicator(coordinate(fields.x), coordinate(fields.y));
}

void Dialog::fillForm(const StepFields& fields)
{
    mForm->setFields(fields);
    mForm->setHintTranslation(mItem ? mItem->translation() : QString());
    mFields = mForm->fields();
}

void Dialog::connectLookups()
{
    mComments = new Lookups(this);
    mHints = new Lookups(this);
    connect(mComments, &Lookups::found, this, &Dialog::onCommentFound);
    connect(mHints, &Lookups::found, this, &Dialog::onHintFound);
    connect(mComments, &Lookups::lost, this, [this](const QList<QPersistentModelIndex>& steps) {
        if (mItem && steps.contains(formIndex()))
            requestComment(mFields.comment);
    });
    // With its place in the key it is another question, and so is its answer.
    connect(mHints, &Lookups::lost, this, [this](const QList<QPersistentModelIndex>& steps) {
        for (const QModelIndex step : steps) {
            const TutorialItem* item = mModel->itemAt(step);
            localizeItem(item, mModel->getActionIndexList(item));
        }
    });
}

void Dialog::requestComment(const QString& comment)
{
    if (!TutorialManager::mInstance)
        return;
    requestUntr(kComment, comment);
    mComments->add(formIndex());
}

void Dialog::requestHint(const QString& hint)
{
    if (!TutorialManager::mInstance)
        return;
    requestUntr(kHint, hint);
    mHints->add(formIndex());
}

QModelIndex Dialog::formIndex() const
{
    return mItem ? mItem->index() : QModelIndex();
}

void Dialog::onCommentFound(const QModelIndex& step, const QString& text)
{
    if (step == formIndex())
        mForm->setCommentTranslation(text);
}

void Dialog::onHintFound(const QModelIndex& step, const QString& text)
{
    if (step.isValid())
        setLocalized(mModel->itemAt(step), text);
    if (step != formIndex())
        return;
    mForm->setHintTranslation(text);
    pointIndicator(mFields.x.toInt(), mFields.y.toInt());
}

void Dialog::untrCallback(const QString& first, const QString& second)
{
    const QString text = lookedUpText(second);
    if (first == kComment) {
        mComments->take(text, formIndex());
    } else if (first == kHint) {
        mHints->take(text, formIndex());
    } else if (first.startsWith(kHint)) {
        QList<int> rows;
        for (const QString& row : first.mid(kHint.size()).split(QLatin1Char(',')))
            rows << row.toInt();
        QStandardItem* item = mModel->getItemByActionIndexList(rows);
        // A step that is gone by now leads to what was above it.
        if (TutorialItem::from(item) && mModel->getActionIndexList(item) == rows)
            setLocalized(TutorialItem::from(item), text);
    }
}
