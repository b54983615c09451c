// SPDX-License-Identifier: MIT
#include "editor/lookups.h"

#include <QStandardItemModel>
#include <QTest>

using namespace TutorialEditor;

class LookupsTest : public QObject {
    Q_OBJECT

private slots:
    void belongToWhatWasAsked_data();
    void belongToWhatWasAsked();
};

void LookupsTest::belongToWhatWasAsked_data()
{
    // A to C: the host is asked for this step. a to c: it answers, while C is in the
    // form. '-': A is removed. '.': nothing comes for a while.
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing was asked") << "a"
                                       << "C:a";
    QTest::newRow("typing") << "AaAAaa"
                            << "A:a A:a A:a";
    QTest::newRow("late, for another step by now") << "ABab"
                                                   << "A:a B:b";
    QTest::newRow("late, one by one") << "AaABabC.c"
                                      << "A:a A:a B:b C:c";
    QTest::newRow("the first is never answered") << "ABb."
                                                 << "lost(AB)";
    QTest::newRow("the first is never answered, asked again") << "ABb.Bb.Cc"
                                                              << "lost(AB) B:b C:c";
    QTest::newRow("the last is never answered") << "AABaa."
                                                << "lost(AB)";
    QTest::newRow("typing, of which one is answered") << "AAAaBb."
                                                      << "A:a lost(AB)";
    QTest::newRow("an answer after all that was given up") << "ABa.b."
                                                           << "lost(AB) lost()";
    QTest::newRow("given up, and the next is asked") << "ABa.b.Cc"
                                                     << "lost(AB) lost() C:c";
    QTest::newRow("the step is gone") << "A-a"
                                      << "?:a";
    QTest::newRow("of the steps one is gone") << "A-Bab"
                                              << "?:a B:b";
    QTest::newRow("none is ever answered") << "AB.C."
                                           << "";
}

void LookupsTest::belongToWhatWasAsked()
{
    QFETCH(const QString, events);
    QStandardItemModel model(3, 1);
    QPersistentModelIndex steps[] = {model.index(0, 0), model.index(1, 0), model.index(2, 0)};
    const QPersistentModelIndex current = steps[2];
    const auto name = [&steps](const QModelIndex& step) {
        for (int i = 0; i < 3; ++i) {
            if (step.isValid() && step == steps[i])
                return QString(QLatin1Char('A' + i));
        }
        return QStringLiteral("?");
    };
    Lookups lookups(nullptr);
    QStringList outcome;
    connect(&lookups, &Lookups::found, this, [&](const QModelIndex& step, const QString& text) {
        outcome << name(step) + QLatin1Char(':') + text;
    });
    connect(&lookups, &Lookups::lost, this, [&](const QList<QPersistentModelIndex>& those) {
        QString names;
        for (const QModelIndex step : those)
            names += name(step);
        outcome << QStringLiteral("lost(%1)").arg(names);
    });

    for (const QChar event : events) {
        const int before = outcome.size();
        if (event.isUpper())
            lookups.add(steps[event.unicode() - 'A']);
        else if (event.isLower())
            lookups.take(event, current);
        else if (event == QLatin1Char('-'))
            model.removeRow(0);
        else
            (void)QTest::qWaitFor([&] { return outcome.size() > before; }, 500);
    }
    QFETCH(const QString, expected);
    QCOMPARE(outcome.join(QLatin1Char(' ')), expected);
}

QTEST_MAIN(LookupsTest)
#include "tst_lookups.moc"
