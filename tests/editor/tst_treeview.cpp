#include "openscenario.h"

#include <QRandomGenerator>
#include <QTextEdit>

using namespace TutorialEditor;

namespace {

// The selection rules as they are told: each row is selected on its own, and
// the rules run again inside of each change that they make.
class PlainRules : public QTreeView {
public:
    using QTreeView::selectionModel;

    TutorialItem* shown = nullptr;

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override
    {
        QTreeView::selectionChanged(selected, deselected);
        const QModelIndexList all = selectionModel()->selectedIndexes();
        if (all.isEmpty())
            return;
        showSingleTop(all);
        for (const QModelIndex& index : all) {
            for (int row = 0; row < model()->rowCount(index); ++row) {
                if (!all.contains(model()->index(row, 0, index)))
                    select(model()->index(row, 0, index));
            }
        }
        if (!isConsistent(all))
            widen(all);
    }

private:
    void select(const QModelIndex& index)
    {
        selectionModel()->select(index, QItemSelectionModel::Select);
    }

    void showSingleTop(const QModelIndexList& all)
    {
        const auto* steps = static_cast<Model*>(model());
        const QList<QModelIndex> top = steps->getTopIndexes(all);
        if (top.size() == 1 && !steps->itemAt(top.first())->isEndMarker())
            shown = steps->itemAt(top.first());
    }

    static bool isConsistent(const QModelIndexList& all)
    {
        const QModelIndex first = all.first();
        const QModelIndex parent = first.parent();
        return std::all_of(all.begin() + 1, all.end(), [&](const QModelIndex& index) {
            return index == parent || index.parent() == first || index.parent() == parent;
        });
    }

    void widen(const QModelIndexList& all)
    {
        QModelIndexList outermost;
        for (const QModelIndex& index : all) {
            if (!index.parent().isValid() || !all.contains(index.parent()))
                outermost << index;
        }
        QModelIndexList ancestors;
        for (QModelIndex index = outermost.first().parent(); index.isValid();
             index = index.parent())
            ancestors.prepend(index);
        int common = ancestors.size() - 1;
        bool isApart = false;
        for (int i = 1; i < outermost.size() && !isApart; ++i) {
            QModelIndex index = outermost.at(i).parent();
            while (index.isValid() && !ancestors.contains(index))
                index = index.parent();
            isApart = !index.isValid();
            common = qMin(common, ancestors.indexOf(index));
        }
        if (!isApart && common != -1) {
            if (!selectionModel()->isSelected(ancestors.at(common)))
                select(ancestors.at(common));
            return;
        }
        for (const QModelIndex& index : outermost) {
            if (index.parent().isValid() && !all.contains(index.parent()))
                select(index.parent());
        }
    }
};

QString randomSteps(QRandomGenerator* random, int depth, int* name)
{
    QString steps;
    const int count = random->bounded(depth == 0 ? 2 : 0, 5);
    for (int i = 0; i < count; ++i) {
        const QString word = QString::number((*name)++);
        if (depth < 3 && random->bounded(3) == 0)
            steps += QStringLiteral(" [%1 %2 ]").arg(word, randomSteps(random, depth + 1, name));
        else
            steps += QLatin1Char(' ') + word;
    }
    return steps;
}

QSet<QModelIndex> selectedSet(const QItemSelectionModel* selection)
{
    const QModelIndexList indexes = selection->selectedIndexes();
    return QSet<QModelIndex>(indexes.begin(), indexes.end());
}

} // namespace

class tst_TreeView : public QObject {
    Q_OBJECT

private slots:
    void keysBecomeCommands_data();
    void keysBecomeCommands();
    void doubleClickNeitherExpandsNorMissesTheEnd();
    void selectionFollowsTheRules();
    void widensOnce();
    void listsGroupsBeforeTheirContents();
};

void tst_TreeView::keysBecomeCommands_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QByteArray>("signal");
    const auto add = [](const char* tag, int key, int modifiers, const char* signal) {
        QTest::newRow(tag) << key << modifiers << QByteArray(signal);
    };
    const int control = Qt::ControlModifier;
    add("space", Qt::Key_Space, 0, SIGNAL(startTriggered()));
    add("space with any modifier", Qt::Key_Space, Qt::ShiftModifier, SIGNAL(startTriggered()));
    add("keypad enter", Qt::Key_Enter, Qt::KeypadModifier, SIGNAL(newTriggered()));
    add("delete", Qt::Key_Delete, 0, SIGNAL(deleteTriggered()));
    add("cut", Qt::Key_X, control, SIGNAL(cutTriggered()));
    add("copy", Qt::Key_C, control, SIGNAL(copyTriggered()));
    add("paste", Qt::Key_V, control | Qt::ShiftModifier, SIGNAL(pasteTriggered()));
    add("pick", Qt::Key_M, control, SIGNAL(mousePosTriggered()));
    add("group", Qt::Key_B, control, SIGNAL(groupingTriggered()));
    add("ungroup", Qt::Key_I, control, SIGNAL(ungroupingTriggered()));
    add("return is no command", Qt::Key_Return, 0, "");
    add("backspace is no command", Qt::Key_Backspace, 0, "");
    add("a letter alone is no command", Qt::Key_X, 0, "");
}

void tst_TreeView::keysBecomeCommands()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QByteArray, signal);
    TreeView view(nullptr);
    const QMetaObject* meta = view.metaObject();
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        spies.push_back(std::make_unique<QSignalSpy>(&view, meta->method(i)));

    QTest::keyClick(&view, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    for (const auto& spy : spies) {
        const bool expected = !signal.isEmpty() && spy->signal() == signal.mid(1);
        QCOMPARE(spy->count(), expected ? 1 : 0);
    }
}

void tst_TreeView::doubleClickNeitherExpandsNorMissesTheEnd()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b c ]")));
    const QModelIndex group = scenario.item({1})->index();
    QTest::mouseDClick(scenario.tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
        scenario.tree()->visualRect(group).center());
    QVERIFY(scenario.tree()->isExpanded(group));

    const QModelIndex marker = scenario.item({1, 2})->index();
    QTest::mouseDClick(scenario.tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
        scenario.tree()->visualRect(marker).center());
    QCOMPARE(scenario.rows(), QStringLiteral("a|g|.b|.c|.|.<>|<>"));
    QCOMPARE(scenario.selectedRows(), QString());
}

// Random trees, random runs selected with Shift: the same rows are selected,
// and the same step is shown, as when the rules are followed row by row.
void tst_TreeView::selectionFollowsTheRules()
{
    QRandomGenerator random(4);
    for (int round = 0; round < 150; ++round) {
        int name = 0;
        OpenScenario scenario(scenarioText(randomSteps(&random, 0, &name)));
        QTreeView plain;
        PlainRules rules;
        plain.setModel(scenario.model());
        plain.setSelectionMode(QAbstractItemView::ContiguousSelection);
        rules.setModel(scenario.model());
        plain.resize(300, 900);

        for (int selection = 0; selection < 6; ++selection) {
            plain.collapseAll();
            if (random.bounded(3) > 0)
                plain.expandAll();
            QModelIndexList visible;
            for (QModelIndex index = scenario.model()->index(0, 0); index.isValid();
                 index = plain.indexBelow(index))
                visible << index;
            const auto click = [&](Qt::KeyboardModifiers modifiers) {
                const QModelIndex index = visible.at(random.bounded(visible.size()));
                QTest::mouseClick(
                    plain.viewport(), Qt::LeftButton, modifiers, plain.visualRect(index).center());
            };
            click(Qt::NoModifier);
            if (random.bounded(4) > 0)
                click(Qt::ShiftModifier);

            const QItemSelection selected = plain.selectionModel()->selection();
            rules.shown = nullptr;
            rules.selectionModel()->clear();
            scenario.tree()->selectionModel()->clear();
            rules.selectionModel()->select(selected, QItemSelectionModel::ClearAndSelect);
            scenario.tree()->selectionModel()->select(
                selected, QItemSelectionModel::ClearAndSelect);
            QCOMPARE(selectedSet(scenario.tree()->selectionModel()),
                selectedSet(rules.selectionModel()));
            QCOMPARE(scenario.widget<QTextEdit>("hint")->toPlainText(),
                rules.shown ? rules.shown->text() : QString());
        }
    }
}

void tst_TreeView::widensOnce()
{
    OpenScenario scenario(scenarioText(QStringLiteral("[a b [c d e [f g ] ] h ] i")));
    QSignalSpy changed(scenario.tree()->selectionModel(), &QItemSelectionModel::selectionChanged);
    scenario.select({0});
    QCOMPARE(scenario.tree()->getSelectedIndexes().size(), 11);
    QCOMPARE(changed.count(), 2);
    // A row that is taken out of a selected group is taken back.
    scenario.tree()->selectionModel()->select(
        scenario.item({0, 1, 0})->index(), QItemSelectionModel::Deselect);
    QCOMPARE(scenario.tree()->getSelectedIndexes().size(), 11);
}

// Qt lists an expanded group's contents before the run that the group is in.
void tst_TreeView::listsGroupsBeforeTheirContents()
{
    OpenScenario scenario(scenarioText(QStringLiteral("a [g b ] c")));
    scenario.select({0}, {2});
    QCOMPARE(scenario.selectedRows(), QStringLiteral("a|g|c|b|<>"));
}

QTEST_MAIN(tst_TreeView)
#include "tst_treeview.moc"
