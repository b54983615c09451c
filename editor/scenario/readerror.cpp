// SPDX-License-Identifier: MIT
#include "editor/scenario/readerror.h"

#include "editor/scenario/textwalker.h"

#include <QVector>

using namespace TutorialEditor;

namespace {

// "step 2,0": the action index list of the step that `position` stands in;
// empty outside of all steps.
QString stepAt(const QString& text, int position)
{
    struct Level {
        bool isList;
        int index;
    };
    QVector<Level> levels;
    TextWalker walker(text);
    for (int i = 0; i < position && i < text.size(); i = walker.next(i)) {
        const QChar character = text.at(i);
        if (character == QLatin1Char('[') || character == QLatin1Char('{'))
            levels.append({character == QLatin1Char('['), 0});
        else if (levels.isEmpty())
            continue;
        else if (character == QLatin1Char(']') || character == QLatin1Char('}'))
            levels.removeLast();
        else if (character == QLatin1Char(','))
            ++levels.last().index;
    }
    QStringList indexes;
    for (const Level& level : qAsConst(levels)) {
        if (level.isList)
            indexes << QString::number(level.index);
    }
    if (indexes.isEmpty())
        return QString();
    return ReadError::tr("step %1").arg(indexes.join(QLatin1Char(',')));
}

} // namespace

QString TutorialEditor::located(
    const QString& message, const QString& text, int position, const QStringList& details)
{
    QStringList parts = QStringList(stepAt(text, position)) + details;
    parts.removeAll(QString());
    if (parts.isEmpty())
        return message;
    return message + QLatin1String(" (") + parts.join(QLatin1String(", ")) + QLatin1Char(')');
}
