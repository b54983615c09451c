// SPDX-License-Identifier: MIT
#include "editor/scenario/translationcatalog.h"

#include "editor/scenario/translationexpression.h"

#include <QXmlStreamReader>

using namespace TutorialEditor;

namespace {

QString joined(const QString& context, const QString& text, const QString& disambiguation)
{
    const QChar separator(4);
    return context + separator + text + separator + disambiguation;
}

// The text of a message; empty when it has no finished translation.
QString readMessage(QXmlStreamReader* xml, const QString& context)
{
    QString source;
    QString comment;
    bool isTranslated = false;
    while (xml->readNextStartElement()) {
        const QString element = xml->name().toString();
        if (element == QLatin1String("source")) {
            source = xml->readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (element == QLatin1String("comment")) {
            comment = xml->readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (element == QLatin1String("translation")) {
            const bool isFinished = !xml->attributes().hasAttribute(QLatin1String("type"));
            const QString text = xml->readElementText(QXmlStreamReader::IncludeChildElements);
            isTranslated = isFinished && !text.trimmed().isEmpty();
        } else {
            xml->skipCurrentElement();
        }
    }
    return isTranslated ? joined(context, source, comment) : QString();
}

} // namespace

bool TranslationCatalog::read(QIODevice* file, QString* error)
{
    QXmlStreamReader xml(file);
    if (xml.readNextStartElement() && xml.name() != QLatin1String("TS"))
        xml.raiseError(QStringLiteral("no <TS>"));
    while (xml.readNextStartElement()) {
        QString context;
        if (xml.name() != QLatin1String("context")) {
            xml.skipCurrentElement();
            continue;
        }
        while (xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("name"))
                context = xml.readElementText();
            else if (xml.name() == QLatin1String("message"))
                mTexts.insert(readMessage(&xml, context));
            else
                xml.skipCurrentElement();
        }
    }
    if (xml.hasError())
        *error = QStringLiteral("%1:%2: %3")
                     .arg(xml.lineNumber())
                     .arg(xml.columnNumber())
                     .arg(xml.errorString());
    return !xml.hasError();
}

bool TranslationCatalog::contains(
    const TranslationExpression& expression, const QString& context) const
{
    return mTexts.contains(joined(expression.context.isEmpty() ? context : expression.context,
        expression.sourceText, expression.disambiguation));
}
