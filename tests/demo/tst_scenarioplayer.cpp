#include "demo/scenarioplayer.h"
#include "tests/demo/fakestate.h"

#include <QJsonDocument>
#include <QtTest>

using namespace Tutorial;

namespace {

Scenario scenario(const char* json)
{
    QJsonParseError error;
    const QJsonArray steps = QJsonDocument::fromJson(json, &error).array();
    if (error.error != QJsonParseError::NoError)
        qFatal("%s", qPrintable(error.errorString()));
    return Scenario::fromJson(steps);
}

} // namespace

// A player over a host of the test's making. What it does is kept as text:
// "[0]" for a step that is shown, "data NAME", "notice", "end".
class tst_ScenarioPlayer : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stepsAndGroupsInOrder();
    void fieldsOfAStep();
    void branches();
    void waits();
    void waitsForTheWindow();
    void passesOverWhatIsDone();
    void eventsCountOnlyInTheirStep();
    void goesBackWhenTheWindowIsGone();
    void saysWhatCannotBeMet();
    void startsInTheMiddle();

private:
    void play(const char* json, const QList<int>& from = {});
    void answer(const char* text) { mPlayer->onAnswer(QLatin1String(text)); }
    void open(EnumWindowKind kind, const char* state = "open");
    // Whether the player did just this, since the last time that was asked.
    bool did(const char* text);

    FakeState mState;
    ScenarioPlayer* mPlayer = nullptr;
    QStringList mDone;
};

void tst_ScenarioPlayer::init()
{
    mState = {};
    mState.states.insert(Window_MainWindow, QStringLiteral("open"));
    mDone.clear();
    mPlayer = new ScenarioPlayer(mState, this);
    connect(mPlayer, &ScenarioPlayer::stepShown, this,
        [this](const Step& step) { mDone << step.pathText(); });
    connect(mPlayer, &ScenarioPlayer::presetDataRequested, this,
        [this](const QString& name) { mDone << QStringLiteral("data ") + name; });
    connect(mPlayer, &ScenarioPlayer::notice, this, [this] { mDone << QStringLiteral("notice"); });
    connect(mPlayer, &ScenarioPlayer::finished, this, [this] { mDone << QStringLiteral("end"); });
}

void tst_ScenarioPlayer::cleanup()
{
    delete mPlayer;
}

void tst_ScenarioPlayer::play(const char* json, const QList<int>& from)
{
    const Scenario played = scenario(json);
    mPlayer->start(played, played.indexOf(from));
}

void tst_ScenarioPlayer::open(EnumWindowKind kind, const char* state)
{
    mState.states.insert(kind, QLatin1String(state));
    mPlayer->onStateChanged();
}

bool tst_ScenarioPlayer::did(const char* text)
{
    const QStringList expected = QString::fromLatin1(text).split(QLatin1String("; "));
    const bool same =
        QTest::qWaitFor([&] { return mDone.size() >= expected.size(); }) && mDone == expected;
    if (!same)
        qWarning() << "expected" << expected << "but it did" << mDone;
    mDone.clear();
    return same;
}

void tst_ScenarioPlayer::stepsAndGroupsInOrder()
{
    play(R"([{"condition": "click,", "command": "presetData,meadow"},
             {"hint": "outer", "group": [{"condition": "click"}, {"hint": "empty", "group": []},
                 {"hint": "inner", "group": [{"condition": "click"}]}]},
             {"condition": "click"}])");
    QVERIFY(did("data meadow; [0]"));
    answer("next");
    QVERIFY(did("[1,0]"));
    answer("yes");
    answer("next");
    QVERIFY(did("[1,2,0]"));
    answer("next");
    QVERIFY(did("[2]"));
    answer("next");
    QVERIFY(did("end"));
    QVERIFY(!mPlayer->isPlaying());
}

void tst_ScenarioPlayer::fieldsOfAStep()
{
    const Scenario read = scenario(
        R"([{"x": 3, "followWindow": "Options", "condition": "click,", "icon": "eye", "hint": "a"},
            {"x": -9999, "y": -9999, "condition": "yesNo,,", "option": 1},
            {"condition": "fly,", "icon": "wing", "command": "presetData"},
            {"followWindow": "Cellar", "condition": "wait,1"}])");
    QCOMPARE(read.steps.size(), 4);
    QCOMPARE(*read.steps[0].point, QPoint(3, 0));
    QCOMPARE(read.steps[0].window, Window_Options);
    QCOMPARE(read.steps[0].icon, Icon_eye);
    QCOMPARE(read.steps[0].hint, QStringLiteral("a"));
    QVERIFY(!read.steps[1].point);
    QVERIFY(!read.steps[2].point);
    QCOMPARE(read.steps[2].icon, IconKindCount);

    QList<int> flags;
    QList<bool> faulty;
    for (const Step& step : read.steps) {
        flags << step.indicatorFlags();
        faulty << !step.fault.isEmpty();
    }
    QCOMPARE(flags, (QList<int>{1, 6, 1, 0}));
    QCOMPARE(faulty, (QList<bool>{false, false, true, true}));
}

void tst_ScenarioPlayer::branches()
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

    play(R"([{"condition": "yesNo,group,"}, {"condition": "yesNo,nowhere,"},
             {"condition": "yesNo,back,"}, {"condition": "click", "label": "end"}])");
    QVERIFY(did("[0]"));
    answer("no");
    QVERIFY(did("[1]"));
    answer("yes");
    QVERIFY(did("notice; [2]"));
}

void tst_ScenarioPlayer::waits()
{
    QElapsedTimer time;
    time.start();
    play(R"([{"condition": "wait,0.3"}])");
    QVERIFY(did("[0]"));
    QVERIFY(did("end"));
    QVERIFY2(time.elapsed() >= 290, qPrintable(QString::number(time.elapsed())));
}

void tst_ScenarioPlayer::waitsForTheWindow()
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

void tst_ScenarioPlayer::passesOverWhatIsDone()
{
    mState.row = 3;
    play(R"([{"condition": "windowState,MainWindow,open"}, {"condition": "comboBox,trigger,3"},
             {"condition": "windowState,Options,close", "followWindow": "Options"},
             {"condition": "comboBox,trigger,4", "followWindow": "MainWindow"}])");
    QVERIFY(did("[3]"));
    mState.row = 4;
    mPlayer->onStateChanged();
    QVERIFY(did("end"));
}

void tst_ScenarioPlayer::eventsCountOnlyInTheirStep()
{
    const HostEvent action{Condition_action, {QStringLiteral("Undo")}, {}};
    play(R"([{"condition": "click"}, {"condition": "action,Undo"}, {"condition": "action,Undo"}])");
    QVERIFY(did("[0]"));
    mPlayer->onEvent(action);
    answer("next");
    QVERIFY(did("[1]"));
    mPlayer->onEvent(action);
    mPlayer->onEvent(action);
    QVERIFY(did("[2]"));
}

void tst_ScenarioPlayer::goesBackWhenTheWindowIsGone()
{
    play(R"([{"condition": "click", "command": "presetData,a", "followWindow": "MainWindow"},
             {"condition": "action,Options", "command": "presetData,b", "followWindow": "MainWindow"},
             {"condition": "click", "followWindow": "Options"},
             {"condition": "windowState,Options,ok", "followWindow": "Options"},
             {"condition": "click", "followWindow": "MainWindow"}])");
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
    mPlayer->onEvent(action);
    open(Window_Options);
    QVERIFY(did("[2]"));
    answer("next");
    QVERIFY(did("[3]"));
    open(Window_Options, "ok");
    QVERIFY(did("[4]"));
}

void tst_ScenarioPlayer::saysWhatCannotBeMet()
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

void tst_ScenarioPlayer::startsInTheMiddle()
{
    const char json[] = R"([{"condition": "click"}, {"hint": "g", "group":
        [{"condition": "click"}, {"condition": "click"}]}])";
    play(json, {1, 1});
    QVERIFY(did("[1,1]"));
    play(json, {1});
    QVERIFY(did("[1,0]"));
    QCOMPARE(scenario(json).indexOf({2}), -1);
}

QTEST_GUILESS_MAIN(tst_ScenarioPlayer)
#include "tst_scenarioplayer.moc"
