// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

namespace TutorialHost {

class PickOverlay;

// Lets the author pick a point in the program's windows. Until a click or
// Escape the windows get neither the mouse nor the keys, and what is under the
// cursor is marked. A window behind a modal dialog cannot be picked from.
class PointPicker : public QObject {
    Q_OBJECT

public:
    // Text of the label for a widget, and the screen point in it.
    using Describe = std::function<QString(const QWidget& widget, const QPoint& point)>;

    explicit PointPicker(const Describe& describe, QObject* parent = nullptr);
    ~PointPicker() override;

    // The widget at the screen point, or what it is a nameless part of; null
    // outside of the program's windows.
    static QWidget* namedWidgetAt(const QPoint& point);
    // The name by which scenarios know the widget: its own, or that of the
    // action whose button it is.
    static QString nameOf(const QWidget& widget);

    void start();
    void stop();

signals:
    // A point of the screen.
    void picked(const QPoint& point);
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void markAt(const QPoint& point);

    Describe mDescribe;
    bool mPicking = false;
    // Where the button was pressed and is still held.
    std::optional<QPoint> mPressed;
    // Goes with the window that it covers.
    QPointer<PickOverlay> mOverlay;
};

} // namespace TutorialHost
