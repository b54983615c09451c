// SPDX-License-Identifier: MIT
#include "overlay/tutoriallog.h"

#include "overlay/overlayowner.h"

#include <QEvent>

TutorialLog::TutorialLog(QWidget* parent, OverlayOwner* owner) : QWidget(parent), mOwner(owner)
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    // A window without any size is not put on the screen and so could not take
    // the activation: it gets one pixel, and that one cannot be seen.
    setAttribute(Qt::WA_TranslucentBackground);
    setAccessibleName(tr("Tutorial"));
    setGeometry(0, 0, 1, 1);
    show();
    activateWindow();
}

void TutorialLog::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !mOwner)
        return;
    // Unlike the painted windows this one does not take the activation back.
    if (isActiveWindow())
        mOwner->reorderWindow();
    mOwner->updateVisibility();
}
