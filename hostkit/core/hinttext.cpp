// SPDX-License-Identifier: MIT
#include "hostkit/core/hinttext.h"

#include "editor/scenario/translationexpression.h"

#include <QCoreApplication>

using namespace TutorialHost;
QString TutorialHost::hintText(const QString& hint, const QString& context)
{
    TutorialEditor::TranslationExpression expression;
    if (!TutorialEditor::parseTranslationExpression(hint, &expression))
        return hint;
    const QString& where = expression.context.isEmpty() ? context : expression.context;
    return QCoreApplication::translate(where.toUtf8().constData(),
        expression.sourceText.toUtf8().constData(),
        expression.disambiguation.isEmpty() ? nullptr
                                            : expression.disambiguation.toUtf8().constData());
}
