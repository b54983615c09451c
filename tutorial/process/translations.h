// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// The languages that a program's texts are wanted in, the best one first, by
// names such as "de", "pt-BR" or "zh_TW": the one that the option "-language"
// asks for, or else those of the user's system.
// arguments: the process's; what stands before firstOption is no option.
QStringList wantedLanguages(const QStringList& arguments, int firstOption);

// Installs the translation of the first of these languages that there is one
// for, and Qt's own of the same language. English is what the sources have, so
// that nothing is installed when it comes first.
// files: path of the translations without the language and its underscore,
// ":/translations/tutorial" for ":/translations/tutorial_de.qm".
// Returns the language, "en" when nothing was installed.
QString installTranslations(const QStringList& languages, const QString& files);
