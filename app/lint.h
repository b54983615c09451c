// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/checkoptions.h"
#include "editor/scenario/problem.h"

#include <QCommandLineParser>
#include <QStringList>
#include <QTextStream>
#include <QVector>

// A scenario file and what is wrong with it.
struct LintedFile {
    QString path;
    QVector<TutorialEditor::Problem> problems;
};

// The program that checks scenario files.
class Lint {
public:
    enum ExitCode { Clean = 0, HasErrors = 1, Failed = 2 };

    // Both are where the program writes.
    Lint(QTextStream* out, QTextStream* err);

    // arguments: the process's, its name among them.
    ExitCode run(const QStringList& arguments);

private:
    using Report = void (*)(const QVector<LintedFile>&, QTextStream*);

    bool readOptions();
    bool readNames();
    bool readTranslations();
    // False when it cannot be read.
    bool check(const QString& path);
    bool complain(const QString& text);

    QTextStream& mOut;
    QTextStream& mErr;
    QCommandLineParser mParser;
    TutorialEditor::CheckOptions mOptions;
    QVector<LintedFile> mFiles;
};

// The report as lines for people, as one JSON object, and in the Static Analysis
// Results Interchange Format, 2.1.0.
void reportText(const QVector<LintedFile>& files, QTextStream* out);
void reportJson(const QVector<LintedFile>& files, QTextStream* out);
void reportSarif(const QVector<LintedFile>& files, QTextStream* out);
