// SPDX-License-Identifier: MIT
#include "notetutorial.h"
#include "notewindow.h"

#include <TutorialHost/Autoplay>
#include <TutorialHost/Host>

#include <QApplication>
#include <QTextStream>

// Plays the editor's tutorial and its learner, and succeeds when it comes to its
// end. The first argument is the tutorial's program, if it is not in PATH, and
// the second a folder for a picture of every step.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString scenario = QStringLiteral(":/tutorials/first-note.js");
    NoteWindow window;
    TutorialHost::Options options;
    options.program = arguments.value(1, options.program);
    TutorialHost::Host host(&window, options);
    addTutorials(host, window);
    window.show();

    QTextStream out(stdout);
    const auto problems = host.check(scenario);
    for (const TutorialHost::Problem& problem : problems)
        out << problem.message << Qt::endl;
    TutorialHost::Autoplay autoplay(host, {arguments.value(2)});
    QObject::connect(&autoplay, &TutorialHost::Autoplay::progress, &window,
        [&out](const QString& line) { out << line << Qt::endl; });
    bool hasTargets = true;
    QObject::connect(&host, &TutorialHost::Host::targetMissing, &window,
        [&](const QString& target, const QList<int>&) {
            out << "nothing is called " << target << Qt::endl;
            hasTargets = false;
        });
    if (!autoplay.play(scenario))
        out << autoplay.error() << Qt::endl;
    return problems.isEmpty() && hasTargets && autoplay.error().isEmpty() ? 0 : 1;
}
