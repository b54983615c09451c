// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/conditionrecorder.h"
#include "hostkit/core/scenario.h"
#include "hostkit/namesfeed.h"
#include "hostkit/windows/pointpicker.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace TutorialHost {

class Session;
class WindowRegistry;

// The host's half of the authoring tool: opens a scenario file in the
// tutorial's editor, shows where the step at work will stand, and answers what
// the editor asks for.
class Authoring : public QObject {
    Q_OBJECT

public:
    // Both outlive this one.
    Authoring(Session& session, const WindowRegistry& registry, QObject* parent = nullptr);

    // Writes a scenario of one step, for the author to begin with, over what
    // the path holds. False when it cannot be written.
    static bool writeStarter(const QString& path);

    // Opens the file in the editor, and ends what is played.
    void edit(const QString& path);
    // Sends the condition that the author's next action would meet to the step
    // at work.
    void recordCondition();
    // The host's words may be others than the editor was told.
    void updateNames() { mNames.update(); }
    // Ends a trial run; without one, takes the arrow off the screen until the
    // editor points at something again.
    void stop();

signals:
    void notice(const QString& text);

private:
    void onReceived(const QStringList& fields);
    void onEditor(const QStringList& fields);
    // fields: x, y and the window kind of the step at work.
    void follow(const QStringList& fields);
    void lookUp(const QString& key, const QString& text);
    void tryOut(const QStringList& path);
    void endTrial();
    void pickPoint();
    void onPicked(const QPoint& point);
    QString describe(const QWidget& widget, const QPoint& point) const;

    Session& mSession;
    const WindowRegistry& mRegistry;
    ConditionRecorder mRecorder;
    PointPicker mPicker;
    NamesFeed mNames;
    // The file that was opened last; empty when no editor is there.
    QString mPath;
    // The target of the step that the editor tells of next.
    QString mTarget;
    // The step at work as far as the host knows it: at least where it points.
    Step mStep;
    bool mOnTrial = false;
};

} // namespace TutorialHost
