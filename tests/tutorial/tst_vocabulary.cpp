// SPDX-License-Identifier: MIT
#include "tutorial/vocabulary/tutorialaction.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QtTest>

#include <limits>

using namespace Tutorial;

// Names and numbers are shared with hosts and scenario files, so the rows that
// carry a role of their own are pinned down here by number and by name.
class tst_Vocabulary : public QObject {
    Q_OBJECT

private slots:
    void windowKinds();
    void everyKindFindsItsWayBack();
    void unknownNamesAndNumbers();
};

void tst_Vocabulary::windowKinds()
{
    const QPair<int, QString> kinds[] = {{0, QStringLiteral("MainWindow")},
        {10, QStringLiteral("Popup")}, {45, QStringLiteral("Marchandise")},
        {65, QStringLiteral("MapEditTreeBox")}, {66, QStringLiteral("MapEditLeftPanelItem")},
        {69, QStringLiteral("Merchandise")}};
    for (const auto& [kind, name] : kinds)
        QCOMPARE(int(getWindowKind(name)), kind);
}

void tst_Vocabulary::everyKindFindsItsWayBack()
{
    QCOMPARE(int(WindowKindCount), 70);
    for (int i = 0; i < WindowKindCount; ++i) {
        const auto kind = static_cast<EnumWindowKind>(i);
        QCOMPARE(getWindowKind(TutorialAction::getWindowKindName(kind)), kind);
    }
    QStringList conditions;
    for (int i = 0; i < ConditionKindCount; ++i) {
        conditions << getConditionKindName(static_cast<EnumConditionKind>(i));
        QCOMPARE(int(getConditionKind(conditions.last())), i);
    }
    QCOMPARE(conditions.join(QLatin1Char(' ')),
        QStringLiteral("windowState wait mouseEvent textLength popup list click action pressed "
                       "comboBox checked spinBox yesNo"));
    QStringList icons;
    for (int i = 0; i < IconKindCount; ++i) {
        icons << getIconKindName(static_cast<EnumIconKind>(i));
        QCOMPARE(int(getIconKind(icons.last())), i);
    }
    QCOMPARE(icons.join(QLatin1Char(' ')),
        QStringLiteral("click doubleClick rightClick eye wait keyboard"));
    QCOMPARE(int(getCommandKind(QStringLiteral("presetData"))), 0);
    QCOMPARE(getCommandKindName(Command_presetData), QStringLiteral("presetData"));
}

void tst_Vocabulary::unknownNamesAndNumbers()
{
    QCOMPARE(getConditionKind(QStringLiteral("Wait")), ConditionKindCount);
    QCOMPARE(getIconKind(QString()), IconKindCount);
    QCOMPARE(getCommandKind(QString()), CommandKindCount);
    QCOMPARE(getWindowKind(QStringLiteral(" Options")), WindowKindCount);
    for (int bad : {-1, 70, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QCOMPARE(TutorialAction::getWindowKindName(static_cast<EnumWindowKind>(bad)), QString());
        QCOMPARE(getConditionKindName(static_cast<EnumConditionKind>(bad)), QString());
        QCOMPARE(getIconKindName(static_cast<EnumIconKind>(bad)), QString());
        QCOMPARE(getCommandKindName(static_cast<EnumCommandKind>(bad)), QString());
    }
}

QTEST_APPLESS_MAIN(tst_Vocabulary)
#include "tst_vocabulary.moc"
