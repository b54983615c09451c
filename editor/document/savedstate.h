// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QString>

namespace TutorialEditor {

// What of a scenario counts as saved: the steps as they were loaded, which the
// items of the tree share, or a digest of the text that was written, which is
// larger than the tree.
class SavedState {
public:
    SavedState() = default;
    // steps: as loaded, with the contents of groups.
    explicit SavedState(const QJsonArray& steps) : mSteps(steps) { }
    // json: the list that was written, in file form.
    explicit SavedState(const QString& json);

    // As loaded; none when a text counts as saved.
    const QJsonArray& steps() const { return mSteps; }
    // Whether a list in file form is the saved one.
    bool is(const QString& json) const;

private:
    QJsonArray mSteps;
    QByteArray mDigest;
};

} // namespace TutorialEditor
