// SPDX-License-Identifier: MIT
#include "editor/scenario/checker.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariosource.h"
#include "editor/scenario/scenariowriter.h"
#include "tests/fuzz/fuzzer.h"

#include <QJsonObject>

using namespace TutorialEditor;

namespace {

// Whether the steps say the same. The reader takes the comma, and what stands
// before it, into the text of an expression.
bool isSame(const QJsonValue& read, const QJsonValue& said)
{
    if (read.isString() && said.isString()) {
        QString text = read.toString();
        if (text == said.toString())
            return true;
        while (text.endsWith(QLatin1Char(',')) || (!text.isEmpty() && text.back().isSpace()))
            text.chop(1);
        return text == said.toString();
    }
    if (read.isArray() && said.isArray()) {
        bool same = read.toArray().size() == said.toArray().size();
        for (int i = 0; same && i < read.toArray().size(); ++i)
            same = isSame(read.toArray().at(i), said.toArray().at(i));
        return same;
    }
    if (read.isObject() && said.isObject()) {
        bool same = read.toObject().keys() == said.toObject().keys();
        for (const QString& key : read.toObject().keys())
            same = same && isSame(read.toObject().value(key), said.toObject().value(key));
        return same;
    }
    return read == said;
}

} // namespace

// The text of a file: when nothing is wrong with it, it is read as what it says,
// and is the same after it was written and read again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QtParsesJson noLeaks;
    const QString text = textOf(data, size);
    const ScenarioSource pasted(text, ScenarioSource::Form::Pasted);
    const QVector<Problem> problems = Checker::checkText(text);
    int line = 0;
    for (const Problem& problem : problems) {
        expect(problem.line >= line && problem.column >= 1, "each problem has a place, in order");
        line = problem.line;
    }
    QStringList errors;
    const QJsonArray steps = readScenario(text, &errors);
    expect(errors.isEmpty() || !problems.isEmpty(), "what cannot be read has a problem");
    if (!problems.isEmpty())
        return 0;
    expect(isSame(steps, ScenarioSource(text).steps()), "what is read is what the text says");
    const QString file = scenarioFileText(scenarioJson(steps));
    const QJsonArray again = readScenario(file, &errors);
    expect(errors.isEmpty() && isSame(again, steps), "what was written is read again");
    expect(scenarioFileText(scenarioJson(again)) == file, "and written again unchanged");
    expect(Checker::checkText(file).isEmpty(), "nothing is wrong with it");
    return 0;
}
