// SPDX-License-Identifier: MIT
#include "hostkit/namesfeed.h"

#include "hostkit/livenames.h"

#include <QApplication>
#include <QEvent>

using namespace TutorialHost;
using TutorialEditor::HostNames;

namespace {

// What opens or closes comes with much else.
constexpr int kTogetherMs = 300;

} // namespace

NamesFeed::NamesFeed(const HostWords& words, const WindowRegistry& registry, QObject* parent)
    : QObject(parent), mWords(words), mRegistry(registry)
{
    mTimer.setSingleShot(true);
    mTimer.setInterval(kTogetherMs);
    connect(&mTimer, &QTimer::timeout, this, &NamesFeed::tell);
}

void NamesFeed::start()
{
    stop();
    mRunning = true;
    qApp->installEventFilter(this);
    tell();
}

void NamesFeed::stop()
{
    qApp->removeEventFilter(this);
    mRunning = false;
    mTimer.stop();
    mTold = {};
}

void NamesFeed::update()
{
    if (mRunning && !mTimer.isActive())
        mTimer.start();
}

bool NamesFeed::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::ChildRemoved:
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
        if (watched->isWidgetType())
            update();
        break;
    default:
        break;
    }
    return false;
}

void NamesFeed::tell()
{
    const HostNames names = liveNames(mWords, mRegistry);
    for (int i = 0; i < HostNames::ListCount; ++i) {
        const auto list = HostNames::List(i);
        QStringList now = names.names(list);
        now.sort();
        std::optional<QStringList>& told = mTold.at(std::size_t(i));
        if (told == now)
            continue;
        told = now;
        emit this->told(
            QStringList{QStringLiteral("editor"), QStringLiteral("names"), HostNames::nameOf(list)}
            + now);
    }
}
