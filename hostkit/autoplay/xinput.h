// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <QVector>

// X11's name for a connection; its header's macros clash with names of Qt.
struct _XDisplay;

namespace TutorialHost {

// Hands and eyes of a learner on an X server: real pointer and key events
// through the server's test extension, and the windows of another process as
// the server knows them. Points are pixels of the screen.
class XInput {
public:
    enum Button { Left = 1, Right = 3 };

    // Opens a connection of its own to the display.
    XInput();
    ~XInput();
    Q_DISABLE_COPY(XInput)

    // There is a connection, and the server has the test extension. Nothing
    // else may be called otherwise.
    bool isUsable() const;
    // Geometries of the windows that are on show and belong to the process.
    QVector<QRect> windowsOf(qint64 processId) const;

    void click(const QPoint& point, Button button = Left);
    void doubleClick(const QPoint& point);
    // Types letters, digits and blanks.
    void type(const QString& text);
    // Presses a key, by the X server's name for it ("Home", "Return"), with
    // Control held or not.
    void press(const QString& key, bool control = false);

private:
    void moveTo(const QPoint& point);
    void pressButton(Button button);
    void pressKey(unsigned long symbol, unsigned long modifier);

    _XDisplay* mDisplay;
};

} // namespace TutorialHost
