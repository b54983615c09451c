// SPDX-License-Identifier: MIT
#include "openscenario.h"

#include "tests/support/modalboxes.h"

#include <QPushButton>

using namespace TutorialEditor;

namespace {

QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void clickSave(const OpenScenario& scenario)
{
    QTest::mouseClick(scenario.widget<QPushButton>("save"), Qt::LeftButton);
}

// What a box says in small print.
void expectMore(QMessageBox* box, const QString& text)
{
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QVERIFY2(box->informativeText().contains(text), qPrintable(box->informativeText()));
}

} // namespace

// The scenario file and the author's answers, by keys and the mouse.
class tst_Saving : public QObject {
    Q_OBJECT

private slots:
    void asksAboutAnotherFile_data();
    void asksAboutAnotherFile();
    void tellsWhatWasNotReadWhole();
};

void tst_Saving::asksAboutAnotherFile_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("kept");
    const QString other = scenarioText("x b a"_s);
    const QString ours = scenarioText("a c"_s);
    QTest::newRow("overwrite") << int(QMessageBox::Yes) << ours << other;
    QTest::newRow("reload") << int(QMessageBox::Retry) << other << QString();
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << other << QString();
}

void tst_Saving::asksAboutAnotherFile()
{
    QFETCH(int, answer);
    OpenScenario scenario(scenarioText("a b"_s));
    scenario.select({1});
    QTest::keyClick(scenario.hint(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(scenario.hint(), "c"_s);
    scenario.select({0});
    scenario.write(scenarioText("x b a"_s));
    ModalBoxes boxes(
        {{QMessageBox::Yes, nullptr}, {QMessageBox::StandardButton(answer), [&](QMessageBox* box) {
                                           expectMore(box, scenario.path() + ".bak"_s);
                                       }}});
    clickSave(scenario);
    QVERIFY(boxes.isDone());
    QVERIFY2(boxes.seen().last().contains(scenario.path()), qPrintable(boxes.seen().last()));
    // "x" for "c", and one more.
    QVERIFY2(boxes.seen().last().endsWith("here: 2"_s), qPrintable(boxes.seen().last()));
    QTEST(scenario.fileText(), "file");
    QTEST(textOf(scenario.path() + ".bak"_s), "kept");
    QCOMPARE(scenario.dialog()->isSaved(), answer != QMessageBox::Cancel);
    // The step, wherever it stands now.
    QCOMPARE(scenario.selectedRows(), "a"_s);
}

void tst_Saving::tellsWhatWasNotReadWhole()
{
    const QString text = "var scenario = [\n{\n\"hint\": 5\n}\n];"_s;
    OpenScenario scenario(text);
    scenario.select({0});
    QTest::keyClicks(scenario.widget<QLineEdit>("x"), "7"_s);
    const QString kept = scenario.path() + ".bak"_s;
    {
        ModalBoxes boxes(QMessageBox::Cancel, [&](QMessageBox* box) { expectMore(box, kept); });
        clickSave(scenario);
        QCOMPARE(boxes.seen(), QStringList("Save: Save OK?"_s));
    }
    QCOMPARE(scenario.fileText(), text);
    QVERIFY(!QFile::exists(kept));
    ModalBoxes boxes(QMessageBox::Yes);
    clickSave(scenario);
    QVERIFY(boxes.isDone());
    QVERIFY(scenario.fileText().contains("\"x\": 7"_s));
    QCOMPARE(textOf(kept), text);
}

QTEST_MAIN(tst_Saving)
#include "tst_saving.moc"
