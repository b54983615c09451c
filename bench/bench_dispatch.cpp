// SPDX-License-Identifier: MIT
#include "bench/report.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <QApplication>
#include <QElapsedTimer>

// Measures how fast packets that have arrived are read and handled.

namespace {

constexpr int kMessages = 1000000;
constexpr int kRuns = 7;
constexpr int kReadSize = 64 * 1024; // bytes, what a read of a full socket brings
constexpr double kLeastPerSecond = 1e6;

QPoint positionOf(int message)
{
    return {message % 1920, -message % 1080};
}

QByteArray packets()
{
    QByteArray result;
    for (int i = 0; i < kMessages; ++i) {
        const QPoint position = positionOf(i);
        result += "0\x02windowPosition\x01" + QByteArray::number(i % Tutorial::WindowKindCount)
            + '\x01' + QByteArray::number(position.x()) + '\x01' + QByteArray::number(position.y())
            + '\0';
    }
    return result;
}

} // namespace

int main()
{
    char program[] = "bench_dispatch";
    char connectionId[] = "bench"; // nobody serves it
    char* argv[] = {program, connectionId, nullptr};
    int argc = 2;
    QApplication application(argc, argv);
    TutorialManager manager(&application);
    manager.handleRead(QByteArray("0\x02start\0", 8));

    const QByteArray data = packets();
    QVector<double> perSecond;
    for (int run = 0; run < kRuns; ++run) {
        for (int kind = 0; kind < Tutorial::WindowKindCount; ++kind)
            manager.setXy(static_cast<Tutorial::EnumWindowKind>(kind), 0, 0);
        QElapsedTimer elapsed;
        elapsed.start();
        for (int at = 0; at < data.size(); at += kReadSize)
            manager.handleRead(data.mid(at, kReadSize));
        perSecond << kMessages * 1e9 / elapsed.nsecsElapsed();

        for (int i = kMessages - Tutorial::WindowKindCount; i < kMessages; ++i) {
            const auto kind = static_cast<Tutorial::EnumWindowKind>(i % Tutorial::WindowKindCount);
            if (manager.getXy(kind) != positionOf(i))
                qFatal("message %d was lost", i);
        }
    }

    const double rate = median(perSecond);
    const auto millions = [](double value) {
        return QStringLiteral("%1 million/s").arg(value / 1e6, 0, 'f', 2);
    };
    const bool kept = reportRow(QStringLiteral("\"windowPosition\" messages handled"),
        millions(rate), QStringLiteral("-"), QStringLiteral("-"),
        QStringLiteral("at least ") + millions(kLeastPerSecond), rate >= kLeastPerSecond);
    return kept ? 0 : 1;
}
