// SPDX-License-Identifier: MIT
#include "hostkit/windows/pickoverlay.h"

#include <QLabel>
#include <QPainter>

using namespace TutorialHost;

namespace {

const QColor kMarkColor(0xe0, 0x5a, 0x1e);
// From the cursor's hot spot to the label's nearest corner.
constexpr QPoint kLabelOffset(16, 18);

} // namespace

PickOverlay::PickOverlay() : mLabel(new QLabel(this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    mLabel->setStyleSheet(
        QStringLiteral("background: %1; color: white; padding: 4px").arg(kMarkColor.name()));
}

void PickOverlay::mark(QWidget* widget, const QString& text, const QPoint& cursor)
{
    QWidget* window = widget->window();
    if (parentWidget() != window)
        setParent(window);
    setGeometry(window->rect());
    mMarked = QRect(widget->mapTo(window, QPoint()), widget->size());
    mLabel->setText(text);
    mLabel->adjustSize();
    const QPoint at = mapFromGlobal(cursor);
    QRect label(at + kLabelOffset, mLabel->size());
    // On the cursor's other side where there is no room.
    if (label.right() > width())
        label.moveRight(qMax(at.x() - kLabelOffset.x(), label.width()));
    if (label.bottom() > height())
        label.moveBottom(at.y() - kLabelOffset.y());
    mLabel->setGeometry(label);
    raise();
    show();
    update();
}

void PickOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(QPen(kMarkColor, 2));
    painter.drawRect(mMarked.adjusted(1, 1, -1, -1));
}
