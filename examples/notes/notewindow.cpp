// SPDX-License-Identifier: MIT
#include "notewindow.h"

#include "finddialog.h"

#include <QAction>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTextDocument>
#include <QToolBar>

NoteWindow::NoteWindow() : mText(new QPlainTextEdit), mFindDialog(new FindDialog(this))
{
    setWindowTitle(tr("Notes"));
    resize(560, 400);
    mText->setObjectName(QStringLiteral("note"));
    setCentralWidget(mText);
    connect(mText, &QPlainTextEdit::textChanged, this,
        [this] { statusBar()->showMessage(tr("Words: %1").arg(wordCount())); });

    QToolBar* toolBar = addToolBar(tr("Tools"));
    QMenu* menu = menuBar()->addMenu(tr("&Note"));
    const auto add = [&](const QString& name, const QString& text, const QKeySequence& keys) {
        auto* action = new QAction(text, this);
        action->setObjectName(name);
        action->setShortcut(keys);
        toolBar->addAction(action);
        menu->addAction(action);
        return action;
    };
    connect(add(QStringLiteral("New"), tr("New"), QKeySequence::New), &QAction::triggered, this,
        &NoteWindow::clear);
    connect(add(QStringLiteral("Find"), tr("Find"), QKeySequence::Find), &QAction::triggered,
        mFindDialog, &QWidget::show);
    connect(add(QStringLiteral("Tutorial"), tr("Tutorial"), QKeySequence::HelpContents),
        &QAction::triggered, this, &NoteWindow::tutorialRequested);
    connect(mFindDialog, &FindDialog::findRequested, this, &NoteWindow::find);
}

int NoteWindow::wordCount() const
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    return int(mText->toPlainText().split(blanks, Qt::SkipEmptyParts).size());
}

void NoteWindow::clear()
{
    mText->clear();
    mText->setFocus();
}

void NoteWindow::find()
{
    const QTextDocument::FindFlags flags = mFindDialog->matchesCase()
        ? QTextDocument::FindCaseSensitively
        : QTextDocument::FindFlags();
    if (mText->find(mFindDialog->text(), flags))
        return;
    // From the top again.
    mText->moveCursor(QTextCursor::Start);
    if (!mText->find(mFindDialog->text(), flags))
        statusBar()->showMessage(tr("“%1” is not in the note.").arg(mFindDialog->text()));
}
