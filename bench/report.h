// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

// The middle one of the values, of which there is at least one.
double median(QVector<double> values);

// One line of the table of results: both figures as they are to be read, with
// their unit, and how they compare; an empty limit for none. Returns whether
// the limit is kept.
bool reportRow(const QString& subject, const QString& ours, const QString& floor,
    const QString& comparison, const QString& limit, bool kept);
