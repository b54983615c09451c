// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringList>

namespace TutorialEditor {

// The context under which translators find what the reader reports: that of
// the scenario's model.
struct ReadError {
    Q_DECLARE_TR_FUNCTIONS(QStandardItemModel)
};

// `message` followed, in brackets, by the step of `text` that `position` stands
// in, as its action index list, and by `details`; empty ones are left out.
QString located(const QString& message, const QString& text, int position,
    const QStringList& details = QStringList());

} // namespace TutorialEditor
