#include "app/application.h"

#include <QtTest>

class tst_Platform : public QObject {
    Q_OBJECT

private slots:
    void platformToAskFor_data();
    void platformToAskFor();
};

void tst_Platform::platformToAskFor_data()
{
    QTest::addColumn<QByteArray>("requested");
    QTest::addColumn<QByteArray>("session");
    QTest::addColumn<QByteArray>("wayland");
    QTest::addColumn<QByteArray>("x");
    QTest::addColumn<QByteArray>("platform");

    const auto row = [](const char* tag, const char* requested, const char* session,
                         const char* wayland, const char* x, const char* platform) {
        QTest::newRow(tag) << QByteArray(requested) << QByteArray(session) << QByteArray(wayland)
                           << QByteArray(x) << QByteArray(platform);
    };
    row("X session", "", "x11", "", ":0", "");
    row("Wayland session with an X server", "", "wayland", "wayland-0", ":0", "xcb");
    row("Wayland display alone tells", "", "", "wayland-0", ":0", "xcb");
    row("Wayland session without an X server", "", "wayland", "wayland-0", "", "");
    row("a platform was requested", "wayland", "wayland", "wayland-0", ":0", "");
}

void tst_Platform::platformToAskFor()
{
    QFETCH(QByteArray, requested);
    QFETCH(QByteArray, session);
    QFETCH(QByteArray, wayland);
    QFETCH(QByteArray, x);
    QTEST(::platformToAskFor(requested, session, wayland, x), "platform");
}

QTEST_APPLESS_MAIN(tst_Platform)
#include "tst_platform.moc"
