// SPDX-License-Identifier: MIT
#include "editor/dialog.h"

#include "editor/form/formarea.h"
#include "editor/form/stepform.h"
#include "editor/history/stephistory.h"
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/model/tutorialitem.h"
#include "editor/noticebar.h"

#include <QElapsedTimer>

using namespace TutorialEditor;

namespace {

// A comparison that took longer than this is not made again.
constexpr qint64 kMostCompareMs = 50;

} // namespace

void Dialog::showStep(TutorialItem* item)
{
    const QModelIndex index = item->index();
    const QList<QModelIndex> selected = mModel->getTopIndexes(mTreeView->getSelectedIndexes());
    if (item != mItem || selected != QList<QModelIndex>{index})
        mTreeView->selectRows(mModel->levelOf(item), item->row(), item->row());
    mTreeView->scrollTo(index);
    linkToEdit(item);
}

void Dialog::onStepChanged(TutorialItem* item, StepField field)
{
    showStep(item);
    // The field was there, even if the step does not have it any more.
    mForm->showFields(field);
    mFields = mForm->fields();
    mForm->focusField(field);
    emit changed();
}

void Dialog::onFieldsShown(TutorialItem* item, ShownFields fields, bool isShown)
{
    showStep(item);
    if (!isShown)
        return;
    mForm->showFields(fields);
    mFields = mForm->fields();
}

void Dialog::requestMissing(QStandardItem* level, int first, int count)
{
    for (int row = first; row < first + count; ++row) {
        TutorialItem* item = TutorialItem::from(level->child(row));
        if (item->translation().isEmpty())
            localizeItem(item, mModel->getActionIndexList(item));
        requestMissing(item, 0, item->rowCount());
    }
}

void Dialog::updateModified()
{
    const bool isClean = mHistory->stack()->isClean();
    markModified(!isClean);
    // Other acts may have led back to what is saved.
    if (!isClean && mCompareMs <= kMostCompareMs)
        mCompare.start();
}

void Dialog::compareWithSaved()
{
    if (mHistory->stack()->isClean())
        return;
    QElapsedTimer elapsed;
    elapsed.start();
    markModified(!isSaved());
    mCompareMs = elapsed.elapsed();
}

void Dialog::markModified(bool isModified)
{
    // The title is as it was set while all is saved.
    const QString mark = QStringLiteral("[*]");
    QString title = windowTitle();
    if (title.endsWith(mark))
        title.chop(mark.size());
    if (isModified)
        title += mark;
    // Each change of these goes to the window manager.
    if (title != windowTitle() || isModified != isWindowModified()) {
        setWindowModified(false);
        setWindowTitle(title);
        setWindowModified(isModified);
    }
    if (!mNotice->isHidden())
        tellNotice();
}
