// SPDX-License-Identifier: MIT
#include "hostkit/core/player.h"
#include "tests/hostkit/fakestate.h"

#include <QJsonDocument>
#include <QtTest>

using namespace Tutorial;
using namespace TutorialHost;

// A player over a host of the test's making. What it does is kept as text:
// "[0]" for a step that is shown, "data NAME", "notice", "end".
class tst_Player : public QObject {
    Q_OBJECT

private slots:
    void init();
    void branches();
    void waitsForTheWindow();
    void goesBackWhenTheWindowIsGone();
    void goesByTheTarget();
    void saysWhatCannotBeMet();
    void startsInTheMiddle();

private:
    void play(const char* json, const QList<int>& from = {});
    void answer(const char* text) { mPlayer->onAnswer(QLatin1String(text)); }
    void open(EnumWindowKind kind, const char* state = "open");
    // Whether the player did just this, since the last time that was asked.
    bool did(const char* text);

    FakeState mState;
    FakeTargets mTargets;
    Player* mPlayer = nullptr;
    QStringList mDone;
};

void tst_Player::init()
{
    mState = {};
    mTargets = {};
    mState.states.insert(Window_MainWindow, QStringLiteral("open"));
    mDone.clear();
    delete mPlayer;
    mPlayer = new Player(mState, mTargets, this);
    connect(
        mPlayer, &Player::stepShown, this, [this](const Step& step) { mDone << step.pathText(); });
    connect(mPlayer, &Player::presetDataRequested, this,
        [this](const QString& name) { mDone << QStringLiteral("data ") + name; });
    connect(mPlayer, &Player::targetMissing, this, [this] { mDone << QStringLiteral("missing"); });
    connect(mPlayer, &Player::stepLost, this, [this] { mDone << QStringLiteral("lost"); });
    connect(mPlayer, &Player::notice, this, [this] { mDone << QStringLiteral("notice"); });
    connect(mPlayer, &Player::finished, this, [this] { mDone << QStringLiteral("end"); });
}

void tst_Player::play(const char* json, const QList<int>& from)
{
    const Scenario played = Scenario::fromJson(QJsonDocument::fromJson(json).array());
    mPlayer->start(played, played.indexOf(from));
}

void tst_Player::open(EnumWindowKind kind, const char* state)
{
    mState.states.insert(kind, QLatin1String(state));
    mPlayer->onStateChanged();
}

bool tst_Player::did(const char* text)
{
    const QStringList expected = QString::fromLatin1(text).split(QLatin1String("; "));
    const bool same =
        QTest::qWaitFor([&] { return mDone.size() >= expected.size(); }) && mDone == expected;
    if (!same)
        qWarning() << "expected" << expected << "but it did" << mDone;
    mDone.clear();
    return same;
}

void tst_Player::branches()
{
    play(R"([{"condition": "yesNo,group,"},
             {"condition": "yesNo,nowhere,end"},
             {"hint": "g", "label": "group", "group": [{"condition": "yesNo,,end"}]},
             {"condition": "click", "label": "end"}])");
    QVERIFY(did("[0]"));
    answer("next");
    answer("yes");
    QVERIFY(did("[2,0]"));
    answer("no");
    QVERIFY(did("[3]"));
}

void tst_Player::waitsForTheWindow()
{
    play(R"([{"condition": "click", "followWindow": "MainWindow"},
             {"condition": "click", "followWindow": "Options"}])");
    QVERIFY(did("[0]"));
    answer("next");
    // After some time it says that it waits.
    QVERIFY(did("notice"));
    answer("next");
    open(Window_Options);
    QVERIFY(did("[1]"));
}

void tst_Player::goesBackWhenTheWindowIsGone()
{
    play(R"([{"condition": "click", "command": "presetData,a", "followWindow": "MainWindow"},
             {"condition": "action,Options", "command": "presetData,b", "followWindow": "MainWindow"},
             {"condition": "click", "followWindow": "Options"},
             {"condition": "windowState,Options,ok", "followWindow": "Options"}])");
    const HostEvent action{Condition_action, {QStringLiteral("Options")}, {}};
    QVERIFY(did("data a; [0]"));
    answer("next");
    QVERIFY(did("data b; [1]"));
    mPlayer->onEvent(action);
    open(Window_Options);
    QVERIFY(did("[2]"));
    answer("next");
    QVERIFY(did("[3]"));

    open(Window_Options, "cancel");
    QVERIFY(did("[1]"));
}

void tst_Player::goesByTheTarget()
{
    const auto reach = [this](const char* target, TargetView::Reach now) {
        mTargets.reaches.insert(QLatin1String(target), now);
        mPlayer->onStateChanged();
    };
    // The window of the second one is not open, nor has to be.
    mTargets.reaches = {{QStringLiteral("a"), TargetView::Reachable},
        {QStringLiteral("b"), TargetView::Reachable}, {QStringLiteral("c"), TargetView::Hidden}};
    play(R"([{"condition": "click", "target": "a", "followWindow": "MainWindow"},
             {"condition": "click", "target": "b", "followWindow": "Options"},
             {"condition": "click", "target": "c", "followWindow": "MainWindow"},
             {"condition": "click", "target": "d", "followWindow": "MainWindow"}])");
    QVERIFY(did("[0]"));
    answer("next");
    QVERIFY(did("[1]"));
    answer("next");
    QVERIFY(did("notice"));
    QCOMPARE(mTargets.followed, QStringLiteral("c"));
    reach("c", TargetView::Reachable);
    QVERIFY(did("[2]"));

    // The one before is gone as well, and does not come back by its point.
    open(Window_Options);
    mTargets.reaches.remove(QStringLiteral("b"));
    reach("c", TargetView::Hidden);
    QVERIFY(did("[0]"));
    reach("b", TargetView::Reachable);
    answer("next");
    QVERIFY(did("[1]"));
    answer("next");
    reach("c", TargetView::Reachable);
    QVERIFY(did("[2]"));
    answer("next");
    QVERIFY(did("[3]; missing"));
}

void tst_Player::saysWhatCannotBeMet()
{
    play(R"([{"condition": "fly,high"}, {"condition": "windowState,Nowhere,close"},
            {"condition": "wait,-1"}, {"condition": "comboBox,nobody,1"}])");
    // A condition with wrong parameters used to be met at once.
    for (const char* shown : {"notice; [0]", "notice; [1]", "notice; [2]"}) {
        QVERIFY(did(shown));
        QVERIFY(mPlayer->step().offersNext());
        answer("next");
    }
    QVERIFY(did("notice; [3]"));
}

void tst_Player::startsInTheMiddle()
{
    const char json[] = R"([{"condition": "click"}, {"hint": "g", "group":
        [{"condition": "click"}, {"condition": "click"}]}])";
    play(json, {1, 1});
    QVERIFY(did("[1,1]"));
    play(json, {1});
    QVERIFY(did("[1,0]"));
}

QTEST_GUILESS_MAIN(tst_Player)
#include "tst_player.moc"
