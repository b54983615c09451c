// SPDX-License-Identifier: MIT
#include "editor/scenario/stepcheck.h"
#include "editor/scenario/translationexpression.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QStringList>

#include <cmath>
#include <limits>

using namespace TutorialEditor;

namespace {

// As far from a window's or the screen's corner no usual screen goes, in pixels.
constexpr double kFarthest = 8192;

const QString kX = QStringLiteral("x");
const QString kY = QStringLiteral("y");
const QString kOption = QStringLiteral("option");
const QString kGroup = QStringLiteral("group");
const QString kHint = QStringLiteral("hint");
const QString kComment = QStringLiteral("comment");
const QStringList kTextKeys = {QStringLiteral("followWindow"), QStringLiteral("comment"),
    QStringLiteral("condition"), QStringLiteral("hint"), QStringLiteral("icon"),
    QStringLiteral("label"), QStringLiteral("command"), QStringLiteral("target")};
const QStringList kNumberKeys = {kX, kY, kOption};
const QStringList kKeys = QStringList(kTextKeys) << kNumberKeys << kGroup;
const QStringList kGroupKeys = {
    QStringLiteral("hint"), QStringLiteral("label"), QStringLiteral("group")};

QString typeName(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return Problem::tr("true or false");
    case QJsonValue::Double:
        return Problem::tr("a number");
    case QJsonValue::String:
        return Problem::tr("a text");
    case QJsonValue::Array:
        return Problem::tr("a list");
    case QJsonValue::Object:
        return Problem::tr("an object");
    default:
        return Problem::tr("nothing");
    }
}

bool isWholeNumber(double number)
{
    return number == std::floor(number) && std::fabs(number) <= std::numeric_limits<int>::max();
}

void checkNumber(const QString& key, const QJsonValue& value, StepProblems* problems)
{
    bool isNumber = false;
    value.toString().trimmed().toDouble(&isNumber);
    if (value.isString() && isNumber)
        problems->add(Rule::QuotedNumber, key,
            Problem::tr("The number stands in quotation marks, and is read as 0"),
            Problem::tr("Write it without them"));
    else if (!value.isDouble())
        problems->add(Rule::WrongType, key,
            Problem::tr("“%1” is a whole number, not %2").arg(key, typeName(value)));
    else if (!isWholeNumber(value.toDouble()))
        problems->add(Rule::Fraction, key,
            Problem::tr("“%1” is no whole number, and is read as 0").arg(key),
            Problem::tr("Write a whole number"));
    else if (key == kOption && value.toInt() != 0 && value.toInt() != 1)
        problems->add(Rule::OptionValue, key, Problem::tr("“option” is 0, or 1 to hide the arrow"));
}

bool isRounded(double number)
{
    const bool isShort = std::fabs(number) < 1e6 && number == std::floor(number);
    return !isShort && QString::number(number).toDouble() != number;
}

// What saving makes of a number.
void checkRounding(const QString& key, const QJsonValue& value, StepProblems* problems)
{
    if (value.isDouble() && isRounded(value.toDouble()))
        problems->add(Rule::NumberRounded, key,
            Problem::tr("Saving makes this number %1").arg(value.toDouble()),
            Problem::tr("Write six digits at most, or a text"));
}

void checkKey(const QString& key, StepProblems* problems)
{
    const QString nearest = nearestName(key, kKeys);
    Problem& problem = nearest.isEmpty() ? problems->add(Rule::UnknownKey, key,
                           Problem::tr("Nothing looks at the key “%1”").arg(key))
                                         : problems->add(Rule::MisspeltKey, key,
                                             Problem::tr("“%1” is no key that is known").arg(key),
                                             Problem::tr("Perhaps “%1” is meant").arg(nearest));
    problem.isKeyItself = true;
}

// Whether a number stands there that is read as it is.
bool hasPlace(const QJsonValue& value)
{
    return value.isDouble() && value.toDouble() != Tutorial::kNoCoordinate;
}

bool isOutside(double x, double y, bool isOnScreen, const QVector<QRect>& screens)
{
    if (screens.isEmpty())
        return std::fabs(x) > kFarthest || std::fabs(y) > kFarthest;
    QRect all;
    for (const QRect& screen : screens) {
        if (isOnScreen && screen.contains(int(x), int(y)))
            return false;
        all |= screen;
    }
    // A window may be anywhere, but is not larger than all of them.
    return isOnScreen || std::fabs(x) >= all.width() || std::fabs(y) >= all.height();
}

void checkPoint(const QJsonObject& step, StepProblems* problems)
{
    const QJsonValue x = step.value(kX);
    const QJsonValue y = step.value(kY);
    if (hasPlace(x) != hasPlace(y) && (x.isDouble() || x.isUndefined())
        && (y.isDouble() || y.isUndefined())) {
        const bool hasX = hasPlace(x);
        problems->add(Rule::LoneCoordinate, hasX ? kX : kY,
            Problem::tr("There is “%1”, but no “%2”").arg(hasX ? kX : kY, hasX ? kY : kX),
            Problem::tr("Give both or none"));
        return;
    }
    if (!hasPlace(x) || !hasPlace(y) || !isWholeNumber(x.toDouble()) || !isWholeNumber(y.toDouble())
        || isRounded(x.toDouble()) || isRounded(y.toDouble()))
        return;
    const bool isOnScreen = Tutorial::getWindowKind(step.value(kTextKeys.first()).toString())
        == Tutorial::WindowKindCount;
    if (isOutside(x.toInt(), y.toInt(), isOnScreen, problems->options().screens))
        problems->add(Rule::OffScreen, kX, Problem::tr("The point is outside of every screen"),
            Problem::tr("Pick it again"));
}

} // namespace

void TutorialEditor::checkKeys(const QJsonObject& step, bool isGroup, StepProblems* problems)
{
    for (auto it = step.begin(); it != step.end(); ++it) {
        const QString key = it.key();
        const QJsonValue value = it.value();
        const bool isKnown = kKeys.contains(key);
        if (!isKnown)
            checkKey(key, problems);
        if (isKnown && isGroup && !kGroupKeys.contains(key)) {
            problems
                ->add(Rule::GroupKeys, key,
                    Problem::tr("“%1” means nothing in a group, and saving drops it").arg(key),
                    Problem::tr("Put it into the group's steps"))
                .isKeyItself = true;
            continue;
        }
        if (key == kGroup) {
            if (!value.isArray())
                problems->add(Rule::GroupNotArray, key,
                    Problem::tr("“group” is a list of steps, not %1").arg(typeName(value)));
        } else if (kNumberKeys.contains(key)) {
            checkNumber(key, value, problems);
        } else if (isKnown && !value.isString()) {
            problems->add(Rule::WrongType, key,
                Problem::tr("“%1” is a text, not %2").arg(key, typeName(value)),
                Problem::tr("Write it in quotation marks"));
        }
        checkRounding(key, value, problems);
        if (value.isString() && key != kHint && key != kComment
            && beginsTranslationExpression(value.toString()))
            problems->add(Rule::ExpressionElsewhere, key,
                Problem::tr("“%1” is never translated").arg(key),
                Problem::tr("Write a plain text"));
    }
    if (!isGroup)
        checkPoint(step, problems);
}
