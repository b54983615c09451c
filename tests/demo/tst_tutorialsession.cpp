#include "demo/mainwindow.h"
#include "demo/tutorialsession.h"
#include "demo/windowregistry.h"
#include "tests/demo/faketutorial.h"

#include <QScreen>
#include <QTemporaryDir>
#include <QtTest>

using namespace Tutorial;

namespace {

QString xy(const QPoint& point)
{
    return QStringLiteral("indicator updateXy %1 %2").arg(point.x()).arg(point.y());
}

} // namespace

// What the tutorial is told while the editor plays.
class tst_TutorialSession : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void beginsInOnePacket();
    void followsTheWindow();
    void stepsWithoutTarget();
    void minimising();
    void stopsAtTheEnd();

private:
    bool play(const QByteArray& steps);
    QStringList packets() const { return mTutorial->packets(); }

    std::unique_ptr<FakeTutorial> mTutorial;
    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<WindowRegistry> mRegistry;
    std::unique_ptr<MainWindow> mWindow;
    std::unique_ptr<TutorialSession> mSession;
};

void tst_TutorialSession::init()
{
    mFolder = std::make_unique<QTemporaryDir>();
    mTutorial = std::make_unique<FakeTutorial>();
    mRegistry = std::make_unique<WindowRegistry>();
    mWindow = std::make_unique<MainWindow>(*mRegistry);
    mSession =
        std::make_unique<TutorialSession>(QCoreApplication::applicationFilePath(), *mRegistry);
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    // The platform's window frame comes without a word.
    mWindow->move(mWindow->pos() + QPoint(10, 10));
}

void tst_TutorialSession::cleanup()
{
    mSession.reset();
    mWindow.reset();
}

bool tst_TutorialSession::play(const QByteArray& steps)
{
    QFile file(mFolder->filePath(QStringLiteral("scenario.js")));
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("var scenario = [\n" + steps + "\n];");
    file.close();
    return mSession->play(file.fileName())
        && QTest::qWaitFor([this] { return !packets().isEmpty(); }, 20000);
}

// The stack and the positions are there before the first target, and no arrow
// is shown before it has one.
void tst_TutorialSession::beginsInOnePacket()
{
    QVERIFY(play(R"({
"condition": "click,",
"followWindow": "MapEditTreeBox",
"hint": "Here",
"icon": "eye",
"x": 30,
"y": 40
})"));
    const QStringList messages = packets().first().split(QLatin1String("; "));
    const QPoint panel = mRegistry->positions().value(Window_MapEditLeftPanelItem);
    const QRect area = mWindow->screen()->availableGeometry();
    QCOMPARE(messages.first(),
        QStringLiteral("start %1 %2 %3 %4")
            .arg(area.x())
            .arg(area.y())
            .arg(area.width())
            .arg(area.height()));
    QVERIFY(messages.contains(QStringLiteral("windowStack push 0")));
    QVERIFY(
        messages.contains(QStringLiteral("windowPosition 66 %1 %2").arg(panel.x()).arg(panel.y())));
    QCOMPARE(
        messages.at(messages.size() - 2), QStringLiteral("indicator update 30 40 65 Here 1 3"));
    QCOMPARE(messages.last(), xy(panel + QPoint(30, 40) - QPoint(38, 165)));
}

void tst_TutorialSession::followsTheWindow()
{
    QVERIFY(play(R"({
"condition": "click,",
"followWindow": "MainWindow",
"x": 100,
"y": 50
})"));
    mWindow->move(mWindow->pos() + QPoint(21, 13));
    const QPoint moved = mWindow->mapToGlobal({});
    QTRY_VERIFY(
        packets().contains(QStringLiteral("windowPosition 0 %1 %2").arg(moved.x()).arg(moved.y())));
    QTRY_COMPARE(packets().last(), xy(moved + QPoint(100, 50) - QPoint(38, 165)));
}

void tst_TutorialSession::stepsWithoutTarget()
{
    QVERIFY(play(R"({
"condition": "yesNo,,",
"followWindow": "MainWindow",
"option": 1
})"));
    const QStringList messages = packets().first().split(QLatin1String("; "));
    QCOMPARE(
        messages.at(messages.size() - 2), QStringLiteral("indicator update -9999 -9999 0  6 6"));
    // Its hint stands in the middle of the window.
    const QPoint middle = mWindow->mapToGlobal(mWindow->rect().center());
    QCOMPARE(messages.last(), xy(middle - QPoint(204, 100)));
}

void tst_TutorialSession::minimising()
{
    QVERIFY(play(R"({
"condition": "click,",
"followWindow": "MainWindow"
})"));
    const QString begin = packets().first();
    mWindow->showMinimized();
    QTRY_COMPARE(packets().last(), QStringLiteral("stop"));
    QCOMPARE(packets().at(packets().size() - 2), QStringLiteral("state hide"));
    mWindow->showNormal();
    QTRY_VERIFY(packets().last().startsWith(QLatin1String("start ")));
    QVERIFY(packets().last().contains(QLatin1String("indicator update")));
}

void tst_TutorialSession::stopsAtTheEnd()
{
    QSignalSpy finished(mSession.get(), &TutorialSession::finished);
    QVERIFY(play(R"({
"condition": "action,Zoom In,",
"followWindow": "MainWindow"
})"));
    mWindow->findChild<QAction*>(QStringLiteral("Zoom In"))->trigger();
    QTRY_COMPARE(finished.size(), 1);
    QTRY_COMPARE(packets().last(), QStringLiteral("stop"));
    mSession.reset();
    QTRY_COMPARE(packets().last(), QStringLiteral("bye"));
}

int main(int argc, char** argv)
{
    return FakeTutorial::runTest<tst_TutorialSession>(argc, argv);
}

#include "tst_tutorialsession.moc"
