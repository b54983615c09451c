// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

// Asks what to look for, and stays open.
class FindDialog : public QDialog {
    Q_OBJECT

public:
    explicit FindDialog(QWidget* parent);

    QString text() const;
    bool matchesCase() const;

signals:
    void findRequested();

private:
    QLineEdit* mText;
    QCheckBox* mMatchCase;
};
