// SPDX-License-Identifier: MIT
#include "openscenario.h"

#include "editor/document/openmark.h"
#include "editor/document/scenariodocument.h"
#include "tests/support/modalboxes.h"

#include <QLabel>
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

// Nothing is taken for markup.
void expectPlain(const QWidget* box)
{
    for (const QLabel* label : box->findChildren<QLabel*>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
}

// What a box says in small print.
void expectMore(QMessageBox* box, const QString& text)
{
    expectPlain(box);
    QVERIFY2(box->informativeText().contains(text), qPrintable(box->informativeText()));
}

// Return in a hurry replaces and opens nothing.
void expectCancelByReturn(QMessageBox* box)
{
    expectPlain(box);
    QCOMPARE(box->defaultButton(), box->button(QMessageBox::Cancel));
}

} // namespace

// The scenario file and the author's answers, by keys and the mouse.
class tst_Saving : public QObject {
    Q_OBJECT

private slots:
    void asksAboutAnotherFile_data();
    void asksAboutAnotherFile();
    void tellsWhatWasNotReadWhole();
    void showsMarkupAsItIs();
    void offersToReload();
    void tellsOfAChangeBesideUnsavedOnes();
    void tellsThatAnotherToolHasItOpen();
    void nothingIsTakenBackBelowAQuestion();
    void historyIsOfOneScenario();
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
                                           expectCancelByReturn(box);
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

void tst_Saving::showsMarkupAsItIs()
{
    ModalBoxes boxes(QMessageBox::Ok, expectPlain);
    const OpenScenario scenario("var scenario = [\n{\"hint\": \"<b>a</b><br>\" x}\n];"_s);
    QVERIFY(boxes.isDone());
    QVERIFY2(boxes.seen().first().contains("<b>a</b><br>"_s), qPrintable(boxes.seen().first()));
}

void tst_Saving::offersToReload()
{
    OpenScenario scenario(scenarioText("a b c"_s));
    scenario.select({1});
    auto* notice = scenario.widget<QWidget>("notice");
    QVERIFY(notice->isHidden());
    scenario.write(scenarioText("a x b"_s));
    QTRY_VERIFY(notice->isVisible());
    expectPlain(notice);
    QCOMPARE(scenario.widget<QLabel>("noticeText")->text(), "scenario.js has changed on disk."_s);
    QTest::mouseClick(scenario.widget<QPushButton>("noticeReload"), Qt::LeftButton);
    QVERIFY(notice->isHidden());
    QCOMPARE(scenario.rows(), "a|x|b|<>"_s);
    QCOMPARE(scenario.selectedRows(), "b"_s);
    QVERIFY(scenario.dialog()->isSaved() && !scenario.dialog()->isWindowModified());
    QTest::keyClick(scenario.tree(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), "a|b|c|<>"_s);
    QVERIFY(!scenario.dialog()->isSaved() && scenario.dialog()->isWindowModified());
    QTest::keyClick(scenario.tree(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(scenario.dialog()->isSaved() && !scenario.dialog()->isWindowModified());
}

void tst_Saving::tellsOfAChangeBesideUnsavedOnes()
{
    OpenScenario scenario(scenarioText("a b"_s));
    auto* notice = scenario.widget<QWidget>("notice");
    const auto* reload = scenario.widget<QPushButton>("noticeReload");
    const auto* text = scenario.widget<QLabel>("noticeText");
    scenario.select({1});
    QTest::keyClick(scenario.tree(), Qt::Key_Delete);
    scenario.write(scenarioText("c"_s));
    QTRY_VERIFY(notice->isVisible());
    QVERIFY2(text->text().endsWith("Save asks which changes to keep."_s), qPrintable(text->text()));
    QVERIFY(reload->isHidden());
    // The changes are gone, so that there is nothing to ask.
    QTest::keyClick(scenario.tree(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!reload->isHidden());
    QTest::mouseClick(scenario.widget<QPushButton>("noticeHide"), Qt::LeftButton);
    QTest::keyClick(scenario.tree(), Qt::Key_Delete);
    QVERIFY(notice->isHidden());
    QVERIFY(QFile::remove(scenario.path()));
    QTRY_COMPARE(text->text(), "scenario.js is gone. Save writes it again."_s);
    QVERIFY(notice->isVisible() && reload->isHidden());
    // Its own writing tells nothing.
    ModalBoxes boxes(QMessageBox::Yes);
    clickSave(scenario);
    QVERIFY(boxes.isDone() && notice->isHidden());
    QCOMPARE(scenario.fileText(), scenarioText("a"_s));
}

void tst_Saving::tellsThatAnotherToolHasItOpen()
{
    OpenScenario scenario(scenarioText("a"_s));
    const QString other = scenario.path() + ".<b>js"_s;
    QVERIFY(QFile::copy(scenario.path(), other));
    QVERIFY(OpenMark(scenario.path()).hasOthers());
    {
        // Its own mark is none of another tool.
        const ModalBoxes none;
        Manager::setContents(scenario.path());
        QVERIFY(none.isDone());
    }
    {
        const OpenMark mark(other);
        ModalBoxes boxes(
            {{QMessageBox::Cancel, expectCancelByReturn}, {QMessageBox::Yes, nullptr}});
        Manager::setContents(other);
        QCOMPARE(scenario.dialog()->document()->path(), scenario.path());
        QVERIFY(OpenMark(scenario.path()).hasOthers());
        Manager::setContents(other);
        QVERIFY(boxes.isDone());
        QVERIFY2(boxes.seen().first().contains(other), qPrintable(boxes.seen().first()));
        QCOMPARE(scenario.dialog()->document()->path(), other);
    }
    QVERIFY(OpenMark(other).hasOthers());
    QVERIFY(!OpenMark(scenario.path()).hasOthers());
    scenario.dialog()->close();
    QVERIFY(!OpenMark(other).hasOthers());
}

void tst_Saving::nothingIsTakenBackBelowAQuestion()
{
    OpenScenario scenario(scenarioText("a b c"_s));
    scenario.select({1});
    QTest::keyClick(scenario.tree(), Qt::Key_Delete);
    ModalBoxes boxes(QMessageBox::Yes,
        [](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier); });
    clickSave(scenario);
    QVERIFY(boxes.isDone());
    QCOMPARE(scenario.fileText(), scenarioText("a c"_s));
    QVERIFY(scenario.dialog()->isSaved() && !scenario.dialog()->isWindowModified());
    // The file holds something else than the tree then.
    QVERIFY(Manager::save("[]"_s) && scenario.dialog()->isWindowModified());
    Manager::save(scenario.dialog()->getCurrentJson());
    QVERIFY(!scenario.dialog()->isWindowModified());
    // It is an act still.
    scenario.dialog()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(scenario.dialog()));
    QTest::keyClick(scenario.tree(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(scenario.rows(), "a|b|c|<>"_s);
    QVERIFY(!scenario.dialog()->isSaved() && scenario.dialog()->isWindowModified());
}

void tst_Saving::historyIsOfOneScenario()
{
    OpenScenario scenario(scenarioText("a b c"_s));
    const QString other = scenario.path() + ".other.js"_s;
    QVERIFY(QFile::copy(scenario.path(), other));
    scenario.select({0}, {1});
    QTest::keyClick(scenario.tree(), Qt::Key_Delete);
    QTest::keyClick(scenario.tree(), Qt::Key_Delete);
    QTest::keyClick(scenario.tree(), Qt::Key_Z, Qt::ControlModifier);
    Manager::setContents(other);
    for (const auto modifiers :
        {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier})
        QTest::keyClick(scenario.tree(), Qt::Key_Z, modifiers);
    QCOMPARE(scenario.rows(), "a|b|c|<>"_s);
    QVERIFY(scenario.dialog()->isSaved() && !scenario.dialog()->isWindowModified());
}

QTEST_MAIN(tst_Saving)
#include "tst_saving.moc"
