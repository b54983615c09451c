// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QPushButton>

// A button in a window of its own. While that is the active one, Return and
// Space press it, and Tab and the arrows go to the button that it is paired
// with, if that is shown.
class AnswerButton : public QPushButton {
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    static void pair(AnswerButton* first, AnswerButton* second);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Tab and the arrows come here, with Shift as without: there are only two.
    bool focusNextPrevChild(bool next) override;

private:
    QPointer<AnswerButton> mPartner;
};
