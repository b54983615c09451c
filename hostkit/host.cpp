// SPDX-License-Identifier: MIT
#include "hostkit/host.h"

#include "editor/scenario/checker.h"
#include "editor/scenario/scenarioreader.h"
#include "hostkit/authoring.h"
#include "hostkit/livenames.h"
#include "hostkit/session.h"
#include "hostkit/windows/windowregistry.h"

#include <QApplication>
#include <QEvent>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QMenu>
#include <QTranslator>

#include <algorithm>

using namespace Tutorial;
using namespace TutorialHost;
using TutorialEditor::Rule;

namespace {

constexpr int kRestarts = 2;

QStringList argumentsOf(const Options& options)
{
    QStringList arguments;
    if (!options.styleSheet.isEmpty())
        arguments << QStringLiteral("-stylesheet") << options.styleSheet;
    return arguments;
}

// The step or group with this path, counted as problems count it; without keys
// when there is none.
QJsonObject stepAt(QJsonArray level, const QList<int>& path)
{
    QJsonObject step;
    for (const int row : path) {
        int steps = 0;
        const auto found = std::find_if(level.begin(), level.end(),
            [&](const QJsonValue& value) { return !value.toObject().isEmpty() && steps++ == row; });
        if (found == level.end())
            return {};
        step = (*found).toObject();
        level = step.value(QLatin1String("group")).toArray();
    }
    return step;
}

Result resultOf(Link::Failure failure)
{
    switch (failure) {
    case Link::Failure::NotStarted:
        return Result::NotInstalled;
    case Link::Failure::WrongVersion:
        return Result::WrongVersion;
    default:
        return Result::Crashed;
    }
}

} // namespace

class Host::Private {
public:
    Private(Host& owner, const Options& given)
        : host(owner), options(given), session(given.program, registry, argumentsOf(given)),
          authoring(session, registry)
    {
    }

    void watch(QWidget* widget);
    void runCommand(const QString& name, const QString& parameter);
    void loadTranslation(const QString& scenarioPath);
    void end(Result result);
    // What the step names is not among the names of now, but is there, or may be
    // when its window is.
    bool mayBeThere(const Problem& problem, const QJsonObject& step);

    Host& host;
    const Options options;
    WindowRegistry registry;
    Session session;
    Authoring authoring;
    QTranslator translator;
    // By the widgets' object names.
    QHash<QString, EnumWindowKind> windows;
    QHash<QString, std::function<bool(const QString& parameter)>> commands;
    // play() succeeded, and finished() was not emitted since.
    bool isPlaying = false;
};

bool Host::Private::mayBeThere(const Problem& problem, const QJsonObject& step)
{
    switch (problem.rule) {
    case Rule::UnknownTarget: {
        const QString target = step.value(QLatin1String("target")).toString();
        const TargetPath path = TargetPath::fromText(target);
        const auto kind = path.segments.isEmpty() ? windows.constEnd()
                                                  : windows.constFind(path.segments.first().name);
        return (kind != windows.constEnd() && registry.windows(*kind).isEmpty())
            || session.resolver().resolve(target).state != Target::Missing;
    }
    case Rule::UnknownAction:
    case Rule::UnknownList:
    case Rule::UnknownComboBox:
    case Rule::UnknownCheckBox: {
        const EnumWindowKind kind =
            session.words().window(step.value(QLatin1String("followWindow")).toString());
        // Every menu is a window of the same name.
        return kind == Window_Popup
            || (kind != WindowKindCount && registry.windows(kind).isEmpty());
    }
    default:
        return false;
    }
}

void Host::Private::watch(QWidget* widget)
{
    if (registry.contains(widget))
        return;
    if (const auto kind = windows.constFind(widget->objectName()); kind != windows.constEnd())
        registry.add(*kind, widget);
    else if (qobject_cast<QMenu*>(widget))
        registry.add(Window_Popup, widget);
}

void Host::Private::runCommand(const QString& name, const QString& parameter)
{
    const auto command = commands.value(name);
    if (!command || !command(parameter))
        emit host.notice(tr("“%1” could not be done with “%2”.").arg(name, parameter));
}

void Host::Private::loadTranslation(const QString& scenarioPath)
{
    QCoreApplication::removeTranslator(&translator);
    if (!options.translations.isEmpty()
        && translator.load(QLocale(), QFileInfo(scenarioPath).completeBaseName(),
            QStringLiteral("_"), options.translations))
        QCoreApplication::installTranslator(&translator);
}

void Host::Private::end(Result result)
{
    if (!isPlaying)
        return;
    isPlaying = false;
    emit host.finished(result);
}

Host::Host(QWidget* mainWindow, const Options& options)
    : d(std::make_unique<Private>(*this, options))
{
    d->registry.add(Window_MainWindow, mainWindow);
    d->session.require(QStringLiteral(TUTORIALHOST_VERSION));
    connect(&d->session, &Session::presetDataRequested, this, [this](const QString& name) {
        d->runCommand(getCommandKindName(Command_presetData), name);
    });
    connect(&d->session, &Session::commandRequested, this,
        [this](const QString& name, const QString& parameter) { d->runCommand(name, parameter); });
    connect(&d->session, &Session::stepShown, this,
        [this](const Step& step) { emit stepShown(step.label); });
    connect(&d->session, &Session::targetMissing, this,
        [this](const Step& step) { emit targetMissing(step.target, step.path); });
    connect(&d->session, &Session::finished, this, [this] { d->end(Result::Completed); });
    connect(&d->session, &Session::failed, this, [this](const QString& reason) {
        emit notice(reason);
        d->end(resultOf(d->session.link().failure()));
    });
    connect(&d->session, &Session::notice, this, &Host::notice);
    connect(&d->authoring, &Authoring::notice, this, &Host::notice);
    qApp->installEventFilter(this);
}

Host::~Host()
{
    // What goes down with the parts below tells nobody any more.
    d->isPlaying = false;
    d->session.disconnect(this);
    d->authoring.disconnect(this);
}

void Host::addWindow(const QString& objectName, const QString& name)
{
    d->windows.insert(objectName, d->session.words().addWindow(name));
    d->authoring.updateNames();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->objectName() == objectName)
            d->watch(widget);
    }
}

void Host::addCommand(const QString& name, std::function<bool(const QString& parameter)> command)
{
    d->session.words().commands.insert(name);
    d->authoring.updateNames();
    d->commands.insert(name, std::move(command));
}

void Host::addCondition(
    const QString& name, std::function<bool(const QStringList& parameters)> condition)
{
    d->session.words().conditions.insert(name, std::move(condition));
    d->authoring.updateNames();
}

void Host::setLocator(std::function<std::optional<QRect>(const QString& target)> locator)
{
    d->session.resolver().setLocator(locator);
}

QVector<Problem> Host::check(const QString& scenarioPath) const
{
    QString text;
    QStringList errors;
    if (!TutorialEditor::readScenarioText(scenarioPath, &text, &errors)) {
        return {TutorialEditor::makeProblem(
            TutorialEditor::Rule::NoList, errors.join(QLatin1Char(' ')))};
    }
    TutorialEditor::CheckOptions options;
    options.context = QFileInfo(scenarioPath).completeBaseName();
    options.names = liveNames(d->session.words(), d->registry);
    QVector<Problem> problems = TutorialEditor::Checker::checkText(text, options);
    const QJsonArray steps = TutorialEditor::readScenario(text, &errors);
    problems.erase(std::remove_if(problems.begin(), problems.end(),
                       [&](const Problem& problem) {
                           return d->mayBeThere(problem, stepAt(steps, problem.step));
                       }),
        problems.end());
    return problems;
}

bool Host::play(const QString& scenarioPath, const QString& fromLabel)
{
    stop();
    d->loadTranslation(scenarioPath);
    d->session.setRestarts(d->options.restartAfterCrash ? kRestarts : 0);
    // The program may turn out not to be there before play() is over.
    d->isPlaying = true;
    const bool begun = fromLabel.isEmpty() ? d->session.play(scenarioPath)
                                           : d->session.playFrom(scenarioPath, fromLabel);
    if (!begun)
        d->isPlaying = false;
    return begun;
}

void Host::edit(const QString& scenarioPath)
{
    stop();
    d->loadTranslation(scenarioPath);
    // A trial run ends with the tool that asked for it.
    d->session.setRestarts(0);
    d->authoring.edit(scenarioPath);
}

bool Host::create(const QString& scenarioPath)
{
    if (!Authoring::writeStarter(scenarioPath)) {
        emit notice(tr("“%1” cannot be written.").arg(scenarioPath));
        return false;
    }
    edit(scenarioPath);
    return true;
}

void Host::recordCondition()
{
    d->authoring.recordCondition();
}

void Host::stop()
{
    d->authoring.stop();
    d->end(Result::Stopped);
}

Session& Host::session()
{
    return d->session;
}

bool Host::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType())
        d->watch(static_cast<QWidget*>(watched));
    return false;
}
