// SPDX-License-Identifier: MIT
#include "bench/report.h"
#include "overlay/hinttext.h"
#include "overlay/tutorialtooltip.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>

#include <algorithm>
#include <functional>

// Measures what it takes until a new hint is painted.

namespace {

constexpr int kRuns = 9;
constexpr int kChangesPerRun = 50; // of an ordinary hint
constexpr int kLongHint = 200000; // letters
constexpr double kMostMs = 100;
constexpr double kMostTimesBare = 1.5;

void prepare(QTextEdit* box)
{
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->resize(TutorialTooltip::kTextWidth, TutorialTooltip::kTextRoom);
    box->grab();
}

void paint(QTextEdit* box)
{
    box->setFixedHeight(static_cast<int>(box->document()->size().height()));
    box->grab();
}

double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer elapsed;
    elapsed.start();
    work();
    return double(elapsed.nsecsElapsed()) / 1e6;
}

QString figure(double value)
{
    return QStringLiteral("%1 ms").arg(value, 0, 'f', 2);
}

bool longHint(HintText* box, const QString& subject, const QString& text)
{
    QVector<double> ours;
    for (int run = 0; run < kRuns; ++run) {
        ours << milliseconds([box, &text] {
            box->setHint(text);
            box->fitInto(TutorialTooltip::kTextRoom);
            paint(box);
        });
    }
    const double most = *std::max_element(ours.begin(), ours.end());
    return reportRow(subject, figure(most), QStringLiteral("-"), QStringLiteral("-"),
        QStringLiteral("at most ") + figure(kMostMs), most <= kMostMs);
}

bool ordinaryHint(HintText* box)
{
    QTextEdit bare;
    prepare(&bare);
    QVector<double> ours;
    QVector<double> floor;
    const auto hint = [](int change) {
        return QStringLiteral("Press the <b>button</b> no. %1, then go on.").arg(change);
    };
    for (int run = 0; run < kRuns; ++run) {
        ours << milliseconds([box, &hint] {
            for (int i = 0; i < kChangesPerRun; ++i) {
                box->setHint(hint(i));
                box->fitInto(TutorialTooltip::kTextRoom);
                paint(box);
            }
        }) / kChangesPerRun;
        floor << milliseconds([&bare, &hint] {
            for (int i = 0; i < kChangesPerRun; ++i) {
                bare.setText(hint(i));
                paint(&bare);
            }
        }) / kChangesPerRun;
    }
    const double ratio = median(ours) / median(floor);
    return reportRow(QStringLiteral("a hint change"), figure(median(ours)), figure(median(floor)),
        QStringLiteral("%1 x").arg(ratio, 0, 'f', 2),
        QStringLiteral("at most %1 x").arg(kMostTimesBare), ratio <= kMostTimesBare);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    HintText box;
    prepare(&box);
    bool kept = ordinaryHint(&box);
    const QString words = QStringLiteral("Press the button now. ").repeated(kLongHint / 22);
    kept &= longHint(&box, QStringLiteral("a hint of 200,000 letters"), words);
    kept &= longHint(&box, QStringLiteral("the same, rich"), QStringLiteral("<b>a</b>") + words);
    kept &=
        longHint(&box, QStringLiteral("the same, one word"), QString(kLongHint, QLatin1Char('x')));
    return kept ? 0 : 1;
}
