// SPDX-License-Identifier: MIT
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"
#include "hostkit/core/scenario.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace TutorialEditor;

// The examples of the page for writers hold what the page says of them.
class tst_ScenarioFormat : public QObject {
    Q_OBJECT

private slots:
    void examples();
};

namespace {

// The files that the page shows. Where it shows steps alone, the frame is put
// around them.
QStringList exampleFiles(const QString& page)
{
    static const QRegularExpression kBlock(QStringLiteral("^```js\\n(.*?)\\n```$"),
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    QStringList files;
    for (auto it = kBlock.globalMatch(page); it.hasNext();) {
        const QString block = it.next().captured(1);
        files << (block.startsWith(QLatin1String("var "))
                ? block
                : QStringLiteral("var scenario = [\n%1\n];").arg(block));
    }
    return files;
}

} // namespace

void tst_ScenarioFormat::examples()
{
    QFile page(QStringLiteral(SCENARIO_FORMAT_PAGE));
    QVERIFY(page.open(QIODevice::ReadOnly));
    QSet<int> kinds;
    for (const QString& file : exampleFiles(QString::fromUtf8(page.readAll()))) {
        QStringList errors;
        const QJsonArray steps = readScenario(file, &errors);
        QCOMPARE(errors, QStringList());
        QCOMPARE(scenarioFileText(scenarioJson(steps)), file);
        for (const TutorialHost::Step& step : TutorialHost::Scenario::fromJson(steps).steps) {
            QCOMPARE(step.fault, QString());
            kinds << step.condition.kind;
        }
    }
    QCOMPARE(kinds.size(), int(Tutorial::ConditionKindCount));
}

QTEST_APPLESS_MAIN(tst_ScenarioFormat)
#include "tst_scenarioformat.moc"
