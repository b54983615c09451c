// SPDX-License-Identifier: MIT
#include "tutorial/process/translations.h"

#include "tutorial/vocabulary/qtcompat.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

// The part of a translation's file name that stands for a language. What
// follows an underscore is tried without, as in "de_AT".
QString fileSuffix(const QLocale& locale)
{
    // Chinese differs by its script, and several countries share each.
    if (locale.language() == QLocale::Chinese) {
        return locale.script() == QLocale::TraditionalHanScript ? QStringLiteral("zh_TW")
                                                                : QStringLiteral("zh_CN");
    }
    return locale.name();
}

bool install(const QString& file)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(file) && QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}

} // namespace

QStringList wantedLanguages(const QStringList& arguments, int firstOption)
{
    for (int i = firstOption; i + 1 < arguments.size(); ++i) {
        if (arguments.at(i) == QLatin1String("-language")
            || arguments.at(i) == QLatin1String("--language"))
            return {arguments.at(i + 1)};
    }
    return QLocale::system().uiLanguages();
}

QString installTranslations(const QStringList& languages, const QString& files)
{
    for (const QString& language : languages) {
        const QLocale locale(language);
        if (locale.language() == QLocale::English)
            break;
        // What is no language at all is the locale "C".
        if (locale.language() == QLocale::C)
            continue;
        const QString suffix = QLatin1Char('_') + fileSuffix(locale);
        if (!install(files + suffix))
            continue;
        install(qtTranslationsPath() + QLatin1String("/qtbase") + suffix);
        return suffix.mid(1);
    }
    return QStringLiteral("en");
}
