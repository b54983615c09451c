// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace TutorialHost {

class Host;
class Session;

struct AutoplayOptions {
    // A folder for one picture a step; it is made. Empty for none.
    QString screenshots;
    // The scenario is played again and again: no round begins later than that
    // many minutes after the first, and at least one is played.
    int minutes = 0;
};

// Plays a scenario and the learner too, for a host's own tests:
//
//   TutorialHost::Autoplay autoplay(host);
//   if (!autoplay.play("first-steps.js"))
//       qCritical("%s", qPrintable(autoplay.error()));
//
// It does at the arrow's tip what the step asks for, with real input, and presses
// the tutorial's own buttons: Yes the first time and No when the question comes
// again. It knows nothing but what a learner sees, so a step that points to the
// wrong place is not passed: after 20 seconds in a step it gives up. It needs an
// X server with the test extension, a window manager, and the screen for itself.
class Autoplay : public QObject {
    Q_OBJECT

public:
    // host: outlives this object, as the session of the other constructor does.
    explicit Autoplay(Host& host, const AutoplayOptions& options = {});
    // For a host that is put together from the kit's pieces.
    explicit Autoplay(Session& session, const AutoplayOptions& options = {});
    ~Autoplay() override;

    // Why the last scenario was not played to its end; empty when it was.
    QString error() const;

    // Begins to play the scenario file; finished() tells how it ended, at once
    // when it cannot be played.
    void start(const QString& path);
    // Plays it, with an event loop of its own, and is true when it was played to
    // its end.
    bool play(const QString& path);

signals:
    // A step was done, "[1,0] action,Find, ok", or a round: "round 1 done".
    void progress(const QString& line);
    void finished(bool completed);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace TutorialHost
