// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QJsonArray>
#include <QLockFile>
#include <QString>

#include <memory>
#include <vector>

namespace TutorialEditor {

// A copy of the unsaved state of a scenario, which outlives the process that
// keeps it. It lies in the user's data folder, under a name made of the
// scenario file's path and of a part that is its own, and holds plain JSON, so
// that a half-typed translation comes back as well:
//
//     {"file": "<path of the scenario>", "steps": [...]}
//
// A lock beside it tells other processes that it is kept; it falls with the
// process. Not to be used by two threads at a time.
class RecoveryCopy {
public:
    // The folder of all copies.
    static QString folder();
    // The copies of a scenario file that no living process keeps, the newest
    // first; now this process keeps them. What writing them left behind, when it
    // was cut short, is removed.
    static std::vector<std::unique_ptr<RecoveryCopy>> takeAbandoned(const QString& scenarioPath);

    // For a scenario file that need not exist. There is no copy before write().
    explicit RecoveryCopy(const QString& scenarioPath);

    // When it was written; invalid when it has not been.
    QDateTime time() const;
    // The steps in it. False when it is not there or damaged.
    bool read(QJsonArray* steps) const;

    // Replaces the copy by these steps, wholly or not at all. False when it
    // cannot be written; then the former one stays.
    bool write(const QJsonArray& steps);
    void remove();

private:
    // id: the part of the name that is its own.
    RecoveryCopy(const QString& scenarioPath, const QString& id);

    QString mScenarioPath;
    QString mPath;
    QLockFile mLock;
};

} // namespace TutorialEditor
