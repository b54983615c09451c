// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TutorialEditor {

// A scenario file that is about to be replaced, kept beside it as <name>.bak. A
// copy that holds a scenario is never replaced by one that does not: then the
// file is kept as <name>.bak.2, or the next number that is free.
class FormerFile {
public:
    explicit FormerFile(const QString& path);

    // Where it is kept, or will be.
    const QString& keptAs() const { return mKeptAs; }

    // Keeps it, all of its bytes or nothing. Where the file system can, that is
    // one more name for them, which costs nothing whatever the file's size. A
    // former copy that held no scenario gets a number, so that it stays as well.
    // False when it cannot be kept.
    bool keep() const;

private:
    bool linkTo(const QString& name) const;
    QString numbered() const;

    QString mPath;
    QString mBackup;
    QString mKeptAs;
};

} // namespace TutorialEditor
