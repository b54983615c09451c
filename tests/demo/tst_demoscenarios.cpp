#include "demo/hint.h"
#include "demo/project.h"
#include "demo/scenario.h"
#include "editor/scenarioreader.h"
#include "editor/scenariowriter.h"

#include <QTranslator>
#include <QtTest>

using namespace Tutorial;

// The scenarios that the program carries.
class tst_DemoScenarios : public QObject {
    Q_OBJECT

private slots:
    void sound_data();
    void sound();
    void everyConditionAndIcon();
    void hints();

private:
    static QString path(const QString& name);
    static QJsonArray readJson(const QString& name);
    static Scenario read(const QString& name) { return Scenario::fromJson(readJson(name)); }
};

QString tst_DemoScenarios::path(const QString& name)
{
    return QStringLiteral(":/scenarios/%1.js").arg(name);
}

QJsonArray tst_DemoScenarios::readJson(const QString& name)
{
    QJsonArray steps;
    QStringList errors;
    if (!TutorialEditor::readScenarioFile(path(name), &steps, &errors))
        qFatal("%s", qPrintable(errors.join(QLatin1Char('\n'))));
    return steps;
}

void tst_DemoScenarios::sound_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"first-steps", "all-conditions"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_DemoScenarios::sound()
{
    QFETCH(QString, name);
    // An author who saves it unchanged changes nothing.
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()),
        TutorialEditor::scenarioFileText(TutorialEditor::scenarioJson(readJson(name))));

    const Scenario scenario = read(name);
    QVERIFY(scenario.steps.size() > 10);
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/translations/tutorial-demo_de.qm")));
    for (const Step& step : scenario.steps) {
        const QByteArray where = step.pathText().toUtf8();
        QVERIFY2(step.fault.isEmpty(), where + qUtf8Printable(step.fault));
        QVERIFY2(step.presetData.isEmpty() || Project::preset(step.presetData), where);
        if (step.condition.kind == Condition_yesNo) {
            for (const QString& label : step.condition.parameters)
                QVERIFY2(label.isEmpty() || scenario.labels.contains(label), where);
        }
        const QString english = hintText(step.hint, name);
        QCoreApplication::installTranslator(&german);
        const QString translated = hintText(step.hint, name);
        QCoreApplication::removeTranslator(&german);
        QVERIFY2(!english.isEmpty() && english != step.hint && translated != english, where);
    }
}

void tst_DemoScenarios::everyConditionAndIcon()
{
    QSet<int> conditions;
    QSet<int> icons;
    bool hidden = false;
    bool branch = false;
    for (const Step& step : read(QStringLiteral("all-conditions")).steps) {
        conditions << step.condition.kind;
        icons << step.icon;
        hidden = hidden || step.arrowHidden;
        branch = branch || (step.condition.kind == Condition_yesNo && step.path.size() == 1);
    }
    QCOMPARE(conditions.size(), int(ConditionKindCount));
    QCOMPARE(icons.size(), int(IconKindCount));
    QVERIFY(hidden && branch);
}

void tst_DemoScenarios::hints()
{
    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/translations/tutorial-demo_de.qm")));
    QCoreApplication::installTranslator(&german);
    const QString context = QStringLiteral("all-conditions");
    QCOMPARE(hintText(QStringLiteral("qsTr(\"Press <b>Next</b>.\")"), context),
        QStringLiteral("Drücke <b>Next</b>."));
    // As it is in memory, with the comma of its line; and with a context.
    QCOMPARE(hintText(QStringLiteral("QT_TRANSLATE_NOOP(\"Press <b>OK</b>.\"),"), context),
        QStringLiteral("Drücke <b>OK</b>."));
    QCOMPARE(hintText(QStringLiteral("QT_TRANSLATE_NOOP(\"Project\", \"Grass\")"), context),
        QStringLiteral("Gras"));
    QCOMPARE(hintText(QStringLiteral("qsTr(\"not translated\")"), context),
        QStringLiteral("not translated"));
    QCOMPARE(
        hintText(QStringLiteral("Press <b>OK</b>."), context), QStringLiteral("Press <b>OK</b>."));
    QCoreApplication::removeTranslator(&german);
}

QTEST_GUILESS_MAIN(tst_DemoScenarios)
#include "tst_demoscenarios.moc"
