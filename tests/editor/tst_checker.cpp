// SPDX-License-Identifier: MIT
#include "editor/scenario/checker.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"
#include "tutorial/vocabulary/tutorialaction.h"

#include <QFile>
#include <QtTest>

#include <random>

using namespace TutorialEditor;

class tst_Checker : public QObject {
    Q_OBJECT

private slots:
    void corpus_data();
    void corpus();
    void correctScenarios();
    void demoScenarios();
    void changes();
    void screens();
    void takesNoLonger();
};

namespace {

QString contents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

QString corpusFile(const char* name)
{
    return contents(QStringLiteral(LINT_CORPUS "/") + QLatin1String(name));
}

// "rule 3:17", by "|".
QString texts(const QVector<Problem>& problems)
{
    QStringList lines;
    for (const Problem& problem : problems)
        lines << QStringLiteral("%1 %2:%3")
                     .arg(ruleId(problem.rule))
                     .arg(problem.line)
                     .arg(problem.column);
    return lines.join(QLatin1Char('|'));
}

// What a scenario without a fault is made of.
class Author {
public:
    explicit Author(unsigned seed) : mRandom(seed) { }

    QJsonArray steps(int depth = 0);

private:
    int upTo(int most) { return std::uniform_int_distribution<>(0, most)(mRandom); }
    QString oneOf(const char* words)
    {
        const QStringList list = QString::fromUtf8(words).split(QLatin1Char('|'));
        return list.at(upTo(list.size() - 1));
    }
    QString text();
    QString condition();
    QJsonObject step();
    void ask(QJsonArray* steps);

    std::mt19937 mRandom;
    int mQuestions = 0;
};

QString Author::text()
{
    QString text = oneOf("Go|Press <b>Next</b>|Größe 😀 wählen|a \\\"quote\\\" and a \\\\|1 < 2|"
                         "// no comment /* either */|var scenario = [];|line one\\nline two|"
                         "<p>One</p>two<br>three <img src='a'> <font color='red'>x</font>");
    return text + oneOf("|.| again| – „so“");
}

QString Author::condition()
{
    const QString window = TutorialAction::getWindowKindName(
        Tutorial::EnumWindowKind(upTo(Tutorial::WindowKindCount - 1)));
    const QString number = QString::number(upTo(20) + 1);
    QString text =
        oneOf("windowState,$,close|wait,#|wait,0.5|mouseEvent,Map,doubleClick|textLength,>=,#|"
              "popup,*|popup,listBox1|list,#|click,|click|action,New Map,|pressed,0,#|"
              "comboBox,trigger,#|checked,walkAnime,1|spinBox,!=,#");
    return text.replace(QLatin1Char('$'), window).replace(QLatin1Char('#'), number);
}

QJsonObject Author::step()
{
    QJsonObject step{{QStringLiteral("condition"), condition()}};
    if (upTo(9) > 0)
        step[QStringLiteral("hint")] =
            oneOf("qsTr(\"#\")|qsTr(\"#\", \"note\")|QT_TRANSLATE_NOOP(\"tour\", \"#\")")
                .replace(QLatin1Char('#'), text());
    if (upTo(1) > 0)
        step[QStringLiteral("icon")] = oneOf("click|doubleClick|rightClick|eye|wait|keyboard|");
    if (upTo(1) > 0) {
        step[QStringLiteral("x")] = upTo(1900) - 100;
        step[QStringLiteral("y")] = upTo(1000);
        step[QStringLiteral("followWindow")] = oneOf("MainWindow|Options|MapEditTreeBox");
    }
    if (upTo(3) == 0)
        step[QStringLiteral("comment")] = upTo(1) ? text() : QStringLiteral("qsTr(\"note\")");
    if (upTo(5) == 0)
        step[QStringLiteral("option")] = upTo(1);
    if (upTo(5) == 0)
        step[QStringLiteral("command")] = oneOf("presetData,meadow|presetData,a b");
    if (upTo(3) == 0)
        step[QStringLiteral("target")] =
            oneOf("action:Save|Options/list[2]|Options/tabs[Two]/box@0.5,0.25|MainWindow");
    return step;
}

// Steps that a question leads back to, or past.
void Author::ask(QJsonArray* steps)
{
    const QString label = QStringLiteral("l%1").arg(++mQuestions);
    QJsonObject question = step();
    question[QStringLiteral("condition")] =
        oneOf("yesNo,L,|yesNo,,L").replace(QLatin1Char('L'), label);
    QJsonObject goal = step();
    goal[QStringLiteral("label")] = label;
    if (upTo(1) > 0) {
        steps->append(goal);
        steps->append(question);
        steps->append(step());
    } else {
        steps->append(question);
        steps->append(step());
        steps->append(goal);
    }
}

QJsonArray Author::steps(int depth)
{
    QJsonArray steps;
    for (int count = upTo(6); count >= 0; --count) {
        const int kind = upTo(9);
        if (kind == 0)
            ask(&steps);
        else if (kind == 1 && depth < 4)
            steps.append(QJsonObject{{QStringLiteral("hint"), text()},
                {QStringLiteral("group"), this->steps(depth + 1)}});
        else
            steps.append(step());
    }
    return steps;
}

} // namespace

// Each fault is one edit of a scenario without any: the rule, what stood there
// and what was written instead, with a mark where the problem has to be found.
// ⏎ stands for a line end.
void tst_Checker::corpus_data()
{
    QTest::addColumn<QString>("former");
    QTest::addColumn<QString>("edited");
    int number = 0;
    for (const QString& fault : corpusFile("faults.txt").split(QLatin1String("\n\n"))) {
        QStringList lines = fault.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        lines.replaceInStrings(QStringLiteral("⏎"), QStringLiteral("\n"));
        if (lines.size() != 3)
            qFatal("%s", qPrintable(fault));
        else
            QTest::newRow(qPrintable(lines.at(0) + QStringLiteral(" %1").arg(++number)))
                << lines.at(1) << lines.at(2);
    }
    if (number < 60)
        qFatal("%d faults", number);
}

void tst_Checker::corpus()
{
    QFETCH(QString, former);
    QFETCH(QString, edited);
    const QString rule = QString::fromUtf8(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0);
    const QString base = corpusFile("tour.js");
    QCOMPARE(texts(Checker::checkText(base)), QString());
    QCOMPARE(base.count(former), 1);
    const QString marked = QString(base).replace(former, edited);
    QString text = marked;
    text.remove(QStringLiteral("§"));

    const QString before = marked.left(marked.indexOf(QStringLiteral("§")));
    const QString line = before.mid(before.lastIndexOf(QLatin1Char('\n')) + 1);
    const int row = before.count(QLatin1Char('\n')) + 1;
    const int column = line.toUcs4().size() + 1;
    const auto expect = [&](const QString& file, int down, int right) {
        const QString found = texts(Checker::checkText(file));
        const QString wanted =
            QStringLiteral("%1 %2:%3").arg(rule).arg(row + down).arg(column + right);
        const bool isFound = found.split(QLatin1Char('|')).contains(wanted);
        if (!isFound)
            qWarning() << "not" << wanted << "but" << found;
        return isFound;
    };
    QVERIFY(expect(text, 0, 0));
    // Below comments and an emoji, behind a tab and a comment, with other line ends.
    QVERIFY(expect(QStringLiteral("// 😀 [{\n/*\n*/\n") + text, 3, 0));
    const QString comment = QStringLiteral("\t/*😀*/ ");
    QVERIFY(expect(QString(text).insert(before.size() - line.size(), comment), 0, 7));
    QVERIFY(expect(QString(text).replace(QLatin1Char('\n'), QLatin1String("\r\n")), 0, 0));
}

void tst_Checker::correctScenarios()
{
    constexpr int kScenarios = 300;
    for (unsigned seed = 0; seed < kScenarios; ++seed) {
        const QString file = scenarioFileText(scenarioJson(Author(seed).steps()));
        const QString found = texts(Checker::checkText(file));
        QVERIFY2(
            found.isEmpty(), qPrintable(QStringLiteral("%1: %2\n%3").arg(seed).arg(found, file)));
    }
}

void tst_Checker::demoScenarios()
{
    for (const char* name : {"first-steps", "all-conditions"})
        QCOMPARE(texts(Checker::checkText(
                     contents(QStringLiteral(DEMO_SCENARIOS "/%1.js").arg(QLatin1String(name))))),
            QString());
}

// After each change the problems are those that a check of the whole finds.
void tst_Checker::changes()
{
    QJsonArray steps;
    while (steps.size() < 40) {
        for (const QJsonValue& step : Author(unsigned(steps.size())).steps())
            steps.append(step);
    }
    Checker checker;
    checker.setSteps(steps);
    const auto same = [](const QVector<Problem>& a, const QVector<Problem>& b) {
        return std::equal(
            a.begin(), a.end(), b.begin(), b.end(), [](const Problem& one, const Problem& other) {
                return one.rule == other.rule && one.step == other.step && one.key == other.key
                    && one.message == other.message;
            });
    };
    std::mt19937 random(7);
    int found = 0;
    for (int change = 0; change < 500; ++change) {
        const int row = int(random() % unsigned(steps.size()));
        QJsonObject step = steps.at(row).toObject();
        switch (random() % 3) {
        case 0:
            step[QStringLiteral("condition")] = QStringList{QStringLiteral("yesNo,a,b"),
                QStringLiteral("wait,x"), QStringLiteral("yesNo,l1,")}
                                                    .at(int(random() % 3));
            step[QStringLiteral("label")] = QString(QLatin1Char('a' + char(random() % 3)));
            steps.replace(row, step);
            QVERIFY(checker.setStep({row}, step));
            break;
        case 1:
            steps.removeAt(row);
            QVERIFY(checker.removeSteps({}, row, 1));
            break;
        default:
            steps.insert(row, step);
            QVERIFY(checker.insertSteps({}, row, {step}));
        }
        const auto problems = checker.problems();
        found += problems.size();
        QVERIFY(same(problems, Checker::checkSteps(steps)));
    }
    QVERIFY(found > 500);
    QVERIFY(!checker.setStep({1000}, {}));
    QVERIFY(!checker.removeSteps({}, 0, steps.size() + 1));
    QVERIFY(!checker.insertSteps({1000}, 0, {}));
}

// A point is looked for on the screens that there are.
void tst_Checker::screens()
{
    CheckOptions options;
    options.screens = {QRect(0, 0, 800, 600), QRect(800, 0, 800, 600)};
    const auto isOutside = [&](int x, int y, const QString& window) {
        const auto problems = Checker::checkSteps(
            {QJsonObject{{QStringLiteral("condition"), QStringLiteral("click,")},
                {QStringLiteral("followWindow"), window}, {QStringLiteral("x"), x},
                {QStringLiteral("y"), y}}},
            options);
        return !problems.isEmpty() && problems.first().rule == Rule::OffScreen;
    };
    QVERIFY(!isOutside(1599, 599, QString()));
    QVERIFY(isOutside(1600, 599, QString()));
    QVERIFY(isOutside(-1, 0, QString()));
    QVERIFY(!isOutside(-1, 0, QStringLiteral("MainWindow")));
    QVERIFY(isOutside(1600, 0, QStringLiteral("MainWindow")));
}

// Faults in one line, in one step or of one kind took a time that grew with the
// square of their number: minutes for these.
void tst_Checker::takesNoLonger()
{
    constexpr int kCount = 100000;
    QString keys = QStringLiteral("[{");
    QString jumps = QStringLiteral("[\n");
    for (int i = 0; i < kCount; ++i) {
        keys += QStringLiteral("\"k%1\": 1, ").arg(i);
        jumps += QStringLiteral("{\"label\": \"a%1\", \"condition\": \"yesNo,b%1,\"},\n").arg(i);
    }
    const QString quotes = QStringLiteral("'a' ").repeated(3 * kCount);
    QElapsedTimer elapsed;
    elapsed.start();
    for (const QString& text : {keys + QStringLiteral("\"x\": 1\n}]"),
             jumps + QStringLiteral("{}\n]"), QStringLiteral("[%1]").arg(quotes)})
        QVERIFY(!Checker::checkText(text).isEmpty());
    QVERIFY2(elapsed.elapsed() < 40000, qPrintable(QString::number(elapsed.elapsed())));
}

QTEST_APPLESS_MAIN(tst_Checker)
#include "tst_checker.moc"
