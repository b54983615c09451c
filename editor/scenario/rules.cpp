// SPDX-License-Identifier: MIT
#include "editor/scenario/rules.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>

using namespace TutorialEditor;

namespace {

using S = Severity;

// One row a rule, in their order.
// clang-format off
constexpr RuleInfo kRules[] = {
    {"not-utf8", S::Error, "The file is not UTF-8 text"},
    {"no-list", S::Error, "The file holds no list of steps"},
    {"frame", S::Error, "The frame around the list is not as the reader needs it"},
    {"text-around-list", S::Error, "Text before or after the list"},
    {"too-deep", S::Error, "Groups in groups, deeper than can be read"},

    {"missing-comma", S::Error, "A comma is missing"},
    {"trailing-comma", S::Error, "A comma with nothing behind it"},
    {"missing-bracket", S::Error, "A bracket is missing, or has no partner"},
    {"missing-colon", S::Error, "A colon is missing behind a key"},
    {"missing-quote", S::Error, "A quotation mark is missing at one end of a text"},
    {"unescaped-quote", S::Error, "A quotation mark in a text is not escaped"},
    {"single-quotes", S::Error, "Other quotation marks than \""},
    {"template-string", S::Error, "A template string"},
    {"unquoted-key", S::Error, "A key without quotation marks"},
    {"concatenation", S::Error, "Texts put together with +"},
    {"bad-value", S::Error, "A value that is neither a text nor a number"},
    {"bad-expression", S::Error, "A translation expression in another form than the three"},
    {"line-break-in-text", S::Error, "A text that runs over the end of its line"},
    {"unknown-escape", S::Warning, "A backslash that means something else"},
    {"odd-blank", S::Error, "A character that only looks like a blank"},
    {"line-layout", S::Error, "A line that does not end where the reader needs it to"},
    {"crlf", S::Error, "Windows line ends"},

    {"comment-in-expression", S::Error, "A comment inside an expression"},
    {"comment-behind-text", S::Error, "A // comment behind other text, or without a line end"},
    {"comment-in-comment", S::Error, "A /* that begins in a // comment"},
    {"unclosed-comment", S::Error, "A /* without */"},
    {"comment-lost", S::Note, "Comments, which saving drops"},

    {"step-not-object", S::Error, "Something else where a step belongs"},
    {"empty-step", S::Warning, "A step without keys, which saving drops"},
    {"group-not-array", S::Error, "Something else where a group's list belongs"},
    {"empty-group", S::Warning, "A group without steps"},
    {"group-keys", S::Warning, "A group's keys that mean nothing, and that saving drops"},
    {"duplicate-key", S::Error, "A key that stands twice in a step"},
    {"unknown-key", S::Warning, "A key that nothing looks at"},
    {"misspelt-key", S::Error, "A key that is nearly one that is known"},
    {"wrong-type", S::Error, "A value of the wrong type"},
    {"quoted-number", S::Error, "A number in quotation marks"},
    {"fraction", S::Error, "A fraction where a whole number belongs"},
    {"number-rounded", S::Warning, "A number that saving rounds"},
    {"option-value", S::Warning, "An \"option\" other than 0 and 1"},
    {"lone-coordinate", S::Warning, "\"x\" without \"y\", or the other way round"},
    {"off-screen", S::Warning, "A point outside of every screen"},

    {"unknown-window", S::Error, "A window that is not known"},
    {"unknown-condition", S::Error, "A condition that is not known"},
    {"unknown-icon", S::Error, "An icon that is not known"},
    {"unknown-command", S::Error, "A command that is not known"},
    {"unknown-action", S::Error, "An action that is not known"},
    {"unknown-list", S::Error, "A list that is not known"},
    {"unknown-combo-box", S::Error, "A combo box that the host does not have"},
    {"unknown-check-box", S::Error, "A check box that the host does not have"},
    {"unknown-target", S::Error, "A target that the host does not have"},
    {"malformed-target", S::Error, "A target that is no name"},

    {"no-condition", S::Warning, "A step with no condition"},
    {"condition-parameters", S::Error, "A condition whose parameters cannot be met"},
    {"condition-default", S::Warning, "A condition that was left as the form begins it"},
    {"command-parameters", S::Error, "A command without its parameter"},

    {"unknown-label", S::Error, "A jump to a label that no step has"},
    {"duplicate-label", S::Error, "A label that two steps have"},
    {"unused-label", S::Note, "A label that nobody jumps to"},
    {"yes-no-one-way", S::Warning, "A question with one way on for both answers"},
    {"unreachable-step", S::Warning, "A step that is never reached"},
    {"endless-loop", S::Error, "A loop without a way out"},

    {"half-expression", S::Error, "A text that begins like an expression and is none"},
    {"not-translatable", S::Warning, "A hint that cannot be translated"},
    {"noop-one-argument", S::Warning, "QT_TRANSLATE_NOOP with one text, which lupdate leaves out"},
    {"quoted-expression", S::Warning, "An expression in quotation marks, which lupdate leaves out"},
    {"expression-elsewhere", S::Warning, "An expression under a key that is never translated"},
    {"open-tag", S::Warning, "A tag that is not closed, or not opened"},
    {"hint-too-long", S::Warning, "A hint that is too long for the balloon"},
    {"translation-missing", S::Warning, "A hint without a translation"},
};
// clang-format on
static_assert(std::size(kRules) == std::size_t(Rule::Count));

} // namespace

const RuleInfo& TutorialEditor::ruleInfo(Rule rule)
{
    return kRules[std::size_t(rule)];
}

Rule TutorialEditor::ruleWithId(const QString& id)
{
    const auto row = std::find_if(std::begin(kRules), std::end(kRules),
        [&id](const RuleInfo& info) { return id == QLatin1String(info.id); });
    return Rule(row - std::begin(kRules));
}
