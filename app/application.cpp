// SPDX-License-Identifier: MIT
#include "app/application.h"

#include "editor/hostmessages.h"
#include "editor/manager.h"
#include "tutorial/process/terminationsignals.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace {

// The display platform that has to be asked for, because overlay windows place
// themselves in screen coordinates and Wayland does not let them: "xcb" on a
// Wayland session that offers an X server, otherwise nothing.
// requested: QT_QPA_PLATFORM; sessionType: XDG_SESSION_TYPE; waylandDisplay,
// xDisplay: WAYLAND_DISPLAY and DISPLAY. A platform that was requested stays.
QByteArray platformToAskFor(const QByteArray& requested, const QByteArray& sessionType,
    const QByteArray& waylandDisplay, const QByteArray& xDisplay)
{
    const bool wayland = sessionType == "wayland" || !waylandDisplay.isEmpty();
    return requested.isEmpty() && wayland && !xDisplay.isEmpty() ? QByteArray("xcb") : QByteArray();
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
    const QByteArray platform = platformToAskFor(qgetenv("QT_QPA_PLATFORM"),
        qgetenv("XDG_SESSION_TYPE"), qgetenv("WAYLAND_DISPLAY"), qgetenv("DISPLAY"));
    if (!platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", platform);

    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("TUTORIAL"));
    QCoreApplication::setApplicationVersion(QStringLiteral("0.1"));
    QCoreApplication::setOrganizationName(QStringLiteral("SOLVANTA"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("solvanta.example"));
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
