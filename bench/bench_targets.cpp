// SPDX-License-Identifier: MIT
#include "bench/report.h"
#include "hostkit/targets/targetfollower.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPushButton>
#include <QTimer>

#include <ctime>
#include <memory>

// Measures what it costs a large host to know where a target is: once, while its
// window is dragged, and while nothing happens.

using namespace TutorialHost;

namespace {

constexpr int kWidgets = 5000;
constexpr int kLevels = 6;
constexpr int kRuns = 7;
constexpr int kLookups = 20000;
constexpr double kMostLookupUs = 50;
constexpr int kMovesPerSecond = 60;
constexpr int kDragMs = 3000;
constexpr double kMostOfACore = 1; // percent
constexpr int kIdleMs = 1000;
constexpr double kMostIdleMs = 1; // processor time

// Six levels of named widgets, and the rest of the widgets around them.
QWidget* makeHost(QString* target)
{
    auto* window = new QWidget;
    window->setObjectName(QStringLiteral("host"));
    window->resize(900, 700);
    *target = window->objectName();
    int count = 1;
    QWidget* level = window;
    for (int i = 1; i < kLevels; ++i) {
        auto* next = new QWidget(level);
        next->setObjectName(QStringLiteral("level%1").arg(i));
        next->setGeometry(4, 4, 800 - 20 * i, 600 - 20 * i);
        *target += QLatin1Char('/') + next->objectName();
        level = next;
        for (++count; count < kWidgets * i / (kLevels - 1) - 1; ++count) {
            auto* other = new QWidget(count % 3 ? level : window);
            other->setObjectName(QStringLiteral("other%1").arg(count));
            other->setGeometry(count % 700, count % 500, 8, 8);
        }
    }
    auto* button = new QPushButton(QStringLiteral("Here"), level);
    button->setObjectName(QStringLiteral("button"));
    *target += QStringLiteral("/button");
    return window;
}

void spin(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// Percent of a core that the program takes while its window is moved.
double dragged(QWidget* window)
{
    int moves = 0;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        ++moves;
        window->move(100 + moves % 100, 100 + moves % 50);
    });
    timer.start(1000 / kMovesPerSecond);
    QElapsedTimer elapsed;
    elapsed.start();
    const std::clock_t begin = std::clock();
    spin(kDragMs);
    const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
    return 100 * seconds / (elapsed.elapsed() / 1000.0);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QString target;
    const std::unique_ptr<QWidget> window(makeHost(&target));
    window->show();
    spin(500);
    if (QApplication::allWidgets().size() < kWidgets)
        qFatal("the host has %d widgets", int(QApplication::allWidgets().size()));

    TargetFollower follower;
    int changes = 0;
    QObject::connect(&follower, &TargetFollower::changed, [&] { ++changes; });
    QVector<double> lookups;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer elapsed;
        elapsed.start();
        for (int i = 0; i < kLookups; ++i) {
            if (follower.resolver().resolve(target).state != Target::Shown)
                qFatal("the target was not found");
        }
        lookups << elapsed.nsecsElapsed() / 1e3 / kLookups;
    }

    // The window's own moves are the floor.
    QVector<double> alone;
    QVector<double> following;
    for (int run = 0; run < kRuns; ++run) {
        follower.follow({});
        alone << dragged(window.get());
        follower.follow(target);
        const int before = changes;
        following << dragged(window.get());
        if (changes - before < kDragMs / 1000 * kMovesPerSecond / 2)
            qFatal("the target was not followed");
    }
    changes = 0;
    const std::clock_t begin = std::clock();
    spin(kIdleMs);
    const double idleMs = 1e3 * double(std::clock() - begin) / CLOCKS_PER_SEC;

    const double lookup = median(lookups);
    const double cost = median(following) - median(alone);
    bool kept = reportRow(QStringLiteral("finding a target six levels deep"),
        QStringLiteral("%1 µs").arg(lookup, 0, 'f', 2), QStringLiteral("-"), QStringLiteral("-"),
        QStringLiteral("at most %1 µs").arg(kMostLookupUs), lookup <= kMostLookupUs);
    kept = reportRow(QStringLiteral("following it in a window that is dragged"),
               QStringLiteral("%1 % of a core").arg(median(following), 0, 'f', 2),
               QStringLiteral("%1 %").arg(median(alone), 0, 'f', 2),
               QStringLiteral("+%1 %").arg(cost, 0, 'f', 2),
               QStringLiteral("at most +%1 %").arg(kMostOfACore), cost <= kMostOfACore)
        && kept;
    kept = reportRow(QStringLiteral("the same while nothing moves"),
               QStringLiteral("%1 ms/s").arg(idleMs, 0, 'f', 2), QStringLiteral("-"),
               QStringLiteral("-"), QStringLiteral("at most %1 ms/s").arg(kMostIdleMs),
               idleMs <= kMostIdleMs && changes == 0)
        && kept;
    return kept ? 0 : 1;
}
