// SPDX-License-Identifier: MIT
#include "editor/scenario/scenarioreader.h"
#include "tests/support/xdotool.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int kDeadlineMs = 20000;
constexpr int kNoDoubleClickMs = 500;
constexpr QSize kEditorSize(640, 700);
const QByteArray kStarter = R"(var scenario = [
    {
        "comment": "",
        "condition": "click",
        "followWindow": "MainWindow",
        "hint": qsTr("Welcome!"),
        "icon": "click",
        "x": 0,
        "y": 0
    }
];)";

// How many buttons the overlay shows, told by their size.
int buttons()
{
    int count = 0;
    const QString windows = xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
        QStringLiteral("--class"), QStringLiteral("^tutorial$")});
    for (const QString& window : windows.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (xdotool({QStringLiteral("getwindowgeometry"), window})
                .contains(QLatin1String("Geometry: 64x32")))
            ++count;
    }
    return count;
}

// The conditions in the steps' order, groups in brackets.
QString outline(const QJsonArray& steps)
{
    QStringList parts;
    for (const QJsonValue& value : steps) {
        const QJsonObject step = value.toObject();
        const QJsonValue group = step.value(QLatin1String("group"));
        parts << (group.isArray() ? QStringLiteral("[%1]").arg(outline(group.toArray()))
                                  : step.value(QLatin1String("condition")).toString());
    }
    return parts.join(QLatin1Char(' '));
}

struct NewStep {
    const char* position; // x and y; empty for a point that is picked
    const char* window; // empty for the window in front
    const char* condition; // what is typed into the boxes and, after "=", fields
    const char* icon;
};

const NewStep kSteps[] = {
    {"705 332", "", "wait|=1", "wait"},
    {"737 236", "MainWindow", "mouseEvent|Map|click", "click"},
    {"60 176", "MapEditLeftPanelItem", "list|=5", "click"},
    {"466 40", "MainWindow", "windowState|Options|open", "click"},
    {"150 41", "Options", "checked|=grid|=0", "click"},
    {"311 162", "Options", "windowState|Options|close", "click"},
    {"18 40", "MainWindow", "windowState|NewProject|open", "click"},
    {"249 41", "NewProject", "textLength||=3", "keyboard"},
    {"311 238", "NewProject", "windowState|NewProject|close", "click"},
    {"", "MainWindow", "yesNo||", "eye"},
};

} // namespace

// A writer's afternoon: out of the starter file comes a tutorial, by keys and
// clicks alone, and is played.
class tst_WritingOnScreen : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void stepsAreWritten();
    void stepsAreArranged();
    void scenarioIsSaved();
    void groupIsTriedOut();
    void escapeAsksBeforeClosing();
    void learnerGetsToTheEnd();

private:
    void selectInTree(const QString& keys);
    void write(const NewStep& step);
    QJsonArray savedSteps() const;

    QTemporaryDir mFolder;
    QString mPath;
    QProcess mDemo;
    QString mEditor;
    QString mHost;
};

void tst_WritingOnScreen::initTestCase()
{
    mPath = mFolder.filePath(QStringLiteral("garden.js"));
    QFile file(mPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kStarter);
    file.close();
    mDemo.setStandardErrorFile(QProcess::nullDevice());
    mDemo.start(QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial-demo"),
        {QStringLiteral("--edit"), mPath, QStringLiteral("--language"), QStringLiteral("en")});
    QVERIFY(waitForWindow(QStringLiteral("^garden")));
    mEditor = windowTitled(QStringLiteral("^garden"));
    mHost = windowTitled(QStringLiteral("Map Workshop$"));
    xdotool({QStringLiteral("windowmove"), mHost, QStringLiteral("10"), QStringLiteral("30")});
    xdotool({QStringLiteral("windowsize"), mEditor, QString::number(kEditorSize.width()),
        QString::number(kEditorSize.height())});
    xdotool({QStringLiteral("windowmove"), mEditor, QStringLiteral("1220"), QStringLiteral("60")});
    QTRY_VERIFY(xdotool({QStringLiteral("getwindowgeometry"), mEditor})
                    .contains(QStringLiteral("Geometry: %1x%2")
                                  .arg(kEditorSize.width())
                                  .arg(kEditorSize.height())));
}

void tst_WritingOnScreen::cleanupTestCase()
{
    if (mDemo.state() == QProcess::NotRunning)
        return;
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), mHost});
    press(QStringLiteral("alt+F4"));
    QVERIFY(mDemo.waitForFinished(kDeadlineMs));
    // The tutorial has gone with its host, and the authoring tool with it.
    QVERIFY(waitForWindow(QStringLiteral("^garden"), false));
}

void tst_WritingOnScreen::selectInTree(const QString& keys)
{
    QTest::qWait(kNoDoubleClickMs); // a double click would start the tutorial
    click(mEditor, 60, 42); // on the first row
    press(keys);
}

void tst_WritingOnScreen::write(const NewStep& step)
{
    // Above the last row, which marks the end: behind all others.
    selectInTree(QStringLiteral("End KP_Enter"));
    for (const QString& number : QString::fromLatin1(step.position).split(QLatin1Char(' '))) {
        press(QStringLiteral("Tab"));
        if (!number.isEmpty()) {
            press(QStringLiteral("ctrl+a"));
            type(number);
        }
    }
    if (!*step.position)
        press(QStringLiteral("Tab"));
    press(QStringLiteral("Tab")); // the followed window
    type(QLatin1String(step.window));
    press(QStringLiteral("Tab"));
    if (!*step.window)
        press(QStringLiteral("space")); // RefWindow
    press(QStringLiteral("Tab Tab")); // behind the comment, to the hint
    type(QStringLiteral("qsTr(\"Do %1 now.\")").arg(QLatin1String(step.icon)));
    press(QStringLiteral("Tab")); // the translation
    for (const QString& part : QString::fromLatin1(step.condition).split(QLatin1Char('|'))) {
        const bool isField = part.startsWith(QLatin1Char('='));
        press(isField ? QStringLiteral("Tab ctrl+a") : QStringLiteral("Tab"));
        type(isField ? part.mid(1) : part);
    }
    press(QStringLiteral("Tab"));
    type(QLatin1String(step.icon));
    if (*step.position)
        return;
    selectInTree(QStringLiteral("End Up ctrl+m"));
    QTest::qWait(500); // the host waits for the point
    click(mHost, 640, 300);
    QTest::qWait(500);
}

QJsonArray tst_WritingOnScreen::savedSteps() const
{
    QJsonArray steps;
    QStringList errors;
    TutorialEditor::readScenarioFile(mPath, &steps, &errors);
    return errors.isEmpty() ? steps : QJsonArray();
}

void tst_WritingOnScreen::stepsAreWritten()
{
    for (const NewStep& step : kSteps)
        write(step);
}

void tst_WritingOnScreen::stepsAreArranged()
{
    // The steps in the options become a group, and with the one before a group
    // around it.
    selectInTree(QStringLiteral("Home Down Down Down Down shift+Down shift+Down ctrl+b"));
    selectInTree(QStringLiteral("Home Down Down Down shift+Down ctrl+b"));
    // The new project's steps: grouped, ungrouped, and grouped once more.
    selectInTree(QStringLiteral("End Up Up Up Up shift+Down shift+Down ctrl+b ctrl+i ctrl+b"));
    // The waiting is doubled, and one of the two becomes the beginning.
    selectInTree(QStringLiteral("Home Down ctrl+c ctrl+v ctrl+x"));
    selectInTree(QStringLiteral("Home ctrl+v"));
}

void tst_WritingOnScreen::scenarioIsSaved()
{
    click(mEditor, kEditorSize.width() - 40, kEditorSize.height() - 25);
    QVERIFY(waitForWindow(QStringLiteral("^Save$")));
    press(QStringLiteral("alt+y"));
    QVERIFY(waitForWindow(QStringLiteral("^Save$"), false));

    QTRY_COMPARE_WITH_TIMEOUT(outline(savedSteps()),
        QStringLiteral("wait,1 click wait,1 mouseEvent,Map,click "
                       "[list,5 [windowState,Options,open checked,grid,0 "
                       "windowState,Options,close]] "
                       "[windowState,NewProject,open textLength,>=,3 "
                       "windowState,NewProject,close] yesNo,,"),
        kDeadlineMs);
    const QJsonArray steps = savedSteps();
    const QJsonObject first = steps.first().toObject();
    QCOMPARE(first.value(QLatin1String("followWindow")).toString(), QStringLiteral("MainWindow"));
    QCOMPARE(first.value(QLatin1String("x")).toInt(), 705);
    const QJsonObject last = steps.last().toObject();
    QCOMPARE(last.value(QLatin1String("x")).toInt(), 640);
    QCOMPARE(last.value(QLatin1String("y")).toInt(), 300);
    QCOMPARE(last.value(QLatin1String("hint")).toString(), QStringLiteral("qsTr(\"Do eye now.\")"));
}

void tst_WritingOnScreen::groupIsTriedOut()
{
    // The group before the question: its first step is shown, and the learner's
    // work in the new project leads on to the question.
    selectInTree(QStringLiteral("End Up Up Up Up Up Up space"));
    QTest::qWait(1000);
    QCOMPARE(buttons(), 0);
    click(mHost, 18, 40);
    QVERIFY(waitForWindow(QStringLiteral("^New Project$")));
    const QString dialog = windowTitled(QStringLiteral("^New Project$"));
    QTest::qWait(500);
    click(dialog, 249, 41);
    type(QStringLiteral("abc"));
    QTest::qWait(500);
    click(dialog, 311, 238);
    QTRY_COMPARE_WITH_TIMEOUT(buttons(), 2, kDeadlineMs);
}

void tst_WritingOnScreen::escapeAsksBeforeClosing()
{
    QFile file(mPath);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray saved = file.readAll();
    selectInTree(QStringLiteral("Home Delete Escape"));
    QVERIFY(waitForWindow(QStringLiteral("^Save$")));
    press(QStringLiteral("Escape"));
    QVERIFY(waitForWindow(QStringLiteral("^Save$"), false));
    QVERIFY(waitForWindow(QStringLiteral("^garden")));

    press(QStringLiteral("Escape"));
    QVERIFY(waitForWindow(QStringLiteral("^Save$")));
    press(QStringLiteral("alt+n"));
    QVERIFY(waitForWindow(QStringLiteral("^garden"), false));
    file.seek(0);
    QCOMPARE(file.readAll(), saved);
}

void tst_WritingOnScreen::learnerGetsToTheEnd()
{
    cleanupTestCase();
    QProcess demo;
    demo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    demo.start(mDemo.program(), {QStringLiteral("--autoplay"), mPath});
    QVERIFY(demo.waitForFinished(120000));
    QCOMPARE(demo.exitStatus(), QProcess::NormalExit);
    QCOMPARE(demo.exitCode(), 0);
    QCOMPARE(demo.readAllStandardOutput().count(" ok\n"), 11 + 1);
}

QTEST_GUILESS_MAIN(tst_WritingOnScreen)
#include "tst_writing_on_screen.moc"
