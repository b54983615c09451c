// SPDX-License-Identifier: MIT
#include "notetutorial.h"

#include "notewindow.h"

#include <TutorialHost/Host>

#include <QStatusBar>

using TutorialHost::Host;

void addTutorials(Host& host, NoteWindow& window)
{
    host.addWindow(QStringLiteral("findDialog"), QStringLiteral("Find"));
    host.addCommand(QStringLiteral("newNote"), [&window](const QString&) {
        window.clear();
        return true;
    });
    host.addCondition(QStringLiteral("words"), [&window](const QStringList& parameters) {
        return window.wordCount() >= parameters.value(0).toInt();
    });
    QObject::connect(&window, &NoteWindow::tutorialRequested, &host,
        [&host] { host.play(QStringLiteral(":/tutorials/first-note.js")); });
    QObject::connect(&host, &Host::notice, &window,
        [&window](const QString& text) { window.statusBar()->showMessage(text); });
}
