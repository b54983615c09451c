// SPDX-License-Identifier: MIT
#include "tests/support/xdotool.h"

#include <QProcess>
#include <QtTest>

#include <csignal>

// The program as it is called from a shell.
class tst_DemoProgram : public QObject {
    Q_OBJECT

private slots:
    void wrongUsage_data();
    void wrongUsage();
    void autoplayTellsWhereItIsStuck();
    void signalEndsItsTutorialToo();

private:
    // Runs the program to its end; its exit code, and its error output.
    int run(const QStringList& arguments);

    QString mErrors;
};

int tst_DemoProgram::run(const QStringList& arguments)
{
    QProcess program;
    program.start(
        QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial-demo"), arguments);
    const bool ended = program.waitForFinished(60000);
    mErrors = QString::fromUtf8(program.readAllStandardError());
    return ended ? program.exitCode() : -1;
}

void tst_DemoProgram::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* line : {"--unknown", "--play no-such-scenario", "--language tlh",
             "--play first-steps --autoplay first-steps", "--edit no-such-file.js",
             "--play first-steps --edit README.md", "--play first-steps --minutes 5",
             "--autoplay first-steps --minutes soon"})
        QTest::newRow(line) << QString::fromLatin1(line).split(QLatin1Char(' '));
}

void tst_DemoProgram::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QCOMPARE(run(arguments), 2);
    QVERIFY(mErrors.startsWith(QLatin1String("tutorial-demo: ")));
}

void tst_DemoProgram::autoplayTellsWhereItIsStuck()
{
    QTemporaryFile scenario;
    QVERIFY(scenario.open());
    // The arrow points beside the button that the condition asks for.
    scenario.write(R"(var scenario = [
    {
        "condition": "click,",
        "followWindow": "MainWindow"
    },
    {
        "condition": "action,New Project,",
        "followWindow": "MainWindow",
        "x": 700,
        "y": 40
    }
];)");
    scenario.close();
    QCOMPARE(run({QStringLiteral("--autoplay"), scenario.fileName()}), 1);
    QVERIFY2(mErrors.contains(QLatin1String("[1] action,New Project,")), qPrintable(mErrors));
}

void tst_DemoProgram::signalEndsItsTutorialToo()
{
    const auto hasTutorial = [] {
        return !xdotool(
            {QStringLiteral("search"), QStringLiteral("--classname"), QStringLiteral("^tutorial$")})
                    .isEmpty();
    };
    QProcess program;
    program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial-demo"),
        {QStringLiteral("--play"), QStringLiteral("first-steps")});
    QTRY_VERIFY_WITH_TIMEOUT(hasTutorial(), 20000);
    program.terminate();
    QVERIFY(program.waitForFinished(20000));
    QCOMPARE(program.exitCode(), 128 + SIGTERM);
    // It would go on for 30 seconds without a word from its host.
    QTRY_VERIFY(!hasTutorial());
}

QTEST_GUILESS_MAIN(tst_DemoProgram)
#include "tst_demoprogram.moc"
