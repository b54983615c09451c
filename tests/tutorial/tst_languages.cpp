// SPDX-License-Identifier: MIT
#include "tutorial/process/translations.h"

#include <QCoreApplication>
#include <QTranslator>
#include <QtTest>

class tst_Languages : public QObject {
    Q_OBJECT

private slots:
    void firstOneThatIsKnown_data();
    void firstOneThatIsKnown();
    void optionComesBeforeTheSystem();
};

void tst_Languages::firstOneThatIsKnown_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("cancel"); // one of Qt's own texts
    const auto row = [](const char* languages, const char* next, const char* cancel) {
        QTest::newRow(languages) << QString::fromLatin1(languages) << QString::fromUtf8(next)
                                 << QString::fromUtf8(cancel);
    };
    row("de", "Weiter", "Abbrechen");
    row("de-AT en", "Weiter", "Abbrechen");
    row("nl-NL fr-CA", "Suivant", "Annuler");
    row("es_MX", "Siguiente", "Cancelar");
    row("it", "Avanti", "Annulla");
    row("pt-BR", "Avançar", "Cancelar");
    row("pl", "Dalej", "Anuluj");
    row("ja-JP", "次へ", "キャンセル");
    row("ko", "다음", "취소");
    row("zh-Hans-SG", "下一步", "取消");
    row("zh-HK", "下一步", "取消");
    // English stands in the sources, and is no translation to be looked for.
    row("en-GB de", "Next", "Cancel");
    row("C de", "Weiter", "Abbrechen");
    row("tlh", "Next", "Cancel");
}

void tst_Languages::firstOneThatIsKnown()
{
    QFETCH(QString, languages);
    installTranslations(
        languages.split(QLatin1Char(' ')), QStringLiteral(":/translations/tutorial"));
    QTEST(QCoreApplication::translate("TutorialTooltip", "Next"), "next");
    QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "cancel");
    qDeleteAll(qApp->findChildren<QTranslator*>());
}

void tst_Languages::optionComesBeforeTheSystem()
{
    const auto wanted = [](const char* arguments) {
        return wantedLanguages(QString::fromLatin1(arguments).split(QLatin1Char(' ')), 2);
    };
    qputenv("LC_ALL", "fr_FR.UTF-8");
    QCOMPARE(wanted("tutorial id -style fusion -language de"), QStringList{QStringLiteral("de")});
    // That is a connection id, and the option has no value.
    QVERIFY(wanted("tutorial -language -language").first().startsWith(QLatin1String("fr")));
}

QTEST_GUILESS_MAIN(tst_Languages)
#include "tst_languages.moc"
