// SPDX-License-Identifier: MIT
#include "app/application.h"

#include "editor/hostmessages.h"
#include "editor/manager.h"
#include "tutorial/process/platform.h"
#include "tutorial/process/terminationsignals.h"
#include "tutorial/process/translations.h"
#include "tutorial/process/version.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QApplication>
#include <QPointer>
#include <QTextStream>
#include <QWidget>

namespace {

constexpr int kFirstOption = 2; // behind the program and the connection id

constexpr char kHelp[] =
    "Usage: tutorial [CONNECTION-ID [OPTION ...]]\n"
    "       tutorial --version | --help\n"
    "\n"
    "Floats an arrow, a hint and buttons above the windows of a host, as the host\n"
    "asks it to through its local server \"vemoCONNECTION-ID\" (20160802-1100 when\n"
    "no id is given; with an empty one it ends at once). Hosts start this program;\n"
    "it ends when the host says so, or after 30 seconds without a sign of life.\n"
    "\n"
    "Options, behind the connection id:\n"
    "  -language LANG    the language of the texts, de for example, instead of the\n"
    "                    system's\n"
    "  -stylesheet FILE  a Qt style sheet for the hint and the buttons\n"
    "and the others of every Qt program, such as -platform and -style.\n";

// What the only argument asks to be told before the program ends; empty when it
// asks for nothing.
QString answerTo(int argc, char** argv)
{
    const QByteArray argument(argc == 2 ? argv[1] : "");
    if (argument == "--version")
        return QStringLiteral("tutorial %1\n").arg(projectVersion());
    return argument == "--help" ? QString::fromLatin1(kHelp) : QString();
}

// The manager closes its windows and forgets them; here they are released.
void deleteWindows()
{
    QList<QPointer<QWidget>> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->parent())
            windows << window;
    }
    for (const QPointer<QWidget>& window : windows)
        delete window;
}

} // namespace

int runApplication(int argc, char** argv)
{
    const QString answer = answerTo(argc, argv);
    if (!answer.isEmpty()) {
        QTextStream(stdout) << answer;
        return 0;
    }

    preferX11();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("TUTORIAL"));
    QCoreApplication::setApplicationVersion(projectVersion());
    QCoreApplication::setOrganizationName(QStringLiteral("SOLVANTA"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("solvanta.example"));
    installTranslations(wantedLanguages(QCoreApplication::arguments(), kFirstOption),
        QStringLiteral(":/translations/tutorial"));
    // The process lives as long as its manager, also when the last window that
    // a user can close is closed.
    QApplication::setQuitOnLastWindowClosed(false);

    auto* manager = new TutorialManager(&application);
    manager->init();
    const TerminationSignals terminationSignals;
    QObject::connect(
        &terminationSignals, &TerminationSignals::received, manager, &TutorialManager::close);
    const TutorialEditor::HostMessages hostMessages(manager);
    const int exitCode = QApplication::exec();
    if (TutorialEditor::Manager::mInstance)
        TutorialEditor::Manager::mInstance->keepUnsaved();
    deleteWindows();
    return exitCode;
}
