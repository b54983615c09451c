// SPDX-License-Identifier: MIT
#include "editor/errorbox.h"

#include "editor/questions.h"

#include <QCoreApplication>

using namespace TutorialEditor;

namespace {

constexpr int kShownErrors = 12;
// Of a longer error. Its end says where it is.
constexpr int kShownBegin = 500;
constexpr int kShownEnd = 450;

QString shortened(const QString& error)
{
    if (error.size() <= kShownBegin + kShownEnd)
        return error;
    return error.left(kShownBegin) + QStringLiteral(" […] ") + error.right(kShownEnd);
}

} // namespace

QString TutorialEditor::errorText(const QStringList& errors)
{
    QStringList lines;
    for (const QString& error : errors.mid(0, kShownErrors))
        lines << shortened(error);
    if (errors.size() > kShownErrors)
        lines << QCoreApplication::translate(
            "TutorialEditor::Dialog", "and %n more", nullptr, errors.size() - kShownErrors);
    return lines.join(QLatin1Char('\n'));
}

void TutorialEditor::showErrors(const QString& title, const QStringList& errors)
{
    if (!errors.isEmpty())
        showBox(QMessageBox::Question, title, errorText(errors), QMessageBox::Ok);
}
