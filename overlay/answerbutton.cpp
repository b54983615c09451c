// SPDX-License-Identifier: MIT
#include "overlay/answerbutton.h"

#include <QKeyEvent>

void AnswerButton::pair(AnswerButton* first, AnswerButton* second)
{
    first->mPartner = second;
    second->mPartner = first;
}

void AnswerButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A key that is held down presses once.
        if (!event->isAutoRepeat())
            click();
        break;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        focusNextPrevChild(true);
        break;
    default:
        QPushButton::keyPressEvent(event);
    }
}

bool AnswerButton::focusNextPrevChild(bool)
{
    if (!mPartner || !mPartner->isVisible())
        return false;
    mPartner->activateWindow();
    mPartner->setFocus(Qt::TabFocusReason);
    return true;
}
