// SPDX-License-Identifier: MIT
#include "editor/scenario/savecheck.h"

#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

using namespace TutorialEditor;

namespace {

struct Message {
    Q_DECLARE_TR_FUNCTIONS(TutorialEditor::Manager)
};

QString fileForm(const QJsonValue& step)
{
    return scenarioJson(QJsonArray{step});
}

// The action index list, "2,0", of the first step that is not the same in both.
QString firstDifference(const QJsonArray& steps, const QJsonArray& read)
{
    const QString group = QStringLiteral("group");
    int i = 0;
    while (i < steps.size() && i < read.size() && fileForm(steps.at(i)) == fileForm(read.at(i)))
        ++i;
    const QString place = QString::number(i);
    const QJsonValue contents = steps.at(i).toObject().value(group);
    const QJsonValue readContents = read.at(i).toObject().value(group);
    if (!contents.isArray() || !readContents.isArray() || contents == readContents)
        return place;
    return place + QLatin1Char(',') + firstDifference(contents.toArray(), readContents.toArray());
}

} // namespace

QStringList TutorialEditor::findUnreadable(const QString& json, const QJsonArray& steps)
{
    QStringList errors;
    const QJsonArray read = readScenario(scenarioFileText(json), &errors);
    if (!errors.isEmpty())
        return errors;
    if (scenarioJson(read) == json)
        return QStringList();
    return {
        Message::tr("Step %1 would be read as something else.").arg(firstDifference(steps, read))};
}
