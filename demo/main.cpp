// SPDX-License-Identifier: MIT
#include "demo/mainwindow.h"
#include "hostkit/authoring.h"
#include "hostkit/session.h"
#include "hostkit/windows/windowregistry.h"
#include "tutorial/process/platform.h"
#include "tutorial/process/terminationsignals.h"
#ifdef DEMO_AUTOPLAY
#include "hostkit/autoplay/autoplay.h"
#endif

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
// As a shell reports it; the number of the signal is added.
constexpr int kEndedBySignal = 128;

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
        QStringLiteral("PROGRAM"));
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
    const QString program = arguments.tutorial.isEmpty()
        ? QCoreApplication::applicationDirPath() + QStringLiteral("/tutorial")
        : arguments.tutorial;

    WindowRegistry registry;
    MainWindow window(registry);
    Session session(program, registry);
    QObject::connect(&session, &Session::presetDataRequested, &window, [&](const QString& name) {
        if (!window.loadPreset(name))
            window.showNotice(MainWindow::tr("There is no data “%1”.").arg(name));
    });
    const auto report = [&](const QString& line) {
        tell(line);
        window.showNotice(line);
    };
    for (const auto text : {&Session::notice, &Session::failed})
        QObject::connect(&session, text, &window, report);
    QObject::connect(&session, &Session::finished, &window,
        [&] { window.showNotice(MainWindow::tr("You have finished the tutorial.")); });
    QObject::connect(&window, &MainWindow::tutorialRequested, &session,
        [&](const QString& scenario) { session.play(scenarioPath(scenario)); });
    Authoring authoring(session, registry);
    QObject::connect(&authoring, &Authoring::notice, &window, &MainWindow::showNotice);
    QObject::connect(&window, &MainWindow::tutorialStopRequested, &authoring, &Authoring::stop);
    QObject::connect(&window, &MainWindow::editRequested, &authoring, &Authoring::edit);
    QObject::connect(
        &window, &MainWindow::newTutorialRequested, &authoring, [&](const QString& path) {
            if (Authoring::writeStarter(path))
                authoring.edit(path);
            else
                report(MainWindow::tr("“%1” cannot be written.").arg(path));
        });
    // The menu's own action is over by then.
    QObject::connect(&window, &MainWindow::recordRequested, &authoring, &Authoring::recordCondition,
        Qt::QueuedConnection);
    if (arguments.closed)
        window.findChild<QWidget*>(QStringLiteral("panelDock"))->hide();
    window.show();
    if (arguments.small)
        window.resize(window.minimumSizeHint());

    if (arguments.autoplay) {
#ifdef DEMO_AUTOPLAY
        Autoplay autoplay(session, {arguments.screenshots, arguments.minutes});
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
        QObject::connect(&session, &Session::targetMissing, &application, [](const Step& step) {
            tell(QStringLiteral("failed: there is no “%1” for %2")
                     .arg(step.target, step.pathText()));
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
        session.play(arguments.scenario);
    if (!arguments.edited.isEmpty())
        authoring.edit(arguments.edited);
    return QApplication::exec();
}
