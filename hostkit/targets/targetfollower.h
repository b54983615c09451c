// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/core/targetview.h"
#include "hostkit/targets/target.h"
#include "hostkit/targets/targetresolver.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace TutorialHost {

// Knows where one target is for as long as it is followed, whatever moves,
// opens, closes or changes its text around it. It looks when something happens
// in the program's windows, once for all that happens together, and never
// otherwise.
class TargetFollower : public QObject, public TargetView {
    Q_OBJECT

public:
    explicit TargetFollower(const TargetWindows& windows = {}, QObject* parent = nullptr);

    TargetResolver& resolver() { return mResolver; }

    // Scrolls the target into view, as soon as there is something to scroll.
    void follow(const QString& target) override;
    Reach reach(const QString& target) override;

    // What is followed; empty for nothing.
    const QString& name() const { return mName; }
    // Where that was when it was looked for last.
    const Target& target() const { return mTarget; }
    // Looks for it now.
    void update();

signals:
    // The target is at another place, or in another state.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Whether what is painted may be what moved: rows and tabs are no widgets,
    // and what the locator knows is nothing that this one does.
    bool isSeenByPainting(const QObject* painted) const;
    void schedule(int delay);

    TargetResolver mResolver;
    QString mName;
    Target mTarget;
    // It was on the screen since it is followed: what the learner scrolls away
    // then is led to.
    bool mRevealed = false;
    QPointer<QWidget> mWatched;
    QTimer mTimer;
};

} // namespace TutorialHost
