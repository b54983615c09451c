// SPDX-License-Identifier: MIT
#include "bench/guest.h"
#include "bench/report.h"

#include <QCoreApplication>
#include <QThread>

#include <memory>
#include <optional>
#include <vector>

// Measures the tutorial beside the floor: the least program of the same kind.
//
//   bench_link TUTORIAL FLOOR
//
// The programs take turns at starting and then run side by side, so that
// whatever else the machine does meets all of them alike.

namespace {

constexpr int kStarts = 21;
constexpr int kRuns = 7;
constexpr int kSettleMs = 3000; // for the glide to the target and the first paints
constexpr int kMeasureMs = 10000;

// A program under one load, and what each run of it came to.
struct Subject {
    QString program;
    QStringList arguments;
    QStringList messages;
    QVector<double> processorMs; // in each second
    QVector<double> peakMiB;
};

void measure(const std::vector<Subject*>& subjects)
{
    std::vector<std::unique_ptr<Guest>> guests;
    for (const Subject* subject : subjects) {
        guests.push_back(std::make_unique<Guest>(subject->program, subject->arguments));
        guests.back()->send(subject->messages);
    }
    QThread::msleep(kSettleMs);
    std::vector<double> before;
    for (const auto& guest : guests)
        before.push_back(guest->processorMs());
    QThread::msleep(kMeasureMs);
    for (std::size_t i = 0; i < guests.size(); ++i) {
        const double used = guests[i]->processorMs() - before[i];
        subjects[i]->processorMs << used * 1000 / kMeasureMs;
        subjects[i]->peakMiB << guests[i]->peakMiB();
    }
}

// The messages that show one step.
QStringList step(const QString& update)
{
    return {QStringLiteral("start|0|0|1280|800"),
        QStringLiteral("indicator|update|0|0|0|") + update,
        QStringLiteral("indicator|updateXy|300|200")};
}

bool report(const QString& subject, const QVector<double>& ours, const QVector<double>& floor,
    const char* unit, std::optional<double> limit)
{
    const auto figure = [unit](double value) {
        return QStringLiteral("%1 %2").arg(value, 0, 'f', 1).arg(QLatin1String(unit));
    };
    const double ratio = median(ours) / median(floor);
    return reportRow(subject, figure(median(ours)), figure(median(floor)),
        QStringLiteral("%1 x").arg(ratio, 0, 'f', 2),
        limit ? QStringLiteral("at most %1 x").arg(*limit) : QString(), !limit || ratio <= *limit);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        qFatal("usage: bench_link TUTORIAL FLOOR");
    const QString& tutorial = arguments.at(1);
    const QString& floor = arguments.at(2);

    QVector<double> start;
    QVector<double> floorStart;
    for (int run = 0; run < kStarts; ++run) {
        start << Guest(tutorial).connectMs();
        floorStart << Guest(floor).connectMs();
    }

    Subject arrow{tutorial, {}, step(QStringLiteral("|0|6")), {}, {}};
    Subject wholeStep{tutorial, {}, step(QStringLiteral("Press <b>New</b>.|1|0")), {}, {}};
    Subject floorArrow{floor, {QStringLiteral("arrow")}, {}, {}, {}};
    Subject floorWindow{floor, {QStringLiteral("window")}, {}, {}, {}};
    for (int run = 0; run < kRuns; ++run)
        measure({&arrow, &floorArrow, &wholeStep, &floorWindow});

    bool kept = report(QStringLiteral("start to connected"), start, floorStart, "ms", 1.5);
    kept &= report(QStringLiteral("processor time, arrow bouncing"), arrow.processorMs,
        floorArrow.processorMs, "ms/s", 1.2);
    // The floor has neither text nor button, so that this is no comparison of like
    // with like: it is told, not judged.
    report(QStringLiteral("the same with icon, hint and button"), wholeStep.processorMs,
        floorArrow.processorMs, "ms/s", {});
    kept &= report(
        QStringLiteral("peak memory, arrow"), arrow.peakMiB, floorWindow.peakMiB, "MiB", 1.2);
    kept &= report(QStringLiteral("the same with icon, hint and button"), wholeStep.peakMiB,
        floorWindow.peakMiB, "MiB", 1.2);
    return kept ? 0 : 1;
}
