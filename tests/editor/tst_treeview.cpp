// SPDX-License-Identifier: MIT
#include "openscenario.h"

#include <QRandomGenerator>

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

    // Those whose parent is not selected by now.
    QModelIndexList outermostOf(const QModelIndexList& all) const
    {
        QModelIndexList outermost;
        for (const QModelIndex& index : all) {
            if (!selectionModel()->isSelected(index.parent()))
                outermost << index;
        }
        return outermost;
    }

    bool isConsistent(const QModelIndexList& all) const
    {
        const QModelIndexList outermost = outermostOf(all);
        return std::all_of(outermost.cbegin(), outermost.cend(),
            [&](const QModelIndex& index) { return index.parent() == outermost.first().parent(); });
    }

    void widen(const QModelIndexList& all)
    {
        const QModelIndexList outermost = outermostOf(all);
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
            steps += " [%1 %2 ]"_s.arg(word, randomSteps(random, depth + 1, name));
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
    void selectionFollowsTheRules();
};

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
            QCOMPARE(scenario.hint()->toPlainText(), rules.shown ? rules.shown->text() : QString());
        }
    }
}

QTEST_MAIN(tst_TreeView)
#include "tst_treeview.moc"
