// SPDX-License-Identifier: MIT
#include "editor/scenario/pastedsteps.h"

#include "editor/scenario/scenariosource.h"

#include <QJsonDocument>

using namespace TutorialEditor;

bool TutorialEditor::readPastedSteps(const QString& text, QJsonArray* steps)
{
    *steps = QJsonArray();
    if (!QJsonDocument::fromJson(text.toUtf8()).isNull())
        return false;
    const ScenarioSource source(text, ScenarioSource::Form::Pasted);
    if (!source.isBroken())
        *steps = source.steps();
    return !steps->isEmpty();
}
