// SPDX-License-Identifier: MIT
#pragma once

class QModelIndex;

namespace TutorialEditor {

class TutorialItem;

// What the tree of steps needs of its parent: a form for one step, and somebody
// who acts on a double click.
class StepEditor {
public:
    virtual ~StepEditor() = default;

    // Shows an item in the form. Null or an end marker empties the form.
    virtual void linkToEdit(TutorialItem* item) = 0;
    // A double click into the tree; the index is invalid beside all rows.
    virtual void onTreeViewDoubleclicked(const QModelIndex& index) = 0;
};

} // namespace TutorialEditor
