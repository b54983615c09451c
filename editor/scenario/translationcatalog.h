// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

class QIODevice;

namespace TutorialEditor {

struct TranslationExpression;

// The texts that a .ts file has finished translations of.
class TranslationCatalog {
public:
    explicit TranslationCatalog(const QString& name = QString()) : mName(name) { }

    // Reads a .ts file. False, with the error, when it is none.
    bool read(QIODevice* file, QString* error);

    // The file's, for the author.
    const QString& name() const { return mName; }
    // Whether there is a translation. context: that of an expression which
    // names none.
    bool contains(const TranslationExpression& expression, const QString& context) const;

private:
    QString mName;
    QSet<QString> mTexts;
};

} // namespace TutorialEditor
