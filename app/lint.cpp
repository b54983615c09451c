// SPDX-License-Identifier: MIT
#include "app/lint.h"

#include "editor/scenario/checker.h"
#include "editor/scenario/scenarioreader.h"
#include "tutorial/process/version.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

using namespace TutorialEditor;

namespace {

constexpr char kHelp[] =
    "Usage: tutorial-lint [OPTION ...] FILE ...\n"
    "       tutorial-lint --version | --help\n"
    "\n"
    "Checks scenario files and tells what is wrong with them, a line each:\n"
    "FILE:LINE:COLUMN: error: TEXT [RULE]\n"
    "\n"
    "Options:\n"
    "  --format text|json|sarif  lines for people (the default), or for programs\n"
    "  --werror                  take warnings for errors\n"
    "  --disable RULE            leave out a rule; may be given several times\n"
    "  --names FILE              the words of a host, a JSON object of lists\n"
    "  --ts FILE                 translations that each hint has to be in; may be\n"
    "                            given several times\n"
    "  -h, --help                this text\n"
    "  -v, --version             the version\n"
    "\n"
    "Exit status: 0 when there is no error, 1 when there is one, 2 when a file\n"
    "cannot be read or the program was called in another way.\n";

// The name that translations know a scenario by.
QString contextOf(const QString& path)
{
    return QFileInfo(path).completeBaseName();
}

// What could not be read as UTF-8 was replaced; where the first such place is.
Problem notUtf8(const QString& text)
{
    Problem problem = makeProblem(Rule::NotUtf8, Problem::tr("The file is not UTF-8 text"),
        Problem::tr("Let your text editor convert it"));
    const QString before = text.left(text.indexOf(QChar(QChar::ReplacementCharacter)));
    problem.line = before.count(QLatin1Char('\n')) + 1;
    problem.column = before.mid(before.lastIndexOf(QLatin1Char('\n')) + 1).toUcs4().size() + 1;
    problem.length = 1;
    return problem;
}

} // namespace

Lint::Lint(QTextStream* out, QTextStream* err) : mOut(*out), mErr(*err)
{
    const auto add = [this](const QStringList& names, const char* value = nullptr) {
        mParser.addOption(QCommandLineOption(names, QString(), QString::fromLatin1(value)));
    };
    add({QStringLiteral("h"), QStringLiteral("help")});
    add({QStringLiteral("v"), QStringLiteral("version")});
    add({QStringLiteral("format")}, "FORMAT");
    add({QStringLiteral("werror")});
    add({QStringLiteral("disable")}, "RULE");
    add({QStringLiteral("names")}, "FILE");
    add({QStringLiteral("ts")}, "FILE");
}

Lint::ExitCode Lint::run(const QStringList& arguments)
{
    static const QHash<QString, Report> kReports = {{QStringLiteral("text"), reportText},
        {QStringLiteral("json"), reportJson}, {QStringLiteral("sarif"), reportSarif}};

    const bool isParsed = mParser.parse(arguments);
    if (mParser.isSet(QStringLiteral("help")) || mParser.isSet(QStringLiteral("version"))) {
        mOut << (mParser.isSet(QStringLiteral("help"))
                ? QString::fromLatin1(kHelp)
                : QStringLiteral("tutorial-lint %1\n").arg(projectVersion()));
        return Clean;
    }
    if (!isParsed) {
        complain(mParser.errorText());
        return Failed;
    }
    const QStringList formats = mParser.values(QStringLiteral("format"));
    const QString format = formats.isEmpty() ? QStringLiteral("text") : formats.last();
    if (!kReports.contains(format)) {
        complain(Problem::tr("There is no format “%1”").arg(format));
        return Failed;
    }
    if (!readOptions())
        return Failed;

    bool areRead = true;
    for (const QString& path : mParser.positionalArguments())
        areRead &= check(path);
    kReports.value(format)(mFiles, &mOut);
    if (!areRead)
        return Failed;
    const auto hasErrors = [](const LintedFile& file) {
        return std::any_of(file.problems.begin(), file.problems.end(),
            [](const Problem& problem) { return problem.severity == Severity::Error; });
    };
    return std::any_of(mFiles.begin(), mFiles.end(), hasErrors) ? HasErrors : Clean;
}

bool Lint::readOptions()
{
    if (mParser.positionalArguments().isEmpty())
        return complain(Problem::tr("No file is named; --help tells more"));
    for (const QString& id : mParser.values(QStringLiteral("disable"))) {
        const Rule rule = ruleWithId(id);
        if (rule == Rule::Count)
            return complain(Problem::tr("There is no rule “%1”").arg(id));
        mOptions.disabled.insert(int(rule));
    }
    return readNames() && readTranslations();
}

bool Lint::readNames()
{
    for (const QString& path : mParser.values(QStringLiteral("names"))) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return complain(QStringLiteral("%1: %2").arg(path, file.errorString()));
        QString error;
        const auto names = HostNames::fromJson(file.readAll(), &error);
        if (!names)
            return complain(QStringLiteral("%1: %2").arg(path, error));
        mOptions.names = *names;
    }
    return true;
}

bool Lint::readTranslations()
{
    for (const QString& path : mParser.values(QStringLiteral("ts"))) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return complain(QStringLiteral("%1: %2").arg(path, file.errorString()));
        TranslationCatalog catalog(QFileInfo(path).fileName());
        QString error;
        if (!catalog.read(&file, &error))
            return complain(QStringLiteral("%1:%2").arg(path, error));
        mOptions.translations.append(catalog);
    }
    return true;
}

bool Lint::check(const QString& path)
{
    QString text;
    QStringList errors;
    if (!readScenarioText(path, &text, &errors))
        return complain(Problem::tr("%1 cannot be opened").arg(path));
    mOptions.context = contextOf(path);
    LintedFile file = {path, Checker::checkText(text, mOptions)};
    if (!errors.isEmpty() && mOptions.isEnabled(Rule::NotUtf8))
        file.problems.prepend(notUtf8(text));
    if (mParser.isSet(QStringLiteral("werror"))) {
        for (Problem& problem : file.problems) {
            if (problem.severity == Severity::Warning)
                problem.severity = Severity::Error;
        }
    }
    mFiles.append(file);
    return true;
}

// Always false.
bool Lint::complain(const QString& text)
{
    mErr << "tutorial-lint: " << text << '\n';
    return false;
}
