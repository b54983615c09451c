// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

class OverlayOwner;

// A window that shows nothing: it takes the activation when a tutorial
// starts for the first time, so that the process has an active window of its
// own, and tells its owner when the activation changes.
class TutorialLog : public QWidget {
    Q_OBJECT

public:
    // Shows the window at once. owner: who shows the tutorial.
    TutorialLog(QWidget* parent, OverlayOwner* owner);

protected:
    void changeEvent(QEvent* event) override;

private:
    QPointer<OverlayOwner> mOwner;
};
