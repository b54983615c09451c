#include "editor/scenariowriter.h"

#include "editor/jsonescape.h"
#include "editor/stepjson.h"
#include "editor/translationexpression.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

using namespace TutorialEditor;

namespace {

const QString kUnit = QStringLiteral("    ");

void appendQuoted(QString* out, const QString& text)
{
    *out += QLatin1Char('"');
    appendJsonEscaped(out, text);
    *out += QLatin1Char('"');
}

void appendCommentHint(QString* out, QString text)
{
    escapeCommentHint(text);
    *out += text;
}

// Keys are copied as they are, unless that would end the key's string.
void appendKey(QString* out, const QString& key)
{
    if (key.contains(QLatin1Char('"')) || key.contains(QLatin1Char('\\')))
        appendQuoted(out, key);
    else
        *out += QLatin1Char('"') + key + QLatin1Char('"');
}

// Any JSON value as it is.
void appendJson(QString* out, const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    *out += QString::fromUtf8(list.mid(1, list.size() - 2));
}

void appendValue(QString* out, const QString& key, const QJsonValue& value)
{
    if (key == QLatin1String("hint") || key == QLatin1String("comment")) {
        appendCommentHint(out, value.toString());
        return;
    }
    switch (value.type()) {
    case QJsonValue::String:
        appendQuoted(out, value.toString());
        break;
    case QJsonValue::Double:
        *out += QString::number(value.toDouble(), 'g', 6);
        break;
    case QJsonValue::Bool:
        *out += value.toBool() ? QLatin1String("true") : QLatin1String("false");
        break;
    default:
        appendJson(out, value);
    }
}

void writeSteps(QString* out, int depth, const QJsonArray& steps)
{
    StepListWriter writer(out, StepListForm::File, depth);
    for (const QJsonValue& value : steps) {
        const QJsonObject step = value.toObject();
        if (step.contains(QStringLiteral("group"))) {
            writer.beginGroup(step);
            writeSteps(out, depth + 1, step[QStringLiteral("group")].toArray());
            writer.endGroup();
        } else if (!step.isEmpty()) {
            writer.step(step);
        }
    }
    writer.end();
}

} // namespace

StepListWriter::StepListWriter(QString* out, StepListForm form, int depth)
    : mOut(*out), mForm(form),
      mIndentation(form == StepListForm::File ? kUnit.repeated(depth + 1) : QString()),
      mLineEnd(form == StepListForm::File ? QStringLiteral("\n") : QString())
{
    mOut += QLatin1Char('[') + mLineEnd;
}

void StepListWriter::step(const QJsonObject& step)
{
    separate();
    if (mForm != StepListForm::File) {
        mOut += stepJson(step);
        return;
    }
    mOut += mIndentation + QLatin1String("{\n");
    for (auto it = step.begin(); it != step.end(); ++it) {
        if (it != step.begin())
            mOut += QLatin1String(",\n");
        const QString key = it.key();
        mOut += mIndentation;
        mOut += kUnit;
        appendKey(&mOut, key);
        mOut += QLatin1String(": ");
        appendValue(&mOut, key, it.value());
    }
    mOut += QLatin1Char('\n') + mIndentation + QLatin1Char('}');
}

void StepListWriter::beginGroup(const QJsonObject& group)
{
    separate();
    const QString label = group[QStringLiteral("label")].toString();
    const QString hint = group[QStringLiteral("hint")].toString();

    // In the file each key begins a line.
    const QString keyBegin =
        mForm == StepListForm::File ? mIndentation + kUnit : QStringLiteral(" ");
    mOut += mIndentation + QLatin1Char('{') + mLineEnd;
    mOut += keyBegin + QLatin1String("\"hint\": ");
    if (mForm == StepListForm::File)
        appendCommentHint(&mOut, hint);
    else if (mForm == StepListForm::Json)
        appendQuoted(&mOut, hint);
    else
        mOut += QLatin1Char('"') + hint + QLatin1Char('"');
    mOut += QLatin1Char(',') + mLineEnd;
    if (!label.isEmpty()) {
        mOut += keyBegin + QLatin1String("\"label\": ");
        appendQuoted(&mOut, label);
        mOut += QLatin1Char(',') + mLineEnd;
    }
    mOut += keyBegin + QLatin1String("\"group\": ");
}

void StepListWriter::endGroup()
{
    mOut += mLineEnd + mIndentation + QLatin1Char('}');
}

void StepListWriter::end()
{
    // Not indented, in a nested group neither.
    mOut += mLineEnd + QLatin1Char(']');
}

void StepListWriter::separate()
{
    if (!mIsEmpty)
        mOut += QLatin1String(",\n");
    mIsEmpty = false;
}

void TutorialEditor::escapeCommentHint(QString& value)
{
    if (!beginsTranslationExpression(value)) {
        QString quoted;
        appendQuoted(&quoted, value);
        value = quoted;
        return;
    }
    const auto lastNotSpace = [&value](int end) {
        while (end > 0 && value.at(end - 1).isSpace())
            --end;
        return end - 1;
    };
    const int comma = lastNotSpace(value.size());
    const int parenthesis = lastNotSpace(comma);
    if (parenthesis >= 0 && value.at(comma) == QLatin1Char(',')
        && value.at(parenthesis) == QLatin1Char(')'))
        value.remove(comma, 1);
}

QString TutorialEditor::scenarioJson(const QJsonArray& steps)
{
    QString json;
    writeSteps(&json, 0, steps);
    return json;
}

QString TutorialEditor::scenarioFileText(const QString& json)
{
    const auto isLineEnd = [](QChar character) {
        return character == QLatin1Char('\n') || character == QLatin1Char('\r');
    };
    int end = json.size();
    while (end > 0 && isLineEnd(json.at(end - 1)))
        --end;
    return QLatin1String("var scenario = ") + json.leftRef(end) + QLatin1Char(';');
}

bool TutorialEditor::writeScenarioFile(const QString& path, const QString& json)
{
    // Not in text mode: a file has the same bytes on every system.
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(scenarioFileText(json).toUtf8());
    return file.commit();
}
