// SPDX-License-Identifier: MIT
#include "bench/report.h"
#include "bench/samplesteps.h"
#include "editor/dialog.h"
#include "editor/document/recoverycopy.h"
#include "editor/history/stephistory.h"
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/scenario/checker.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QIcon>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTextStream>

#include <functional>
#include <malloc.h>
#include <memory>

using namespace TutorialEditor;

// Measures the authoring tool beside what Qt needs for the least of the same
// work.
//
//   bench_editor                       prints the table's rows
//   bench_editor memory ours|floor|deleted   prints the memory of a tree, in MiB

namespace {

constexpr int kRuns = 7;
constexpr int kSteps = 10000;
constexpr int kManySteps = 100000;

QJsonArray groupOf(const QJsonArray& contents)
{
    return {QJsonObject{
        {QStringLiteral("hint"), QStringLiteral("a group")}, {QStringLiteral("group"), contents}}};
}

double elapsedMs(const std::function<void()>& work)
{
    QElapsedTimer elapsed;
    elapsed.start();
    work();
    return elapsed.nsecsElapsed() / 1e6;
}

// The median over some runs, after one that does not count. prepare: what each
// run needs and is not measured.
double medianMs(
    const std::function<void()>& work, const std::function<void()>& prepare = [] {})
{
    QVector<double> times;
    for (int run = 0; run <= kRuns; ++run) {
        prepare();
        const double time = elapsedMs(work);
        if (run > 0)
            times << time;
    }
    return median(times);
}

void load(Model* model, const QString& fileText)
{
    QStringList errors;
    model->setContents(removeMarkers(removeComments(fileText)), &errors);
}

// What any tree of these steps needs: a text, an icon and a string an item.
void fill(QStandardItemModel* model, const QByteArray& json)
{
    static const QIcon icon(QStringLiteral(":/resource/png/click.png"));
    const QJsonArray array = QJsonDocument::fromJson(json).array();
    model->clear();
    for (const QJsonValue& value : array) {
        const QJsonObject object = value.toObject();
        auto* item = new QStandardItem(object.value(QLatin1String("hint")).toString());
        item->setIcon(icon);
        item->setData(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
        model->appendRow(item);
    }
}

bool report(const QString& subject, double ours, double floor, double limit)
{
    const auto figure = [](double ms) { return QStringLiteral("%1 ms").arg(ms, 0, 'f', 1); };
    return reportRow(subject, figure(ours), figure(floor),
        QStringLiteral("%1 x").arg(ours / floor, 0, 'f', 2),
        QStringLiteral("at most %1 x").arg(limit), ours <= limit * floor);
}

// The checker, of a file and after a change in memory.
bool measureChecks()
{
    const QString text = scenarioFileText(scenarioJson(steps(kManySteps)));
    QStringList errors;
    const bool kept = report(QStringLiteral("checking 100,000 steps, to reading them"),
        medianMs([&] { Checker::checkText(text); }), medianMs([&] { readScenario(text, &errors); }),
        3);

    // In the worst case each step has a problem, and labels change.
    QJsonArray array = steps(kSteps);
    Checker checker;
    checker.setSteps(array);
    QJsonObject changed = step(kSteps / 2);
    changed[QStringLiteral("author")] = QStringLiteral("Ada");
    for (int i = 0; i < kSteps; ++i)
        checker.setStep({i}, changed);
    constexpr double kLimit = 30;
    int change = 0;
    const double time = medianMs([&] {
        changed[QStringLiteral("label")] = QString::number(++change);
        checker.setStep({kSteps / 2}, changed);
        if (checker.problems().size() < kSteps)
            qFatal("problems are missing");
    });
    return reportRow(QStringLiteral("checking after a change, 10,000 steps"),
               QStringLiteral("%1 ms").arg(time, 0, 'f', 1), QStringLiteral("-"),
               QStringLiteral("-"), QStringLiteral("at most 30 ms"), time <= kLimit)
        && kept;
}

bool measureFiles()
{
    bool kept = true;
    double loadMs[2];
    const int counts[] = {kSteps, kManySteps};
    for (int i = 0; i < 2; ++i) {
        const QJsonArray array = steps(counts[i]);
        const QString text = scenarioFileText(scenarioJson(array));
        const QByteArray json = QJsonDocument(array).toJson();
        Model model(nullptr);
        QStandardItemModel plain;
        loadMs[i] = medianMs([&] { load(&model, text); });
        if (i == 0) {
            kept &= report(QStringLiteral("loading 10,000 steps"), loadMs[i],
                medianMs([&] { fill(&plain, json); }), 1.5);
            kept &= report(QStringLiteral("writing 10,000 steps"),
                medianMs([&] { scenarioJson(array); }),
                medianMs([&] { QJsonDocument(array).toJson(); }), 3);
        }
    }
    kept &= report(QStringLiteral("loading 100,000 steps, to 10,000"), loadMs[1], loadMs[0], 12);

    kept &= measureChecks();

    const auto comments = [](int count) {
        return QStringLiteral("    // a comment\n    \"x\": 1, /* another */\n").repeated(count);
    };
    const QString few = comments(kSteps);
    const QString many = comments(kManySteps);
    return kept
        & report(QStringLiteral("removing 100,000 comments, to 10,000"),
            medianMs([&] { removeComments(many); }), medianMs([&] { removeComments(few); }), 12);
}

// A dialog on the (invisible) screen with these steps.
std::unique_ptr<Dialog> dialogWith(const QJsonArray& array)
{
    auto dialog = std::make_unique<Dialog>(nullptr);
    dialog->setContents(removeMarkers(scenarioFileText(scenarioJson(array))));
    return dialog;
}

// A tool with these steps whose hint box is typed into. acts: how many the author
// could undo before.
class Typist {
public:
    explicit Typist(int count, int acts = 0) : mDialog(dialogWith(steps(count)))
    {
        auto* tree = mDialog->findChild<TreeView*>(QStringLiteral("steps"));
        tree->selectRows(mDialog->model()->invisibleRootItem(), 0, 0);
        for (int act = 0; act < acts; ++act)
            mDialog->setCoordinates(act, act);
    }

    double keystrokeMs() const
    {
        auto* hint = mDialog->findChild<QTextEdit*>(QStringLiteral("hint"));
        constexpr int kKeys = 50;
        return elapsedMs([hint] {
            for (int key = 0; key < kKeys; ++key) {
                QTest::keyClick(hint, Qt::Key_A);
                QCoreApplication::processEvents();
            }
        }) / kKeys;
    }

private:
    std::unique_ptr<Dialog> mDialog;
};

// In turns: what a key costs depends on how busy the X server is.
bool reportKeys(const QString& what, const Typist& ours, const Typist& floor, double limit)
{
    QVector<double> oursMs, floorMs;
    for (int run = 0; run <= 3 * kRuns; ++run) {
        const double floorTime = floor.keystrokeMs();
        const double time = ours.keystrokeMs();
        if (run > 0) {
            oursMs << time;
            floorMs << floorTime;
        }
    }
    return report(what, median(oursMs), median(floorMs), limit);
}

// Undo and redo of a cut, beside pasting what was cut.
bool measureHistory()
{
    const auto dialog = dialogWith(steps(kSteps));
    Model* model = dialog->model();
    auto* tree = dialog->findChild<TreeView*>(QStringLiteral("steps"));
    QUndoStack* stack = dialog->history()->stack();
    const auto expect = [model](int rows) {
        if (model->rowCount() != rows)
            qFatal("%d rows instead of %d", model->rowCount(), rows);
    };
    tree->selectRows(model->invisibleRootItem(), 0, kSteps - 1);
    QTest::keyClick(tree, Qt::Key_X, Qt::ControlModifier);
    expect(1);
    const double undo = medianMs([&] { stack->undo(); },
        [&] {
            if (model->rowCount() > 1)
                stack->redo();
        });
    expect(kSteps + 1);
    const double redo = medianMs([&] { stack->redo(); },
        [&] {
            if (model->rowCount() == 1)
                stack->undo();
        });
    expect(1);
    const double paste = medianMs([&] { QTest::keyClick(tree, Qt::Key_V, Qt::ControlModifier); },
        [&] {
            if (model->rowCount() > 1)
                stack->undo();
        });
    expect(kSteps + 1);
    bool kept =
        report(QStringLiteral("undoing a cut of 10,000 steps, to pasting them"), undo, paste, 1.5);
    kept &= report(QStringLiteral("redoing it, to pasting them"), redo, paste, 1.5);
    constexpr int kActs = 100000;
    return kept
        & reportKeys(QStringLiteral("a key in the hint box with 100,000 acts to undo, to none"),
            Typist(kSteps, kActs), Typist(kSteps), 1.2);
}

double groupingMs(int count, double* ungrouping)
{
    const auto dialog = dialogWith(steps(count));
    Model* model = dialog->model();
    auto* tree = dialog->findChild<TreeView*>(QStringLiteral("steps"));
    QVector<double> times;
    QVector<double> ungroupTimes;
    for (int run = 0; run < 3; ++run) {
        tree->selectRows(model->invisibleRootItem(), 0, count - 1);
        times << elapsedMs([&] { QTest::keyClick(tree, Qt::Key_B, Qt::ControlModifier); });
        ungroupTimes << elapsedMs([&] { QTest::keyClick(tree, Qt::Key_I, Qt::ControlModifier); });
    }
    if (model->rowCount() != count + 1)
        qFatal("%d rows are left of %d", model->rowCount(), count + 1);
    *ungrouping = median(ungroupTimes);
    return median(times);
}

bool measureCommands()
{
    bool kept = true;
    const QJsonArray array = steps(kSteps);
    {
        const auto dialog = dialogWith(groupOf(array));
        Model* model = dialog->model();
        auto* tree = dialog->findChild<TreeView*>(QStringLiteral("steps"));
        tree->expandAll();
        QTreeView plain;
        plain.setModel(model);
        plain.setSelectionMode(QAbstractItemView::ExtendedSelection);
        plain.resize(tree->size());
        plain.show();
        plain.expandAll();
        const QPoint group = tree->visualRect(model->index(0, 0)).center();
        const double click = medianMs(
            [&] { QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, group); },
            [&] { tree->clearSelection(); });
        if (tree->getSelectedIndexes().size() != kSteps + 2)
            qFatal("%d rows are selected", int(tree->getSelectedIndexes().size()));
        kept &= report(QStringLiteral("selecting a group of 10,000 steps"), click,
            medianMs([&] { plain.selectAll(); }, [&] { plain.clearSelection(); }), 2);
    }
    kept &= reportKeys(QStringLiteral("a key in the hint box, 10,000 steps, to 10"), Typist(kSteps),
        Typist(10), 2);
    {
        const auto dialog = dialogWith(array);
        Model* model = dialog->model();
        auto* tree = dialog->findChild<TreeView*>(QStringLiteral("steps"));
        const QString text = scenarioFileText(scenarioJson(array));
        Model other(nullptr);
        const double copyAndPaste = medianMs(
            [&] {
                QTest::keyClick(tree, Qt::Key_C, Qt::ControlModifier);
                QTest::keyClick(tree, Qt::Key_V, Qt::ControlModifier);
            },
            [&] {
                if (model->rowCount() > kSteps + 1)
                    model->removeRows(0, kSteps);
                tree->selectRows(model->invisibleRootItem(), 0, kSteps - 1);
            });
        if (model->rowCount() != 2 * kSteps + 1)
            qFatal("%d rows after pasting", model->rowCount());
        kept &= report(QStringLiteral("copying and pasting 10,000 steps, to loading them"),
            copyAndPaste, medianMs([&] { load(&other, text); }), 2);
    }
    double few = 0;
    double many = 0;
    const double grouping = groupingMs(kSteps, &few);
    const double groupingMany = groupingMs(kManySteps, &many);
    kept &= report(QStringLiteral("grouping 100,000 steps, to 10,000"), groupingMany, grouping, 20);
    kept &= report(QStringLiteral("ungrouping 100,000 steps, to 10,000"), many, few, 20);
    return kept;
}

// The author waits for the first of the two, another thread for the second.
bool measureRecovery()
{
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    const QString path = folder.filePath(QStringLiteral("scenario.js"));
    const QJsonArray array = steps(kSteps);
    const auto dialog = dialogWith(array);
    RecoveryCopy copy(path);
    const bool kept = report(QStringLiteral("collecting 10,000 steps for a recovery copy"),
        medianMs([&] { dialog->getCurrentSteps(); }), medianMs([&] {
            QJsonArray plain;
            for (const QJsonValue& value : array)
                plain.append(value);
        }),
        3);
    return kept
        & report(QStringLiteral("writing them as a recovery copy"),
            medianMs([&] { copy.write(array); }), medianMs([&] {
                QSaveFile file(path);
                file.open(QIODevice::WriteOnly);
                file.write(QJsonDocument(array).toJson(QJsonDocument::Compact));
                file.commit();
            }),
            1.5);
}

double residentMiB()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("no /proc/self/statm");
    return status.readAll().split(' ').at(1).toDouble() * 4096 / (1024 * 1024);
}

// The same with all of them deleted, which can be undone.
int printDeleted()
{
    const double before = residentMiB();
    const auto dialog = dialogWith(steps(kManySteps));
    Model* model = dialog->model();
    auto* tree = dialog->findChild<TreeView*>(QStringLiteral("steps"));
    QCoreApplication::processEvents();
    malloc_trim(0);
    const double loaded = residentMiB() - before;
    tree->selectRows(model->invisibleRootItem(), 0, kManySteps - 1);
    QTest::keyClick(tree, Qt::Key_Delete);
    if (model->rowCount() != 1)
        qFatal("%d rows are left", model->rowCount());
    QCoreApplication::processEvents();
    malloc_trim(0);
    QTextStream(stdout) << loaded << ' ' << residentMiB() - before << '\n';
    return 0;
}

// The memory that a tree of many steps holds, without what making it took.
int printMemory(bool ours)
{
    Model model(nullptr);
    QStandardItemModel plain;
    const double before = residentMiB();
    {
        const QJsonArray array = steps(kManySteps);
        if (ours)
            load(&model, scenarioFileText(scenarioJson(array)));
        else
            fill(&plain, QJsonDocument(array).toJson());
    }
    malloc_trim(0);
    QTextStream(stdout) << residentMiB() - before << '\n';
    return 0;
}

QList<QByteArray> memoryOf(const char* whose)
{
    QProcess process;
    process.start(
        QCoreApplication::applicationFilePath(), {QStringLiteral("memory"), QLatin1String(whose)});
    process.waitForFinished(-1);
    return process.readAllStandardOutput().trimmed().split(' ');
}

bool measureMemory()
{
    const auto row = [](const QString& subject, double ours, double floor, double limit) {
        const auto figure = [](double value) {
            return QStringLiteral("%1 MiB").arg(value, 0, 'f', 1);
        };
        return reportRow(subject, figure(ours), figure(floor),
            QStringLiteral("%1 x").arg(ours / floor, 0, 'f', 2),
            QStringLiteral("at most %1 x").arg(limit), ours <= limit * floor);
    };
    const bool kept = row(QStringLiteral("memory of 100,000 steps"),
        memoryOf("ours").first().toDouble(), memoryOf("floor").first().toDouble(), 1.2);
    const QList<QByteArray> deleted = memoryOf("deleted");
    return kept
        & row(QStringLiteral("the same in the tool, deleted but for undo, to before"),
            deleted.value(1).toDouble(), deleted.first().toDouble(), 1.1);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(2) == QLatin1String("deleted"))
        return printDeleted();
    if (arguments.value(1) == QLatin1String("memory"))
        return printMemory(arguments.value(2) == QLatin1String("ours"));
    bool kept = measureFiles();
    kept &= measureMemory();
    kept &= measureCommands();
    kept &= measureHistory();
    kept &= measureRecovery();
    return kept ? 0 : 1;
}
