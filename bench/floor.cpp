// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <cmath>

// The least that a program can do and still be of the tutorial's kind. It
// connects to the host's server and ends when the host speaks or goes away.
//
//   bench_floor ID          does nothing else
//   bench_floor ID window   shows an empty window of the kind that the balloon is
//   bench_floor ID arrow    draws the bouncing arrow into that window

namespace {

constexpr int kTickMs = 100;
constexpr QRect kGeometry(300, 200, 640, 480);
constexpr QRect kAnimated(0, 0, 132, 231); // what the balloon repaints in a tick

class Window : public QWidget {
public:
    Window()
    {
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
            | Qt::WindowTransparentForInput | Qt::NoDropShadowWindowHint);
        setGeometry(kGeometry);
    }

    void bounce()
    {
        mArrow.load(QStringLiteral(":/resource/png/arrow.png"));
        mElapsed.start();
        startTimer(kTickMs, Qt::CoarseTimer);
    }

protected:
    void timerEvent(QTimerEvent*) override { repaint(kAnimated); }

    void paintEvent(QPaintEvent*) override
    {
        if (mArrow.isNull())
            return;
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(kAnimated, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.drawPixmap(
            QPointF(0, std::floor(8 + 8 * std::sin(mElapsed.elapsed() * 0.003))), mArrow);
    }

private:
    QPixmap mArrow;
    QElapsedTimer mElapsed;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QLocalSocket socket;
    QObject::connect(&socket, &QLocalSocket::readyRead, &application, &QApplication::quit);
    QObject::connect(&socket, &QLocalSocket::disconnected, &application, &QApplication::quit);
    socket.connectToServer(QStringLiteral("vemo") + arguments.value(1));
    if (arguments.size() < 3)
        return QApplication::exec();

    Window window;
    if (arguments.at(2) == QLatin1String("arrow"))
        window.bounce();
    window.show();
    return QApplication::exec();
}
