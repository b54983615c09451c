// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

namespace TutorialEditor {

// What a hint or comment like qsTr("text", "disambiguation") or
// QT_TRANSLATE_NOOP("context", "text") asks a translator for. A context that
// the expression does not name is empty: there it is the base name of the
// scenario file.
struct TranslationExpression {
    QString context;
    QString sourceText;
    QString disambiguation;
};

// Whether `text` begins like an expression, complete or not. Such a value
// stands in the file without quotes.
bool beginsTranslationExpression(QStringView text);

// Position just past the closing parenthesis of the complete expression that
// begins at `from`: a name, then one or more string literals in parentheses.
// -1 when there is none. A literal may run over several lines. `literals`
// receives what stands between the quotes, escapes unresolved.
int translationExpressionEnd(
    const QString& text, int from, QVector<QStringView>* literals = nullptr);

// Takes a hint or comment apart, escapes resolved; blanks around it and one
// comma after it are passed over. False, with `expression` untouched, when it
// is not one complete expression and nothing else.
bool parseTranslationExpression(const QString& value, TranslationExpression* expression);

} // namespace TutorialEditor
