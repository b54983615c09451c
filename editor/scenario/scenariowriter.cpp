// SPDX-License-Identifier: MIT
#include "editor/scenario/scenariowriter.h"

#include "editor/scenario/atomicfile.h"
#include "editor/scenario/jsonescape.h"
#include "editor/scenario/stepjson.h"
#include "editor/scenario/translationexpression.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace TutorialEditor;

namespace {

const QString kGroup = QStringLiteral("group");
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

// Any JSON value as it is.
void appendJson(QString* out, const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    *out += QString::fromUtf8(list.mid(1, list.size() - 2));
}

// Keys are copied as they are, unless that would end the key's string or its line.
void appendKey(QString* out, const QString& key)
{
    const bool isPlain = std::none_of(key.begin(), key.end(), [](QChar character) {
        return character == QLatin1Char('"') || character == QLatin1Char('\\')
            || character < QLatin1Char(' ');
    });
    if (isPlain)
        *out += QLatin1Char('"') + key + QLatin1Char('"');
    else
        appendJson(out, key);
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

class Writer {
public:
    explicit Writer(StepListForm form) : mIsFile(form == StepListForm::File) { }

    void list(const QJsonArray& steps, int depth)
    {
        mOut += QLatin1Char('[');
        endLine();
        bool isFirst = true;
        for (const QJsonValue& value : steps) {
            const QJsonObject step = value.toObject();
            if (step.isEmpty())
                continue;
            if (!isFirst)
                mOut += QLatin1String(",\n");
            isFirst = false;
            if (step.contains(kGroup))
                group(step, depth);
            else
                plainStep(step, depth);
        }
        endLine();
        // Not indented, in a nested group neither.
        mOut += QLatin1Char(']');
    }

    const QString& text() const { return mOut; }

private:
    void endLine()
    {
        if (mIsFile)
            mOut += QLatin1Char('\n');
    }

    void indent(int depth)
    {
        for (int i = 0; mIsFile && i <= depth; ++i)
            mOut += kUnit;
    }

    void plainStep(const QJsonObject& step, int depth)
    {
        if (!mIsFile) {
            mOut += stepJson(step);
            return;
        }
        indent(depth);
        mOut += QLatin1String("{\n");
        for (auto it = step.begin(); it != step.end(); ++it) {
            if (it != step.begin())
                mOut += QLatin1String(",\n");
            const QString key = it.key();
            indent(depth + 1);
            appendKey(&mOut, key);
            mOut += QLatin1String(": ");
            appendValue(&mOut, key, it.value());
        }
        mOut += QLatin1Char('\n');
        indent(depth);
        mOut += QLatin1Char('}');
    }

    void group(const QJsonObject& step, int depth)
    {
        const QString hint = step[QStringLiteral("hint")].toString();
        const QString label = step[QStringLiteral("label")].toString();
        indent(depth);
        mOut += QLatin1Char('{');
        endLine();
        beginGroupKey("hint", depth);
        if (mIsFile)
            appendCommentHint(&mOut, hint);
        else
            mOut += QLatin1Char('"') + hint + QLatin1Char('"');
        mOut += QLatin1Char(',');
        endLine();
        if (!label.isEmpty()) {
            beginGroupKey("label", depth);
            appendQuoted(&mOut, label);
            mOut += QLatin1Char(',');
            endLine();
        }
        beginGroupKey("group", depth);
        list(step[kGroup].toArray(), depth + 1);
        endLine();
        indent(depth);
        mOut += QLatin1Char('}');
    }

    // In the file each key begins a line.
    void beginGroupKey(const char* key, int depth)
    {
        if (mIsFile)
            indent(depth + 1);
        else
            mOut += QLatin1Char(' ');
        mOut += QStringLiteral("\"%1\": ").arg(QLatin1String(key));
    }

    const bool mIsFile;
    QString mOut;
};

} // namespace

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

QString TutorialEditor::scenarioJson(const QJsonArray& steps, StepListForm form, int depth)
{
    Writer writer(form);
    writer.list(steps, depth);
    return writer.text();
}

QString TutorialEditor::scenarioFileText(const QString& json)
{
    const auto isLineEnd = [](QChar character) {
        return character == QLatin1Char('\n') || character == QLatin1Char('\r');
    };
    int end = json.size();
    while (end > 0 && isLineEnd(json.at(end - 1)))
        --end;
    return QLatin1String("var scenario = ") + json.left(end) + QLatin1Char(';');
}

bool TutorialEditor::writeScenarioFile(const QString& path, const QString& json)
{
    return replaceFile(path, scenarioFileText(json).toUtf8());
}
