// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TutorialEditor {

// How bad it is: an error is not what the author meant, a warning may be, and a
// note is only good to know.
enum class Severity { Note, Warning, Error };

// What a scenario is checked for, in the order of docs/lint.md.
enum class Rule {
    // The file
    NotUtf8,
    NoList,
    Frame,
    TextAroundList,
    TooDeep,
    // How it is written
    MissingComma,
    TrailingComma,
    MissingBracket,
    MissingColon,
    MissingQuote,
    UnescapedQuote,
    SingleQuotes,
    TemplateString,
    UnquotedKey,
    Concatenation,
    BadValue,
    BadExpression,
    LineBreakInText,
    UnknownEscape,
    OddBlank,
    LineLayout,
    CrLf,
    // Comments
    CommentInExpression,
    CommentBehindText,
    CommentInComment,
    UnclosedComment,
    CommentLost,
    // Steps and their keys
    StepNotObject,
    EmptyStep,
    GroupNotArray,
    EmptyGroup,
    GroupKeys,
    DuplicateKey,
    UnknownKey,
    MisspeltKey,
    WrongType,
    QuotedNumber,
    Fraction,
    NumberRounded,
    OptionValue,
    LoneCoordinate,
    OffScreen,
    // Names
    UnknownWindow,
    UnknownCondition,
    UnknownIcon,
    UnknownCommand,
    UnknownAction,
    UnknownList,
    UnknownComboBox,
    UnknownCheckBox,
    UnknownTarget,
    MalformedTarget,
    // Conditions and commands
    NoCondition,
    ConditionNeverMet,
    ConditionDefault,
    CommandNeverDone,
    // The way through
    UnknownLabel,
    DuplicateLabel,
    UnusedLabel,
    YesNoOneWay,
    UnreachableStep,
    EndlessLoop,
    // Texts
    HalfExpression,
    NotTranslatable,
    NoopOneArgument,
    QuotedExpression,
    ExpressionElsewhere,
    OpenTag,
    HintTooLong,
    TranslationMissing,
    Count
};

struct RuleInfo {
    const char* id; // never changes once it is published
    Severity severity;
    const char* summary; // in English, for programs and their configuration
};

const RuleInfo& ruleInfo(Rule rule);
inline QString ruleId(Rule rule)
{
    return QString::fromLatin1(ruleInfo(rule).id);
}
// Rule::Count for an id that no rule has.
Rule ruleWithId(const QString& id);

} // namespace TutorialEditor
