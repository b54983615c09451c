// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

class FindDialog;
class QPlainTextEdit;

// A window for one note.
class NoteWindow : public QMainWindow {
    Q_OBJECT

public:
    NoteWindow();

    // Words in the note.
    int wordCount() const;
    void clear();

signals:
    void tutorialRequested();

private:
    void find();

    QPlainTextEdit* mText;
    FindDialog* mFindDialog;
};
