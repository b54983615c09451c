// SPDX-License-Identifier: MIT
#pragma once

#include <QTextEdit>

namespace TutorialEditor {

// A box for plain text of several lines, as high as these, that Tab leaves.
class TextBox : public QTextEdit {
    Q_OBJECT

public:
    explicit TextBox(int lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    const int mLines;
};

} // namespace TutorialEditor
