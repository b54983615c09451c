#include "editor/scenarioreader.h"
#include "editor/scenariowriter.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace TutorialEditor;

class tst_ScenarioWriter : public QObject {
    Q_OBJECT

private slots:
    void workedExample();
    void fullDisk();
};

void tst_ScenarioWriter::workedExample()
{
    const QString file = QStringLiteral(
        "var scenario = [\n"
        "    {\n        \"comment\": \"open the map\",\n        \"hint\": qsTr(\"Click here\"),\n"
        "        \"x\": 10,\n        \"y\": 20\n    },\n"
        "    {\n        \"hint\": qsTr(\"Database\"),\n        \"group\": [\n"
        "        {\n            \"hint\": \"Next\",\n            \"x\": 5,\n            \"y\": 5\n"
        "        }\n]\n    }\n];");
    QStringList errors;
    const QJsonArray steps = readScenario(file, &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(steps[1].toObject()[QStringLiteral("group")].toArray().size(), 1);
    QCOMPARE(scenarioFileText(scenarioJson(steps)), file);
}

// The former file used to be replaced by an empty one.
void tst_ScenarioWriter::fullDisk()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.js"));
    QVERIFY(writeScenarioFile(path, QStringLiteral("[1]")));
    rlimit former;
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &former), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{10, former.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool isWritten = writeScenarioFile(path, QStringLiteral("[2]"));
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &former), 0);
    QVERIFY(!isWritten);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("var scenario = [1];"));
}

QTEST_APPLESS_MAIN(tst_ScenarioWriter)
#include "tst_scenariowriter.moc"
