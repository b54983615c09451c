// SPDX-License-Identifier: MIT
#include "demo/mainwindow.h"
#include "tutorial/process/platform.h"
#include "tutorial/process/terminationsignals.h"

#ifdef DEMO_AUTOPLAY
#include <TutorialHost/Autoplay>
#endif
#include <TutorialHost/Host>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>
#include <QTextStream>
#include <QTranslator>

using namespace TutorialHost;

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;
constexpr int kEndedBySignal = 128; // and the signal's number, as a shell reports it

struct Arguments {
    QString language;
    QString tutorial;
    QString scenario;
    QString edited;
    QString screenshots;
    bool autoplay = false;
    bool small = false;
    bool closed = false;
    int minutes = 0;
};

void tell(const QString& text)
{
    QTextStream(stderr) << "tutorial-demo: " << text << '\n';
}

int complain(const QString& text, int exitCode)
{
    tell(text);
    return exitCode;
}

// The path of a scenario that is given as a file or by the name of one that
// the program carries; empty when there is none.
QString scenarioPath(const QString& nameOrPath)
{
    const QString carried = QStringLiteral(":/scenarios/%1.js").arg(nameOrPath);
    for (const QString& path : {nameOrPath, carried}) {
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

// Fills in the arguments. An exit code when the program is to end at once.
std::optional<int> parse(int argc, char** argv, Arguments* arguments)
{
    // For as long as this takes: no display is needed to be told what is wrong.
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A small map editor that plays tutorials through the program “tutorial”."));
    const QCommandLineOption help(
        {QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
    const QCommandLineOption language(QStringLiteral("language"),
        QStringLiteral("Language of the editor and the hints: en or de."), QStringLiteral("L"),
        QLocale::system().language() == QLocale::German ? QStringLiteral("de")
                                                        : QStringLiteral("en"));
    const QCommandLineOption tutorial(QStringLiteral("tutorial"),
        QStringLiteral("The tutorial's executable, if not the one beside this program."),
        QStringLiteral("PROGRAM"),
        QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial"));
    const QCommandLineOption play(QStringLiteral("play"),
        QStringLiteral("Play this scenario: a file, or “first-steps” or “all-conditions”."),
        QStringLiteral("FILE"));
    const QCommandLineOption autoplay(QStringLiteral("autoplay"),
        QStringLiteral("Play this scenario and the learner too, then end."),
        QStringLiteral("FILE"));
    const QCommandLineOption edit(QStringLiteral("edit"),
        QStringLiteral("Open this scenario file in the authoring tool."), QStringLiteral("FILE"));
    const QCommandLineOption screenshots(QStringLiteral("screenshots"),
        QStringLiteral("With --autoplay: keep a picture of every step there."),
        QStringLiteral("DIR"));
    const QCommandLineOption minutes(QStringLiteral("minutes"),
        QStringLiteral("With --autoplay: play again and again for so long."), QStringLiteral("N"));
    const QCommandLineOption small(
        QStringLiteral("small"), QStringLiteral("Begin with the window at its smallest."));
    const QCommandLineOption closed(
        QStringLiteral("closed"), QStringLiteral("Begin with the panel closed."));
    parser.addOptions(
        {help, language, tutorial, play, autoplay, edit, screenshots, minutes, small, closed});

    if (!parser.parse(QCoreApplication::arguments()))
        return complain(parser.errorText(), kWrongUsage);
    if (parser.isSet(help)) {
        QTextStream(stdout) << parser.helpText();
        return 0;
    }
    if (!parser.positionalArguments().isEmpty())
        return complain(
            QStringLiteral("unexpected argument “%1”").arg(parser.positionalArguments().first()),
            kWrongUsage);
    arguments->language = parser.value(language);
    if (arguments->language != QLatin1String("en") && arguments->language != QLatin1String("de"))
        return complain(
            QStringLiteral("there is no language “%1”").arg(arguments->language), kWrongUsage);
    if (int(parser.isSet(play)) + int(parser.isSet(autoplay)) + int(parser.isSet(edit)) > 1)
        return complain(
            QStringLiteral("--play, --autoplay and --edit exclude each other"), kWrongUsage);
    for (const QCommandLineOption& option : {screenshots, minutes}) {
        if (parser.isSet(option) && !parser.isSet(autoplay))
            return complain(
                QStringLiteral("--%1 needs --autoplay").arg(option.names().first()), kWrongUsage);
    }
    arguments->minutes = parser.value(minutes).toInt();
    if (parser.isSet(minutes) && arguments->minutes <= 0)
        return complain(
            QStringLiteral("“%1” is no number of minutes").arg(parser.value(minutes)), kWrongUsage);

    arguments->tutorial = parser.value(tutorial);
    arguments->screenshots = parser.value(screenshots);
    arguments->autoplay = parser.isSet(autoplay);
    arguments->small = parser.isSet(small);
    arguments->closed = parser.isSet(closed);
    arguments->edited = parser.value(edit);
    if (parser.isSet(edit) && !QFileInfo(arguments->edited).isFile())
        return complain(
            QStringLiteral("there is no file “%1”").arg(arguments->edited), kWrongUsage);
    if (!parser.isSet(play) && !arguments->autoplay)
        return {};
    const QString scenario = parser.value(arguments->autoplay ? autoplay : play);
    arguments->scenario = scenarioPath(scenario);
    if (arguments->scenario.isEmpty())
        return complain(QStringLiteral("there is no scenario “%1”").arg(scenario), kWrongUsage);
    return {};
}

// All that makes the editor a host.
void addTutorials(Host& host, MainWindow& window)
{
    for (const char* name : {"NewProject", "MapProperties", "MessageBox", "EventEditorMain",
             "DatabaseMain", "Options", "FileDialog", "About"})
        host.addWindow(QLatin1String(name), QLatin1String(name));
    host.addWindow(QStringLiteral("leftPanel"), QStringLiteral("MapEditLeftPanelItem"));
    host.addWindow(QStringLiteral("mapTree"), QStringLiteral("MapEditTreeBox"));
    host.addCommand(QStringLiteral("presetData"),
        [&window](const QString& name) { return window.loadPreset(name); });
    QObject::connect(&host, &Host::notice, &window, [&window](const QString& line) {
        tell(line);
        window.showNotice(line);
    });
    QObject::connect(&host, &Host::finished, &window, [&window](Result result) {
        if (result == Result::Completed)
            window.showNotice(MainWindow::tr("You have finished the tutorial."));
    });
    QObject::connect(&window, &MainWindow::tutorialRequested, &host,
        [&host](const QString& scenario) { host.play(scenarioPath(scenario)); });
    QObject::connect(&window, &MainWindow::tutorialStopRequested, &host, &Host::stop);
    QObject::connect(&window, &MainWindow::editRequested, &host, &Host::edit);
    QObject::connect(&window, &MainWindow::newTutorialRequested, &host, &Host::create);
    // The menu's own action is over by then.
    QObject::connect(
        &window, &MainWindow::recordRequested, &host, &Host::recordCondition, Qt::QueuedConnection);
}

} // namespace

int main(int argc, char** argv)
{
    Arguments arguments;
    if (const auto exitCode = parse(argc, argv, &arguments))
        return *exitCode;

    preferX11();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tutorial-demo"));
    const TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::received, &application,
        [](int number) { QCoreApplication::exit(kEndedBySignal + number); });
    QTranslator translator;
    if (translator.load(QStringLiteral(":/translations/tutorial-demo_%1").arg(arguments.language)))
        QCoreApplication::installTranslator(&translator);

    MainWindow window;
    Options options;
    options.program = arguments.tutorial;
    Host host(&window, options);
    addTutorials(host, window);
    if (arguments.closed)
        window.findChild<QWidget*>(QStringLiteral("panelDock"))->hide();
    window.show();
    if (arguments.small)
        window.resize(window.minimumSizeHint());

    if (arguments.autoplay) {
#ifdef DEMO_AUTOPLAY
        Autoplay autoplay(host, {arguments.screenshots, arguments.minutes});
        QObject::connect(&autoplay, &Autoplay::progress, &window,
            [](const QString& line) { QTextStream(stdout) << line << '\n'; });
        QObject::connect(
            &autoplay, &Autoplay::finished, &application,
            [&autoplay](bool completed) {
                if (!completed)
                    tell(QStringLiteral("failed: %1").arg(autoplay.error()));
                QCoreApplication::exit(completed ? 0 : kFailed);
            },
            Qt::QueuedConnection);
        // It would be played by its x and y, and perhaps only here.
        QObject::connect(&host, &Host::targetMissing, &application, [](const QString& target) {
            tell(QStringLiteral("failed: there is no “%1”").arg(target));
            QCoreApplication::exit(kFailed);
        });
        autoplay.start(arguments.scenario);
        return QApplication::exec();
#else
        return complain(
            QStringLiteral("--autoplay needs X11's test extension, which this build lacks"),
            kFailed);
#endif
    }
    if (!arguments.scenario.isEmpty())
        host.play(arguments.scenario);
    if (!arguments.edited.isEmpty())
        host.edit(arguments.edited);
    return QApplication::exec();
}
