// SPDX-License-Identifier: MIT
#include <TutorialHost/Host>

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QtTest>

#include <algorithm>
#include <csignal>

using namespace TutorialHost;

Q_DECLARE_METATYPE(TutorialEditor::Rule)

namespace {

const char kOneStep[] = "var scenario = [\n    {\"condition\": \"click\"}\n];\n";

} // namespace

// A host of the test's making with the real tutorial.
class tst_Host : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(mFolder.isValid()); }
    void playsWordsOfItsOwn();
    void tellsWhyThereIsNoTutorial_data();
    void tellsWhyThereIsNoTutorial();
    void startsALostTutorialAgain();
    void stopsBeforeItHasBegun();
    void givesTheTutorialItsScaleAndSilence_data();
    void givesTheTutorialItsScaleAndSilence();
    void checksAgainstTheProgram_data();
    void checksAgainstTheProgram();

private:
    QString write(const QString& name, const QByteArray& text);
    // A program that leaves its process id in the file "pid" and goes on as the
    // tutorial.
    QString tutorialWithPid();

    QTemporaryDir mFolder;
};

QString tst_Host::write(const QString& name, const QByteArray& text)
{
    QFile file(mFolder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("%s cannot be written", qPrintable(name));
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return file.fileName();
}

QString tst_Host::tutorialWithPid()
{
    return write(QStringLiteral("tutorial"),
        QStringLiteral("#!/bin/sh\n[ \"$1\" = --version ] || echo $$ > \"%1/pid\"\n"
                       "exec \"%2/tutorial\" \"$@\"\n")
            .arg(mFolder.path(), QCoreApplication::applicationDirPath())
            .toUtf8());
}

void tst_Host::playsWordsOfItsOwn()
{
    const QString scenario = write(QStringLiteral("words.js"), R"(var scenario = [
    {"condition": "click", "followWindow": "MainWindow"},
    {"label": "notes", "command": "fill,a,b", "condition": "filled,notes,3", "followWindow": "Notes"},
    {"label": "closing", "condition": "windowState,Notes,close", "followWindow": "MainWindow"}
];)");
    QMainWindow window;
    window.show();
    Options options;
    options.program = tutorialWithPid();
    Host host(&window, options);
    host.addWindow(QStringLiteral("notesDialog"), QStringLiteral("Notes"));
    QString filled;
    host.addCommand(QStringLiteral("fill"), [&](const QString& parameter) {
        filled = parameter;
        return true;
    });
    QLineEdit* edit = nullptr;
    host.addCondition(QStringLiteral("filled"), [&](const QStringList& parameters) {
        return edit && parameters.value(0) == QLatin1String("notes")
            && edit->text().size() == parameters.value(1).toInt();
    });
    QSignalSpy steps(&host, &Host::stepShown);
    QSignalSpy ends(&host, &Host::finished);

    QVERIFY(!host.play(scenario, QStringLiteral("nowhere")));
    QVERIFY(host.play(scenario, QStringLiteral("notes")));
    QTRY_COMPARE_WITH_TIMEOUT(filled, QStringLiteral("a,b"), 20000);
    // Its window is made only now; and another of the kind is over it.
    QDialog dialog(&window);
    dialog.setObjectName(QStringLiteral("notesDialog"));
    edit = new QLineEdit(&dialog);
    dialog.show();
    QDialog second(&window);
    second.setObjectName(QStringLiteral("notesDialog"));
    second.show();
    QTRY_COMPARE(steps.size(), 1);
    QCOMPARE(steps.last().first().toString(), QStringLiteral("notes"));
    edit->setText(QStringLiteral("abc"));
    QTRY_COMPARE(steps.size(), 2);
    QCOMPARE(steps.last().first().toString(), QStringLiteral("closing"));
    // One is left.
    second.close();
    QVERIFY(!ends.wait(300));
    dialog.close();
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(ends.first().first().value<Result>(), Result::Completed);
}

void tst_Host::tellsWhyThereIsNoTutorial_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<Result>("result");
    QTest::newRow("none") << QStringLiteral("/nowhere/tutorial") << Result::NotInstalled;
    QTest::newRow("another version")
        << write(QStringLiteral("other"), "#!/bin/sh\necho tutorial 99.1\n")
        << Result::WrongVersion;
    QTest::newRow("ends at once") << write(
        QStringLiteral("ends"), "#!/bin/sh\necho tutorial " PROJECT_VERSION ".7\n")
                                  << Result::Crashed;
}

void tst_Host::tellsWhyThereIsNoTutorial()
{
    QFETCH(QString, program);
    QFETCH(Result, result);
    QWidget window;
    Options options;
    options.program = program;
    Host host(&window, options);
    QSignalSpy ends(&host, &Host::finished);
    QVERIFY(host.play(write(QStringLiteral("one.js"), kOneStep)));
    QTRY_COMPARE_WITH_TIMEOUT(ends.size(), 1, 20000);
    QCOMPARE(ends.first().first().value<Result>(), result);
}

void tst_Host::startsALostTutorialAgain()
{
    const QString program = tutorialWithPid();
    QWidget window;
    window.show();
    Options options;
    options.program = program;
    Host host(&window, options);
    int loads = 0;
    host.addCommand(QStringLiteral("presetData"), [&](const QString&) { return ++loads > 0; });
    QSignalSpy notices(&host, &Host::notice);
    QSignalSpy ends(&host, &Host::finished);
    qint64 pid = 0;
    const auto runningPid = [&]() -> qint64 {
        QFile file(mFolder.filePath(QStringLiteral("pid")));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : 0;
    };
    QFile::remove(mFolder.filePath(QStringLiteral("pid")));
    QVERIFY(host.play(write(QStringLiteral("one.js"),
        "var scenario = [\n    {\"condition\": \"click\", \"command\": \"presetData,x\"}\n];\n")));
    // One that hangs is lost too.
    for (int signal : {SIGSTOP, SIGKILL, SIGKILL}) {
        QTRY_VERIFY_WITH_TIMEOUT(runningPid() > 0 && runningPid() != pid, 20000);
        pid = runningPid();
        if (loads == 0)
            QTRY_COMPARE_WITH_TIMEOUT(loads, 1, 20000);
        QCOMPARE(ends.size(), 0);
        QCOMPARE(::kill(pid_t(pid), signal), 0);
    }
    QTRY_COMPARE_WITH_TIMEOUT(ends.size(), 1, 20000);
    QCOMPARE(ends.first().first().value<Result>(), Result::Crashed);
    // It was the same step all the time, and is not entered anew.
    QCOMPARE(loads, 1);
    QCOMPARE(notices.size(), 3);
}

void tst_Host::stopsBeforeItHasBegun()
{
    QWidget window;
    window.show();
    Options options;
    options.program = tutorialWithPid();
    Host host(&window, options);
    QSignalSpy steps(&host, &Host::stepShown);
    QSignalSpy ends(&host, &Host::finished);
    QVERIFY(host.play(write(QStringLiteral("one.js"), kOneStep)));
    host.stop();
    QCOMPARE(ends.size(), 1);
    QCOMPARE(ends.first().first().value<Result>(), Result::Stopped);
    // It used to begin when the tutorial had connected after all.
    QVERIFY(!steps.wait(2000));
}

void tst_Host::givesTheTutorialItsScaleAndSilence_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("nothing set") << QByteArray("QT_LOGGING_RULES") << QByteArray()
                                 << QByteArray("QT_LOGGING_RULES=*.debug=false;\n");
    QTest::newRow("the user's rules go over ours")
        << QByteArray("QT_LOGGING_RULES") << QByteArray("qt.*=true")
        << QByteArray("QT_LOGGING_RULES=*.debug=false;qt.*=true\n");
    QTest::newRow("a factor") << QByteArray("QT_SCALE_FACTOR") << QByteArray("1.5")
                              << QByteArray("QT_SCALE_FACTOR=1.5\n");
    QTest::newRow("a factor a screen")
        << QByteArray("QT_SCREEN_SCALE_FACTORS") << QByteArray("a=2;b=1")
        << QByteArray("QT_SCREEN_SCALE_FACTORS=a=2;b=1\n");
    // It used to be scaled as its own Qt would have it.
    QTest::newRow("by density, or not, as the host is")
        << QByteArray() << QByteArray()
        << QByteArray("QT_ENABLE_HIGHDPI_SCALING=" + QByteArray::number(QT_VERSION_MAJOR / 6))
            + '\n';
    QTest::newRow("what the user asks for")
        << QByteArray("QT_ENABLE_HIGHDPI_SCALING") << QByteArray("7")
        << QByteArray("QT_ENABLE_HIGHDPI_SCALING=7\n");
}

void tst_Host::givesTheTutorialItsScaleAndSilence()
{
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, told);
    const QByteArray before = qgetenv(variable.constData());
    if (!value.isEmpty())
        qputenv(variable.constData(), value);
    QWidget window;
    Options options;
    options.restartAfterCrash = false;
    options.program = write(QStringLiteral("env"),
        QStringLiteral("#!/bin/sh\n[ \"$1\" = --version ] && exec echo tutorial %1\n"
                       "env > \"%2/environment\"\n")
            .arg(QStringLiteral(PROJECT_VERSION), mFolder.path())
            .toUtf8());
    Host host(&window, options);
    QSignalSpy ends(&host, &Host::finished);
    QVERIFY(host.play(write(QStringLiteral("one.js"), kOneStep)));
    QTRY_COMPARE_WITH_TIMEOUT(ends.size(), 1, 20000);
    if (!value.isEmpty())
        before.isNull() ? qunsetenv(variable.constData()) : qputenv(variable.constData(), before);
    QFile file(mFolder.filePath(QStringLiteral("environment")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray environment = '\n' + file.readAll();
    QVERIFY2(environment.contains('\n' + told), environment);
}

void tst_Host::checksAgainstTheProgram_data()
{
    using TutorialEditor::Rule;
    QTest::addColumn<QByteArray>("keys");
    // What is found, before the notes' dialog is made and after.
    QTest::addColumn<Rule>("before");
    QTest::addColumn<Rule>("after");
    const auto row = [](const char* keys, Rule before, Rule after) {
        QTest::newRow(keys) << QByteArray(keys) << before << after;
    };
    const auto always = [&row](const char* keys, Rule rule) { row(keys, rule, rule); };
    always(R"("condition": "filled,1", "followWindow": "Notes")", Rule::Count);
    always(R"("condition": "emptied,1", "followWindow": "Notes")", Rule::UnknownCondition);
    always(R"("condition": "filled,1", "followWindow": "Options")", Rule::UnknownWindow);
    always(R"("condition": "yesNo,nowhere,")", Rule::UnknownLabel);
    always(R"("condition": "click", "command": "presetData,anything")", Rule::Count);
    always(R"("condition": "click", "command": "empty,a")", Rule::UnknownCommand);
    const char kMain[] = R"("followWindow": "MainWindow", "condition": )";
    const auto main = [&](const char* condition, Rule rule) {
        always(qPrintable(QLatin1String(kMain) + QLatin1String(condition)), rule);
    };
    main(R"("action,Find")", Rule::Count);
    main(R"("action,Fnid")", Rule::UnknownAction);
    main(R"("list,1", "target": "maps[7]")", Rule::Count);
    main(R"("mouseEvent,maps,click")", Rule::Count);
    main(R"("mouseEvent,mops,click")", Rule::UnknownList);
    main(R"("checked,on,1")", Rule::UnknownCheckBox);
    main(R"("click", "target": "action:Fnid")", Rule::UnknownTarget);
    main(R"("click", "target": "MainWindow/maps")", Rule::Count);
    main(R"("click", "target": "MainWindow/mops")", Rule::UnknownTarget);
    main(R"("click", "target": "the third island")", Rule::Count);
    main(R"("click", "target": "the fourth island")", Rule::UnknownTarget);
    // What a dialog will hold is known when it is made.
    row(R"("condition": "comboBox,paper,1", "followWindow": "Notes")", Rule::Count, Rule::Count);
    row(R"("condition": "comboBox,size,1", "followWindow": "Notes")", Rule::Count,
        Rule::UnknownComboBox);
    row(R"("condition": "click", "target": "Notes/paper")", Rule::Count, Rule::Count);
    row(R"("condition": "click", "target": "notesDialog/paper")", Rule::Count, Rule::Count);
    row(R"("condition": "click", "target": "Notes/size")", Rule::Count, Rule::UnknownTarget);
}

void tst_Host::checksAgainstTheProgram()
{
    using TutorialEditor::Rule;
    QFETCH(QByteArray, keys);
    QFETCH(Rule, before);
    QFETCH(Rule, after);
    QMainWindow window;
    window.menuBar()->addAction(QStringLiteral("Find"))->setObjectName(QStringLiteral("Find"));
    (new QListWidget(&window))->setObjectName(QStringLiteral("maps"));
    Host host(&window);
    host.addWindow(QStringLiteral("notesDialog"), QStringLiteral("Notes"));
    host.addCondition(QStringLiteral("filled"), [](const QStringList&) { return false; });
    host.addCommand(QStringLiteral("presetData"), [](const QString&) { return true; });
    host.setLocator([](const QString& target) -> std::optional<QRect> {
        if (target != QLatin1String("the third island"))
            return {};
        return QRect(0, 0, 9, 9);
    });
    const QString path =
        write(QStringLiteral("checked.js"), "var scenario = [\n    {" + keys + "}\n];\n");
    const auto found = [&] {
        const auto problems = host.check(path);
        for (const Problem& problem : problems) {
            if (problem.rule >= Rule::UnknownWindow && problem.rule <= Rule::UnknownLabel)
                return problem.rule;
        }
        return Rule::Count;
    };
    QCOMPARE(found(), before);
    QDialog dialog(&window);
    dialog.setObjectName(QStringLiteral("notesDialog"));
    (new QComboBox(&dialog))->setObjectName(QStringLiteral("paper"));
    host.addWindow(QStringLiteral("notesDialog"), QStringLiteral("Notes"));
    QCOMPARE(found(), after);
    QCOMPARE(host.check(QStringLiteral("/nowhere.js")).size(), 1);
}

QTEST_MAIN(tst_Host)
#include "tst_host.moc"
