// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/problem.h"

#include <QList>
#include <QObject>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace TutorialHost {

class Session;
using TutorialEditor::Problem;

// How a tutorial ended.
enum class Result {
    Completed, // the scenario was played to its end
    Stopped, // by stop(), edit() or another play()
    NotInstalled, // the tutorial's program could not be started
    WrongVersion, // it is of another version than this library
    Crashed, // it ended or hung, more often than it is started again
};

struct Options {
    // The tutorial's executable, a path or a name that is looked for in PATH.
    QString program = QStringLiteral("tutorial");
    // Folder of the compiled translations of the hints: NAME_LANG.qm beside a
    // scenario NAME.js, looked for when that is played. Empty for none, which is
    // right for a host whose own translations hold the hints.
    QString translations;
    // A Qt style sheet for the hint and the buttons, a file; empty for none.
    QString styleSheet;
    // Start a tutorial that crashed or hangs again, with the step that it was
    // in, twice at most.
    bool restartAfterCrash = true;
};

// Plays tutorials in a program: all that a host needs.
//
//   TutorialHost::Host host(&mainWindow);
//   host.addWindow("findDialog", "Find");
//   host.play(":/tutorials/first-steps.js");
//
// Windows, panels and docks are known by their object names; the main window
// (MainWindow) and the menus (Popup) are known without being added. Actions,
// combo boxes, check boxes and lists are what conditions name by their object
// names. Make it after the QApplication, in the thread of the widgets, and once.
class Host : public QObject {
    Q_OBJECT

public:
    // mainWindow: any widget; outlives the host.
    explicit Host(QWidget* mainWindow, const Options& options = {});
    // Sees a running tutorial off.
    ~Host() override;

    // Every widget with this object name, now or later, is the window that
    // scenarios call so: a described name, or one of the host's own. Several may
    // be open at once; the one that was opened last counts.
    void addWindow(const QString& objectName, const QString& name);
    // A step with "command": "NAME,PARAMETER" calls it before the step is shown;
    // false is told as a notice. "presetData" is such a name.
    void addCommand(const QString& name, std::function<bool(const QString& parameter)> command);
    // A step with "condition": "NAME,PARAMETER,…" ends when it is true. It is
    // asked ten times a second while such a step is at work, so it should only
    // look.
    void addCondition(
        const QString& name, std::function<bool(const QStringList& parameters)> condition);

    // Asked for targets that are no widget and no action, such as what is drawn on
    // a canvas: the rectangle on the screen, in the coordinates of
    // QWidget::mapToGlobal(), or nothing. It is asked again whenever something
    // happens in the program's windows, so it should only look.
    void setLocator(std::function<std::optional<QRect>(const QString& target)> locator);

    // What is wrong with the scenario for this host, in the order of the file; a
    // file that cannot be read is one problem. The names in it are looked for among
    // all that this program has now, shown or not. Windows that are made only when
    // they are opened are taken to hold what is asked of them.
    QVector<Problem> check(const QString& scenarioPath) const;

    // Plays the scenario, from the step with the label if one is given. False,
    // with a notice, when there is nothing to play; otherwise finished() tells
    // how it ended.
    bool play(const QString& scenarioPath, const QString& fromLabel = {});
    // Opens the scenario in the authoring tool; what is played is stopped.
    void edit(const QString& scenarioPath);
    // The same with a new scenario of one step, which takes the place of what is
    // there. False, with a notice, when it cannot be written.
    bool create(const QString& scenarioPath);
    // Has the author's next action in this program recorded as the condition of
    // the step at work. Behind a menu's entry call it when the menu is gone.
    void recordCondition();
    // Ends what is played; without a tutorial nothing happens.
    void stop();

signals:
    // A step is on the screen; its label may be empty.
    void stepShown(const QString& label);
    // Nothing is called by the name of a step's target, so its x, y and
    // followWindow hold. step: the row at each level of grouping, outermost first.
    void targetMissing(const QString& target, const QList<int>& step);
    void finished(TutorialHost::Result result);
    // Something that the author or the learner should know, in a sentence.
    void notice(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class Autoplay;
    Session& session();

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace TutorialHost

Q_DECLARE_METATYPE(TutorialHost::Result)
