// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace TutorialEditor {

// A line inside a window that tells something and waits for nobody. It is hidden
// unless there is something to tell.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    // Shows a text, as it is and never taken for markup. withReload: whether
    // reloading is offered.
    void tell(const QString& text, bool withReload);

signals:
    void reloadClicked();

private:
    QLabel* mText;
    QPushButton* mReload;
};

} // namespace TutorialEditor
