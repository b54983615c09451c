#include "tests/support/testhost.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int kDeadlineMs = 20000;
constexpr QSize kSize(700, 640); // of the authoring tool's window
const QString kTitle = QStringLiteral("tour");
const QByteArray kScenario = R"(var scenario = [
    {
        "condition": "click,",
        "followWindow": "MainWindow",
        "hint": qsTr("First"),
        "icon": "eye",
        "x": 10,
        "y": 20
    },
    {
        "condition": "wait,1",
        "hint": qsTr("Second")
    }
];)";

// Runs xdotool; its output without the line end.
QString xdotool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    process.waitForFinished(kDeadlineMs);
    return QString::fromLatin1(process.readAllStandardOutput()).trimmed();
}

QString windowTitled(const QString& title)
{
    return xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
        QStringLiteral("--name"), QStringLiteral("^%1$").arg(title)});
}

// As lines "NAME=number".
QString geometryOf(const QString& window)
{
    return xdotool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), window});
}

bool waitForWindow(const QString& title, bool shown = true)
{
    return QTest::qWaitFor([&] { return windowTitled(title).isEmpty() != shown; }, kDeadlineMs);
}

} // namespace

// The authoring tool as its writer has it: the real program, opened by its
// host, under a window manager, used with mouse and keyboard.
class tst_AuthoringOnScreen : public QObject {
    Q_OBJECT

private slots:
    void init();

    void saveIsClicked();
    void escapeAsksBeforeClosing();

private:
    void press(const char* key);
    // Clicks at a place in the authoring tool.
    void click(int x, int y);
    QByteArray saved() const;

    QTemporaryDir mFolder;
    QScopedPointer<TestHost> mHost;
};

void tst_AuthoringOnScreen::init()
{
    QFile file(mFolder.filePath(kTitle + QStringLiteral(".js")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kScenario);
    file.close();
    mHost.reset(new TestHost);
    QVERIFY(mHost->startAndConnect());
    mHost->send({{QStringLiteral("editor"), QStringLiteral("open"), file.fileName()}});
    QVERIFY(waitForWindow(kTitle));
    // Large enough that the whole form can be seen, and in a known place.
    const QString window = windowTitled(kTitle);
    xdotool({QStringLiteral("windowsize"), window, QString::number(kSize.width()),
        QString::number(kSize.height())});
    xdotool({QStringLiteral("windowmove"), window, QStringLiteral("100"), QStringLiteral("60")});
    xdotool({QStringLiteral("windowactivate"), window});
    QTRY_VERIFY_WITH_TIMEOUT(
        geometryOf(window).contains(
            QStringLiteral("WIDTH=%1\nHEIGHT=%2").arg(kSize.width()).arg(kSize.height())),
        kDeadlineMs);
    // The first row of the tree.
    click(60, 42);
    QTRY_VERIFY_WITH_TIMEOUT(mHost->receivedBytes().contains("updateXYFollowWindow\1"
                                                             "10\1"
                                                             "20\1"
                                                             "0"),
        kDeadlineMs);
}

void tst_AuthoringOnScreen::press(const char* key)
{
    xdotool({QStringLiteral("key"), QLatin1String(key)});
}

void tst_AuthoringOnScreen::click(int x, int y)
{
    xdotool({QStringLiteral("mousemove"), QStringLiteral("--window"), windowTitled(kTitle),
        QString::number(x), QString::number(y), QStringLiteral("click"), QStringLiteral("1")});
}

QByteArray tst_AuthoringOnScreen::saved() const
{
    QFile file(mFolder.filePath(kTitle + QStringLiteral(".js")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_AuthoringOnScreen::saveIsClicked()
{
    // A new step above the first one.
    press("KP_Enter");
    click(kSize.width() - 40, kSize.height() - 25);
    QVERIFY(waitForWindow(QStringLiteral("Save")));
    QCOMPARE(saved(), kScenario);
    press("alt+y");
    QByteArray expected = kScenario;
    expected.replace("var scenario = [\n", R"(var scenario = [
    {
        "comment": "",
        "condition": "click",
        "followWindow": "MainWindow",
        "hint": "",
        "icon": "click",
        "x": 0,
        "y": 0
    },
)");
    QTRY_COMPARE_WITH_TIMEOUT(saved(), expected, kDeadlineMs);
    // Nothing is left to ask about.
    QVERIFY(waitForWindow(QStringLiteral("Save"), false));
    press("Escape");
    QVERIFY(waitForWindow(kTitle, false));
    QCOMPARE(mHost->process().state(), QProcess::Running);
}

void tst_AuthoringOnScreen::escapeAsksBeforeClosing()
{
    press("Delete");
    press("Escape");
    QVERIFY(waitForWindow(QStringLiteral("Save")));
    press("Escape");
    QVERIFY(waitForWindow(QStringLiteral("Save"), false));
    QVERIFY(waitForWindow(kTitle));

    press("Escape");
    QVERIFY(waitForWindow(QStringLiteral("Save")));
    press("alt+n");
    QVERIFY(waitForWindow(kTitle, false));
    QCOMPARE(saved(), kScenario);

    // The host opens it again, as it was saved.
    mHost->send({{QStringLiteral("editor"), QStringLiteral("open"),
        mFolder.filePath(kTitle + QStringLiteral(".js"))}});
    QVERIFY(waitForWindow(kTitle));
}

QTEST_GUILESS_MAIN(tst_AuthoringOnScreen)
#include "tst_authoring_on_screen.moc"
