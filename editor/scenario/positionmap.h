// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

namespace TutorialEditor {

// Where the parts of a rewritten text come from. Empty, it is that of a text
// which stayed as it was.
class PositionMap {
public:
    // From `position` on, up to the next part, the rewritten text is the former
    // one from `former` on. The parts are added in their order.
    void add(int position, int former) { mParts.append({position, former}); }

    // The position in the former text.
    int former(int position) const;

private:
    struct Part {
        int position;
        int former;
    };
    QVector<Part> mParts;
};

// The maps of rewritings that followed one another, the first one first.
using PositionMaps = QVector<PositionMap>;

// The position in the text before the first of them.
int originalPosition(const PositionMaps& maps, int position);

// Appends a part of `text` to a text that is rewritten from it; `map`, when
// there is one, takes note.
void copyPart(QString* out, const QString& text, int begin, int end, PositionMap* map);

} // namespace TutorialEditor
