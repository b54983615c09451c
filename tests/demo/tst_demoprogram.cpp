#include <QProcess>
#include <QtTest>

// The program as it is called from a shell.
class tst_DemoProgram : public QObject {
    Q_OBJECT

private slots:
    void help();
    void wrongUsage_data();
    void wrongUsage();
    void autoplayTellsWhereItIsStuck();
    void autoplayNeedsAnXServer();
    void autoplayNeedsTheTutorial();

private:
    // Runs the program to its end; its exit code, and its error output.
    int run(const QStringList& arguments, const char* platform = "xcb");

    QString mErrors;
};

int tst_DemoProgram::run(const QStringList& arguments, const char* platform)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QLatin1String(platform));
    program.setProcessEnvironment(environment);
    program.start(
        QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial-demo"), arguments);
    const bool ended = program.waitForFinished(60000);
    mErrors = QString::fromUtf8(program.readAllStandardError());
    return ended ? program.exitCode() : -1;
}

void tst_DemoProgram::help()
{
    QCOMPARE(run({QStringLiteral("--help")}, "none"), 0);
    QCOMPARE(mErrors, QString());
}

void tst_DemoProgram::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const char* line) {
        QTest::newRow(line) << QString::fromLatin1(line).split(QLatin1Char(' '));
    };
    row("--unknown");
    row("first-steps");
    row("--play no-such-scenario");
    row("--language tlh");
    row("--play first-steps --autoplay first-steps");
    row("--screenshots /tmp");
    row("--edit /tmp");
    row("--edit no-such-file.js");
    row("--play first-steps --edit README.md");
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
        "hint": "Stuck",
        "group": [
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
]
    }
];)");
    scenario.close();
    QCOMPARE(run({QStringLiteral("--autoplay"), scenario.fileName()}), 1);
    QVERIFY2(mErrors.contains(QLatin1String("[0,1] action,New Project,")), qPrintable(mErrors));
}

void tst_DemoProgram::autoplayNeedsAnXServer()
{
    QCOMPARE(run({QStringLiteral("--autoplay"), QStringLiteral("first-steps")}, "offscreen"), 1);
    QVERIFY2(mErrors.contains(QLatin1String("X server")), qPrintable(mErrors));
}

void tst_DemoProgram::autoplayNeedsTheTutorial()
{
    QCOMPARE(run({QStringLiteral("--autoplay"), QStringLiteral("first-steps"),
                 QStringLiteral("--tutorial"), QStringLiteral("/no/such/program")}),
        1);
    QVERIFY2(mErrors.contains(QLatin1String("/no/such/program")), qPrintable(mErrors));
}

QTEST_GUILESS_MAIN(tst_DemoProgram)
#include "tst_demoprogram.moc"
