// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace TutorialHost {

// Marks a widget and labels it, on top of all that its window holds.
class PickOverlay : public QWidget {
    Q_OBJECT

public:
    PickOverlay();

    // Covers the widget's window. The label stands beside the cursor, given as
    // a point of the screen.
    void mark(QWidget* widget, const QString& text, const QPoint& cursor);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect mMarked;
    QLabel* mLabel;
};

} // namespace TutorialHost
