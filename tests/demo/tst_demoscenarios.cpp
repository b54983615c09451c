// SPDX-License-Identifier: MIT
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"
#include "hostkit/core/hinttext.h"
#include "hostkit/core/scenario.h"

#include <QTranslator>
#include <QtTest>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

QJsonArray readJson(const QString& path)
{
    QJsonArray steps;
    QStringList errors;
    if (!TutorialEditor::readScenarioFile(path, &steps, &errors))
        qFatal("%s", qPrintable(errors.join(QLatin1Char('\n'))));
    return steps;
}

} // namespace

// The scenarios that the program carries.
class tst_DemoScenarios : public QObject {
    Q_OBJECT

private slots:
    void firstSteps() { isSound(QStringLiteral("first-steps")); }
    void allConditions() { isSound(QStringLiteral("all-conditions")); }

private:
    static void isSound(const QString& name);
};

void tst_DemoScenarios::isSound(const QString& name)
{
    // An author who saves it unchanged changes nothing.
    QFile file(QStringLiteral(":/scenarios/%1.js").arg(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()),
        TutorialEditor::scenarioFileText(TutorialEditor::scenarioJson(readJson(file.fileName()))));

    const Scenario scenario = Scenario::fromJson(readJson(file.fileName()));
    QVERIFY(scenario.steps.size() > 10);
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/translations/tutorial-demo_de.qm")));
    for (const Step& step : scenario.steps) {
        const QByteArray where = step.pathText().toUtf8();
        QVERIFY2(step.fault.isEmpty(), where + qUtf8Printable(step.fault));
        const QString english = hintText(step.hint, name);
        QCoreApplication::installTranslator(&german);
        const QString translated = hintText(step.hint, name);
        QCoreApplication::removeTranslator(&german);
        QVERIFY2(!english.isEmpty() && english != step.hint && translated != english, where);
    }
}

QTEST_GUILESS_MAIN(tst_DemoScenarios)
#include "tst_demoscenarios.moc"
