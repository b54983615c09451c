// SPDX-License-Identifier: MIT
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"
#include "tests/support/testhost.h"
#include "tests/support/xdotool.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <random>
#include <thread>

using namespace TutorialEditor;

namespace {

constexpr int kDeadlineMs = 20000;
constexpr int kSteps = 2000;
constexpr int kMayBeMissingMs = 2000;
constexpr int kLongestLifeMs = 5000;
constexpr int kUndoMs = 200;
constexpr int kNone = -1;

// The x of the first step when the scenario is whole: each step has its own
// number as its y.
int firstX(const QJsonArray& steps)
{
    for (int i = 1; i < steps.size(); ++i) {
        if (steps.at(i).toObject().value(QLatin1String("y")) != i)
            return kNone;
    }
    return steps.size() == kSteps ? steps.first().toObject().value(QLatin1String("x")).toInt()
                                  : kNone;
}

} // namespace

// The authoring tool is killed again and again while a scenario is edited in it.
// TUTORIAL_KILLS: how often.
class tst_RecoveryOnScreen : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void killsLoseNothing();

private:
    // Opens the scenario, takes the unsaved changes, if there are any, and saves.
    void open();
    // Edits, and saves now and then, until the process is killed.
    void workUntilKilled();
    // The x that the tool reported last.
    int reportedX() const;
    void clickSave() const;
    int savedX() const;
    QStringList copies() const;

    std::mt19937 mRandom{20261123};
    QTemporaryDir mFolder;
    QString mPath;
    QScopedPointer<TestHost> mHost;
    int mEdit = 0; // the x of the last edit
    int mSafe = 0; // the last one that must not be missing
    int mRecovered = 0; // how often changes were recovered
    bool mUndone = false; // an edit was, at least once
};

void tst_RecoveryOnScreen::initTestCase()
{
    mPath = mFolder.filePath(QStringLiteral("garden.js"));
    QJsonArray steps;
    for (int i = 0; i < kSteps; ++i)
        steps.append(QJsonObject{{QStringLiteral("hint"), QStringLiteral("Step")},
            {QStringLiteral("x"), 0}, {QStringLiteral("y"), i}});
    QVERIFY(writeScenarioFile(mPath, scenarioJson(steps)));
    for (const char* home : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qputenv(home, QFile::encodeName(mFolder.path()));
}

QStringList tst_RecoveryOnScreen::copies() const
{
    const QDir data(mFolder.filePath(QStringLiteral("SOLVANTA/TUTORIAL/recovery")));
    QStringList paths;
    for (const QString& name : data.entryList(QDir::Files))
        paths << data.filePath(name);
    return paths;
}

int tst_RecoveryOnScreen::reportedX() const
{
    const QByteArray report("updateXYFollowWindow\1");
    const QByteArray bytes = mHost->receivedBytes();
    const int at = bytes.lastIndexOf(report, bytes.lastIndexOf('\0'));
    return at == -1 ? kNone : bytes.mid(at).split('\1').at(1).toInt();
}

void tst_RecoveryOnScreen::clickSave() const
{
    click(windowTitled(QStringLiteral("^garden")), -40, -25);
}

int tst_RecoveryOnScreen::savedX() const
{
    QJsonArray steps;
    QStringList errors;
    return readScenarioFile(mPath, &steps, &errors) ? firstX(steps) : kNone;
}

void tst_RecoveryOnScreen::open()
{
    mHost.reset(new TestHost);
    QVERIFY(mHost->startAndConnect());
    // The tool reports the step as soon as nothing has to be asked any more.
    mHost->send({{QStringLiteral("editor"), QStringLiteral("open"), mPath}});
    mHost->send({{QStringLiteral("editor"), QStringLiteral("focus"), QStringLiteral("0")}});
    const QString question = QStringLiteral("^Recover$");
    bool isAsked = false;
    QVERIFY(QTest::qWaitFor(
        [&] {
            isAsked = !windowTitled(question).isEmpty();
            return isAsked || reportedX() != kNone;
        },
        kDeadlineMs));
    if (isAsked) {
        ++mRecovered;
        press(QStringLiteral("alt+r"));
        QVERIFY(waitForWindow(question, false));
        QTRY_VERIFY_WITH_TIMEOUT(reportedX() != kNone, kDeadlineMs);
    }
    const int x = reportedX();
    // The last one may have been undone and not redone.
    QVERIFY2(x >= mSafe - 1 && x <= mEdit,
        qPrintable(QStringLiteral("%1 is not between %2 and %3; %4 was saved")
                       .arg(x)
                       .arg(mSafe)
                       .arg(mEdit)
                       .arg(savedX())));
    QTRY_VERIFY(!windowTitled(QStringLiteral("^garden")).isEmpty());
    if (isAsked) {
        clickSave();
        QVERIFY(waitForWindow(QStringLiteral("^Save$")));
        press(QStringLiteral("alt+y"));
    }
    QTRY_COMPARE_WITH_TIMEOUT(savedX(), x, kDeadlineMs);
    QTRY_COMPARE(copies(), QStringList());
    mEdit = mSafe = x;
}

void tst_RecoveryOnScreen::workUntilKilled()
{
    const auto below = [this](int limit) { return int(mRandom() % unsigned(limit)); };
    const int saved = savedX();
    const int lifeMs = below(kLongestLifeMs);
    qint64 killedMs = 0;
    QElapsedTimer clock;
    clock.start();
    std::thread killer([&, pid = pid_t(mHost->process().processId())] {
        std::this_thread::sleep_for(std::chrono::milliseconds(lifeMs));
        killedMs = clock.elapsed();
        kill(pid, SIGKILL);
    });
    QVector<QPair<qint64, int>> reported;
    while (mHost->process().state() == QProcess::Running) {
        const QString x = QString::number(++mEdit);
        mHost->send({{QStringLiteral("editor"), QStringLiteral("coordinates"), x, x}});
        if (below(80) == 0) {
            clickSave();
            press(QStringLiteral("alt+y"));
        }
        if (below(20) == 0) {
            const bool isReported =
                QTest::qWaitFor([this] { return reportedX() == mEdit; }, kUndoMs);
            press(QStringLiteral("ctrl+z"));
            mUndone |=
                isReported && QTest::qWaitFor([this] { return reportedX() == mEdit - 1; }, kUndoMs);
            press(QStringLiteral("ctrl+shift+z"));
        }
        QTest::qWait(below(40));
        reported.append({clock.elapsed(), reportedX()});
    }
    killer.join();
    for (const auto& report : qAsConst(reported)) {
        if (report.first <= killedMs - kMayBeMissingMs)
            mSafe = std::max(mSafe, report.second);
    }
    // The former file or a newer one, and whole.
    QVERIFY(savedX() >= saved);
    mSafe = std::max(mSafe, savedX());
}

void tst_RecoveryOnScreen::killsLoseNothing()
{
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("TUTORIAL_KILLS", &isGiven);
    const int kills = isGiven ? given : 20;
    for (int i = 0; i < kills; ++i) {
        open();
        if (!QTest::currentTestFailed())
            workUntilKilled();
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("at kill %1").arg(i)));
    }
    open();
    QVERIFY(mUndone || kills < 20);
    qInfo("%d kills, %d with changes to recover", kills, mRecovered);
    QVERIFY(mRecovered > 0);
}

int main(int argc, char** argv)
{
    // Hundreds of kills take longer than a test function may by default.
    qputenv("QTEST_FUNCTION_TIMEOUT", "7200000");
    QCoreApplication application(argc, argv);
    tst_RecoveryOnScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_recovery_on_screen.moc"
