// SPDX-License-Identifier: MIT
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"
#include "tests/support/testhost.h"
#include "tests/support/xdotool.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace TutorialEditor;

namespace {

constexpr int kDeadlineMs = 20000;
const QString kTool = QStringLiteral("^garden");
const QString kQuestion = QStringLiteral("^Save$");

QByteArray scenario(int x)
{
    const QJsonArray steps{
        QJsonObject{{QStringLiteral("hint"), QStringLiteral("Step")}, {QStringLiteral("x"), x}}};
    return scenarioFileText(scenarioJson(steps)).toUtf8();
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Presses a key in a window, which may have been shown just now.
void pressIn(const QString& window, const QString& key)
{
    xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), window});
    press(key);
}

} // namespace

// What becomes of a scenario file that other programs work on as well, with the
// real program, its keys and the mouse.
class tst_SavingOnScreen : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void overwritesWhenTheAuthorAgrees();
    void reloadsInsteadOfSaving();
    void keepsWhatWasNotReadWhole();
    void writesAgainWhatIsGone();
    void tellsOfTheOtherTool();

private:
    QString kept() const { return mPath + QStringLiteral(".bak"); }
    // Opens the file, which holds this, and gives the step another x.
    void openAndChange(const QByteArray& bytes);
    void clickSave();
    // Waits for a box, and presses a key in it.
    void answer(const QString& title, const QString& key);
    // Agrees to save, and presses a key in the question that follows.
    void answerTheNextOne(const QString& key);
    int reportedX() const;

    QScopedPointer<QTemporaryDir> mFolder;
    QString mPath;
    QScopedPointer<TestHost> mHost;
};

void tst_SavingOnScreen::init()
{
    mFolder.reset(new QTemporaryDir);
    mPath = mFolder->filePath(QStringLiteral("garden.js"));
    for (const char* home : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qputenv(home, QFile::encodeName(mFolder->path()));
    mHost.reset(new TestHost);
    QVERIFY(mHost->startAndConnect());
}

void tst_SavingOnScreen::cleanup()
{
    // Nothing stays of a tool that ends as it should.
    mHost->send({{QStringLiteral("bye")}});
    QVERIFY(mHost->process().waitForFinished(kDeadlineMs));
    const QDir locks(mFolder->filePath(QStringLiteral("SOLVANTA/TUTORIAL/locks")));
    QCOMPARE(locks.entryList(QDir::Files), QStringList());
}

void tst_SavingOnScreen::openAndChange(const QByteArray& bytes)
{
    write(mPath, bytes);
    const auto fields = [](const char* text) { return QString::fromLatin1(text).split(u'|'); };
    mHost->send({fields("editor|open") << mPath, fields("editor|focus|0"),
        fields("editor|coordinates|7|8")});
    QVERIFY(waitForWindow(kTool));
    QTRY_COMPARE_WITH_TIMEOUT(reportedX(), 7, kDeadlineMs);
}

int tst_SavingOnScreen::reportedX() const
{
    const QByteArray report("updateXYFollowWindow\1");
    const QByteArray received = mHost->receivedBytes();
    const int at = received.lastIndexOf(report, received.lastIndexOf('\0'));
    return at == -1 ? -1 : received.mid(at).split('\1').at(1).toInt();
}

void tst_SavingOnScreen::clickSave()
{
    click(windowTitled(kTool), -40, -25);
}

void tst_SavingOnScreen::answer(const QString& title, const QString& key)
{
    QVERIFY(waitForWindow(title));
    pressIn(windowTitled(title), key);
}

void tst_SavingOnScreen::answerTheNextOne(const QString& key)
{
    const QString first = windowTitled(kQuestion);
    pressIn(first, QStringLiteral("alt+y"));
    QString next;
    QTRY_VERIFY_WITH_TIMEOUT(
        !(next = windowTitled(kQuestion)).isEmpty() && next != first, kDeadlineMs);
    pressIn(next, key);
}

void tst_SavingOnScreen::overwritesWhenTheAuthorAgrees()
{
    openAndChange(scenario(1));
    clickSave();
    QVERIFY(waitForWindow(kQuestion));
    // While the question is open, so that no line in the window moves the button.
    write(mPath, scenario(2));
    answerTheNextOne(QStringLiteral("alt+o"));
    QTRY_VERIFY_WITH_TIMEOUT(read(mPath).contains("\"x\": 7"), kDeadlineMs);
    QCOMPARE(read(kept()), scenario(2));
}

void tst_SavingOnScreen::reloadsInsteadOfSaving()
{
    openAndChange(scenario(1));
    clickSave();
    QVERIFY(waitForWindow(kQuestion));
    write(mPath, scenario(2));
    answerTheNextOne(QStringLiteral("alt+r"));
    QTRY_COMPARE_WITH_TIMEOUT(reportedX(), 2, kDeadlineMs);
    QCOMPARE(read(mPath), scenario(2));
    // Taken back, it is to be saved again.
    QVERIFY(waitForWindow(kQuestion, false));
    pressIn(windowTitled(kTool), QStringLiteral("ctrl+z"));
    clickSave();
    answer(kQuestion, QStringLiteral("alt+y"));
    QTRY_VERIFY_WITH_TIMEOUT(read(mPath).contains("\"x\": 7"), kDeadlineMs);
}

void tst_SavingOnScreen::keepsWhatWasNotReadWhole()
{
    const QByteArray bytes = scenario(1).replace("\"Step\"", "5");
    openAndChange(bytes);
    clickSave();
    answer(kQuestion, QStringLiteral("alt+y"));
    QTRY_VERIFY_WITH_TIMEOUT(read(mPath).contains("\"x\": 7"), kDeadlineMs);
    QCOMPARE(read(kept()), bytes);
}

void tst_SavingOnScreen::writesAgainWhatIsGone()
{
    openAndChange(scenario(1));
    clickSave();
    QVERIFY(waitForWindow(kQuestion));
    QVERIFY(QFile::remove(mPath));
    answer(kQuestion, QStringLiteral("alt+y"));
    QTRY_VERIFY_WITH_TIMEOUT(read(mPath).contains("\"x\": 7"), kDeadlineMs);
    QVERIFY(!QFile::exists(kept()));
}

void tst_SavingOnScreen::tellsOfTheOtherTool()
{
    openAndChange(scenario(1));
    const QString question = QStringLiteral("^In use$");
    {
        TestHost other;
        QVERIFY(other.startAndConnect());
        other.send({{QStringLiteral("editor"), QStringLiteral("open"), mPath}});
        answer(question, QStringLiteral("Escape"));
        QVERIFY(waitForWindow(question, false));
        other.send({{QStringLiteral("editor"), QStringLiteral("open"), mPath}});
        answer(question, QStringLiteral("alt+o"));
        QVERIFY(waitForWindow(question, false));
        // Killed, it has nothing open.
        other.process().kill();
        QVERIFY(other.process().waitForFinished(kDeadlineMs));
    }
    mHost->process().kill();
    QVERIFY(mHost->process().waitForFinished(kDeadlineMs));
    mHost.reset(new TestHost);
    QVERIFY(mHost->startAndConnect());
    mHost->send({{QStringLiteral("editor"), QStringLiteral("open"), mPath}});
    // The next question is about what the killed one had not saved.
    const QString recover = QStringLiteral("^Recover$");
    QTRY_VERIFY_WITH_TIMEOUT(
        !windowTitled(recover).isEmpty() || !windowTitled(question).isEmpty(), kDeadlineMs);
    QVERIFY(windowTitled(question).isEmpty());
    answer(recover, QStringLiteral("alt+d"));
    QVERIFY(waitForWindow(recover, false));
}

QTEST_GUILESS_MAIN(tst_SavingOnScreen)
#include "tst_saving_on_screen.moc"
