// SPDX-License-Identifier: MIT
#include "openscenario.h"

#include "editor/document/recoverycopy.h"
#include "tests/support/modalboxes.h"

#include <QPushButton>

#include <csignal>
#include <sys/resource.h>

using namespace TutorialEditor;

namespace {

// The copies there are, whosever they are.
QStringList copies()
{
    return QDir(RecoveryCopy::folder()).entryList({"*.json"_s});
}

QStringList everythingLeft()
{
    return QDir(RecoveryCopy::folder()).entryList(QDir::Files);
}

// Ends the work on the scenario that is open as the end of the process would.
void abandon()
{
    Manager::setContents("/nowhere"_s);
}

// A disk on which no more bytes than these go into a file.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mFormer);
        const rlimit limit{bytes, mFormer.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &mFormer); }

private:
    rlimit mFormer;
};

} // namespace

class tst_Recovery : public QObject {
    Q_OBJECT

private slots:
    void init() { QDir(RecoveryCopy::folder()).removeRecursively(); }
    void cleanup() { QCOMPARE(everythingLeft(), QStringList()); }

    void changesComeBack_data();
    void changesComeBack();
    void copyIsThereWhileNeeded();
    void editorsKeepTheirOwnCopies();
    void nothingIsLostWithoutSpace();
};

void tst_Recovery::changesComeBack_data()
{
    QTest::addColumn<QString>("hint");
    QTest::newRow("a text") << "b"_s;
    QTest::newRow("that would not be read from a scenario file") << "qsTr(\"half"_s;
}

void tst_Recovery::changesComeBack()
{
    QFETCH(QString, hint);
    OpenScenario scenario(scenarioText("a [g c ]"_s));
    scenario.select({1, 0});
    scenario.hint()->setPlainText(hint);
    const QString changed = scenario.dialog()->getCurrentJson();
    abandon();
    QCOMPARE(copies().size(), 1);

    // Later, at once, and once more: then nothing was changed since it was taken.
    for (auto answer : {QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::Yes}) {
        ModalBoxes boxes(answer);
        Manager::setContents(scenario.path());
        QVERIFY(boxes.isDone());
        QCOMPARE(scenario.dialog()->isSaved(), answer == QMessageBox::Cancel);
        QCOMPARE(scenario.dialog()->getCurrentJson() == changed, answer == QMessageBox::Yes);
        QCOMPARE(scenario.fileText(), scenarioText("a [g c ]"_s));
        abandon();
        QCOMPARE(copies().size(), 1);
    }
    ModalBoxes boxes(QMessageBox::Discard);
    Manager::setContents(scenario.path());
    QVERIFY(boxes.isDone());
    QVERIFY(scenario.dialog()->isSaved());
    QCOMPARE(everythingLeft(), QStringList());
}

void tst_Recovery::copyIsThereWhileNeeded()
{
    constexpr int kLatestMs = 2000;
    OpenScenario scenario(scenarioText("a b"_s));
    scenario.select({0});
    scenario.hint()->setPlainText("c"_s);
    QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, kLatestMs);
    scenario.hint()->setPlainText("a"_s);
    QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 0, kLatestMs);
    scenario.model()->removeRow(1);
    QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, kLatestMs);
    ModalBoxes boxes({{QMessageBox::Yes, nullptr}, {QMessageBox::No, nullptr}});
    scenario.widget<QPushButton>("save")->click();
    QCOMPARE(everythingLeft(), QStringList());
    scenario.hint()->setPlainText("given up"_s);
    QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 1, kLatestMs);
    QVERIFY(Manager::mInstance->checkSave(true));
    QVERIFY(boxes.isDone());
}

void tst_Recovery::editorsKeepTheirOwnCopies()
{
    const QString path = QDir::tempPath() + "/scenario.js"_s;
    const QJsonArray steps{QJsonObject{{"x"_s, 1}}};
    auto first = std::make_unique<RecoveryCopy>(path);
    RecoveryCopy second(QDir::tempPath() + "/./scenario.js"_s);
    QVERIFY(first->write(steps));
    QVERIFY(second.write(QJsonArray()));
    QCOMPARE(RecoveryCopy::takeAbandoned(path).size(), std::size_t(0));
    first.reset();
    {
        const FullDisk disk(0);
        QCOMPARE(RecoveryCopy::takeAbandoned(path).size(), std::size_t(1));
    }
    // What a writer leaves that is killed while it writes.
    QFile half(RecoveryCopy::folder() + QLatin1Char('/') + copies().first() + ".x1Y2z3"_s);
    QVERIFY(half.open(QIODevice::WriteOnly));
    {
        const auto found = RecoveryCopy::takeAbandoned(path);
        QCOMPARE(found.size(), std::size_t(1));
        QJsonArray read;
        QVERIFY(found.front()->read(&read));
        QCOMPARE(read, steps);
        found.front()->remove();
    }
    second.remove();
    RecoveryCopy::takeAbandoned(path);
}

void tst_Recovery::nothingIsLostWithoutSpace()
{
    const QString before = scenarioText("a b"_s);
    OpenScenario scenario(before);
    scenario.select({0});
    scenario.hint()->setPlainText("c"_s);
    Manager::mInstance->keepUnsaved();
    scenario.hint()->setPlainText(QString(20000, QLatin1Char('d')));
    const QString changed = scenario.dialog()->getCurrentJson();
    {
        const FullDisk disk(10000);
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression("Unsaved changes cannot be copied"_s));
        ModalBoxes boxes({{QMessageBox::Yes, nullptr}, {QMessageBox::Ok, nullptr}});
        scenario.widget<QPushButton>("save")->click();
        QVERIFY(boxes.isDone());
    }
    QCOMPARE(scenario.fileText(), before);
    QVERIFY(scenario.dialog()->isVisible());
    QCOMPARE(scenario.dialog()->getCurrentJson(), changed);
    QCOMPARE(copies().size(), 1); // the former one
    ModalBoxes boxes(QMessageBox::Yes);
    scenario.widget<QPushButton>("save")->click();
    QVERIFY(scenario.dialog()->isSaved());
    QVERIFY(scenario.fileText() != before);
}

QTEST_MAIN(tst_Recovery)
#include "tst_recovery.moc"
