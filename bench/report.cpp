// SPDX-License-Identifier: MIT
#include "bench/report.h"

#include <QTextStream>

#include <algorithm>
#include <cstdio>

double median(QVector<double> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

bool reportRow(const QString& subject, const QString& ours, const QString& floor,
    const QString& comparison, const QString& limit, bool kept)
{
    QStringList cells{subject, ours, floor, comparison};
    if (limit.isEmpty())
        cells << QStringLiteral("-") << QStringLiteral("-");
    else
        cells << limit << (kept ? QStringLiteral("yes") : QStringLiteral("**no**"));
    QTextStream(stdout) << "| " << cells.join(QStringLiteral(" | ")) << " |\n";
    return kept;
}
