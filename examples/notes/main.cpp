// SPDX-License-Identifier: MIT
#include "notetutorial.h"
#include "notewindow.h"

#include <TutorialHost/Host>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    NoteWindow window;
    TutorialHost::Host host(&window);
    addTutorials(host, window);
    window.show();
    return QApplication::exec();
}
