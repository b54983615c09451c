// SPDX-License-Identifier: MIT
#include "app/lint.h"
#include "tutorial/process/translations.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTextStream>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    // The reader's notes are for the tool's log.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    // Of the system alone: all arguments are the program's own.
    installTranslations(wantedLanguages({}, 0), QStringLiteral(":/translations/tutorial"));
    // In UTF-8 whatever the system has, so that programs can read it.
    QString output;
    QString complaints;
    QTextStream out(&output);
    QTextStream err(&complaints);
    const int exitCode = Lint(&out, &err).run(QCoreApplication::arguments());
    std::fputs(output.toUtf8().constData(), stdout);
    std::fputs(complaints.toUtf8().constData(), stderr);
    return exitCode;
}
