// SPDX-License-Identifier: MIT
#include "editor/document/datafolder.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QStandardPaths>

using namespace TutorialEditor;

namespace {

constexpr int kDigits = 32;

} // namespace

QString TutorialEditor::dataFolder(const QString& name)
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1Char('/')
        + name;
}

QString TutorialEditor::canonicalPath(const QString& path)
{
    const QFileInfo file(path);
    if (file.exists())
        return file.canonicalFilePath();
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? file.absolutePath() : folder) + QLatin1Char('/') + file.fileName();
}

QString TutorialEditor::namePrefix(const QString& scenarioPath)
{
    const QByteArray hash =
        QCryptographicHash::hash(canonicalPath(scenarioPath).toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().left(kDigits)) + QLatin1Char('-');
}
