// SPDX-License-Identifier: MIT
#include "editor/dialog.h"
#include "editor/model/model.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/jsonescape.h"
#include "editor/scenario/translationexpression.h"
#include "tests/fuzz/fuzzer.h"

#include <QJsonArray>

using namespace TutorialEditor;

namespace {

const char* const kScenario = R"([{
"hint": qsTr("a"),
"comment": "b",
"followWindow": "Options",
"x": 1
},
{
"hint": "c",
"group": [
{
"hint": "d"
}]
}]
)";

// One for the whole run, with its first step in the form.
Dialog* openDialog()
{
    auto* dialog = new Dialog(nullptr);
    dialog->setContents(QString::fromUtf8(kScenario));
    dialog->linkToEdit(TutorialItem::from(dialog->model()->item(0)));
    return dialog;
}

int rowsBelow(const QStandardItem* level)
{
    int rows = level->rowCount();
    for (int row = 0; row < level->rowCount(); ++row)
        rows += rowsBelow(level->child(row));
    return rows;
}

void parse(const QString& text)
{
    QString escaped;
    appendJsonEscaped(&escaped, text);
    escaped = QLatin1Char('"') + escaped + QLatin1Char('"');
    expect(lookedUpText(escaped) == text, "an answer in JSON string form is its text");

    TranslationExpression expression;
    expect(parseTranslationExpression(QStringLiteral("qsTr(%1)").arg(escaped), &expression)
            && expression.sourceText == text,
        "an expression of any text gives that text");

    for (int i = 0; i < text.size(); ++i) {
        const int end = translationExpressionEnd(text, i);
        if (end == -1)
            continue;
        expect(end > i && end <= text.size() && text.at(end - 1) == QLatin1Char(')'),
            "an expression ends with its parenthesis");
        const QString alone = text.mid(i, end - i);
        expect(translationExpressionEnd(alone, 0) == alone.size(),
            "an expression's end does not depend on what follows");
    }
}

} // namespace

// Answers, the key and the text of each separated by the byte 1, the answers by
// the byte 2, as they are on the link.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Dialog* dialog = openDialog();
    static const QString json = dialog->getCurrentJson();
    static const int rows = rowsBelow(dialog->model()->invisibleRootItem());

    for (const QString& answer : textOf(data, size).split(QChar(2))) {
        const QString text = answer.section(QChar(1), 1);
        dialog->untrCallback(answer.section(QChar(1), 0, 0), text);
        expect(dialog->getCurrentJson() == json, "an answer does not change what is saved");
        expect(rowsBelow(dialog->model()->invisibleRootItem()) == rows,
            "an answer does not change the rows");
        parse(text);
    }
    return 0;
}
