// SPDX-License-Identifier: MIT
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"
#include "tests/support/testhost.h"
#include "tests/support/xdotool.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>

#include <csignal>

using namespace TutorialEditor;

namespace {

constexpr int kDeadlineMs = 20000;
constexpr int kHiddenWithinMs = 500;
const QString kAuthoringTool = QStringLiteral("^garden");

// A host that has a scenario edited and shows one of its steps, until it is
// killed. Prints the tutorial's process id.
int runHost(const QString& scenario)
{
    TestHost host;
    if (!host.startAndConnect())
        return 1;
    const auto fields = [](const char* text) { return QString::fromLatin1(text).split(u'|'); };
    host.send({fields("editor|open") << scenario, fields("editor|focus|0"),
        fields("editor|coordinates|7|8"), fields("start|0|0|1280|800"),
        fields("indicator|updateXy|600|300")});
    // Again and again, for the authoring tool shows its step when it opens.
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &host,
        [&] { host.send({fields("indicator|update|0|0|0|Press <b>Next</b>.|3|0")}); });
    timer.start(100);
    QTextStream(stdout) << host.process().processId() << Qt::endl;
    return QCoreApplication::exec();
}

QJsonArray steps(int x)
{
    return {QJsonObject{{QStringLiteral("hint"), QStringLiteral("qsTr(\"Step\")")},
        {QStringLiteral("x"), x}, {QStringLiteral("y"), x + 1}}};
}

} // namespace

class tst_HostGoneOnScreen : public QObject {
    Q_OBJECT

private slots:
    void overlayGoesAndTheAuthorStays();
};

// The arrow used to stay on the empty desktop for 30 seconds.
void tst_HostGoneOnScreen::overlayGoesAndTheAuthorStays()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("garden.js"));
    QVERIFY(writeScenarioFile(path, scenarioJson(steps(1))));
    for (const char* home : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qputenv(home, QFile::encodeName(folder.path()));

    QProcess host;
    host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    host.start(QCoreApplication::applicationFilePath(), {QStringLiteral("host"), path});
    QTRY_VERIFY_WITH_TIMEOUT(host.canReadLine(), kDeadlineMs);
    const QString tutorial = QString::fromLatin1(host.readLine().trimmed());
    const auto shownWindows = [&tutorial] {
        return xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                           QStringLiteral("--pid"), tutorial})
            .split(u'\n', Qt::SkipEmptyParts);
    };
    QVERIFY(waitForWindow(kAuthoringTool));
    // The authoring tool, the balloon, Next, Yes, No and the log window.
    QTRY_COMPARE_WITH_TIMEOUT(shownWindows().size(), 6, kDeadlineMs);

    QElapsedTimer clock;
    clock.start();
    host.kill();
    while (shownWindows() != QStringList{windowTitled(kAuthoringTool)})
        QVERIFY2(clock.elapsed() < kHiddenWithinMs, qPrintable(shownWindows().join(u' ')));
    QVERIFY(host.waitForFinished(kDeadlineMs));

    // What the author does now shows nothing of the overlay, and is saved.
    const QString window = windowTitled(kAuthoringTool);
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), window});
    press(QStringLiteral("Escape"));
    QVERIFY(waitForWindow(QStringLiteral("^Save$")));
    QCOMPARE(shownWindows().size(), 2);
    press(QStringLiteral("alt+y"));
    const auto savedSteps = [&path] {
        QJsonArray read;
        QStringList errors;
        readScenarioFile(path, &read, &errors);
        return read;
    };
    QTRY_COMPARE_WITH_TIMEOUT(savedSteps(), steps(7), kDeadlineMs);
    QTRY_VERIFY_WITH_TIMEOUT(shownWindows().isEmpty(), kDeadlineMs);
    QCOMPARE(kill(tutorial.toInt(), SIGTERM), 0);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("host"))
        return runHost(arguments.value(2));
    tst_HostGoneOnScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_host_gone_on_screen.moc"
