// SPDX-License-Identifier: MIT
#include "hostkit/autoplay/autoplay.h"

#include "hostkit/autoplay/learner.h"
#include "hostkit/host.h"
#include "hostkit/session.h"

#include <QEventLoop>

#include <functional>

using namespace TutorialHost;

class Autoplay::Private {
public:
    Private(Autoplay& owner, Session& session, const AutoplayOptions& options,
        const std::function<bool(const QString& path)>& begin, const std::function<void()>& stop);

    Learner learner;
    QString error;
};

Autoplay::Private::Private(Autoplay& owner, Session& session, const AutoplayOptions& options,
    const std::function<bool(const QString& path)>& begin, const std::function<void()>& stop)
    : learner(session, begin, options.screenshots, options.minutes)
{
    connect(&learner, &Learner::progress, &owner, &Autoplay::progress);
    connect(&learner, &Learner::finished, &owner, [this, &owner, stop](const QString& reason) {
        error = reason;
        if (!reason.isEmpty())
            stop();
        emit owner.finished(reason.isEmpty());
    });
}

Autoplay::Autoplay(Host& host, const AutoplayOptions& options)
    : d(std::make_unique<Private>(
        *this, host.session(), options, [&host](const QString& path) { return host.play(path); },
        [&host] { host.stop(); }))
{
}

Autoplay::Autoplay(Session& session, const AutoplayOptions& options)
    : d(std::make_unique<Private>(
        *this, session, options, [&session](const QString& path) { return session.play(path); },
        [&session] { session.stop(); }))
{
}

Autoplay::~Autoplay() = default;

QString Autoplay::error() const
{
    return d->error;
}

void Autoplay::start(const QString& path)
{
    d->learner.start(path);
}

bool Autoplay::play(const QString& path)
{
    QEventLoop loop;
    bool isOver = false;
    bool isCompleted = false;
    const auto connection = connect(this, &Autoplay::finished, &loop, [&](bool completed) {
        isOver = true;
        isCompleted = completed;
        loop.quit();
    });
    start(path);
    // It may have failed already.
    if (!isOver)
        loop.exec();
    disconnect(connection);
    if (!isOver)
        d->error = QStringLiteral("the program was told to end");
    return isCompleted;
}
