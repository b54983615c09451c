// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace TutorialEditor {

// A form that is as high as its fields where there is room for them, and that
// scrolls in a smaller window.
class FormArea : public QScrollArea {
    Q_OBJECT

public:
    explicit FormArea(QWidget* form);

    QSize sizeHint() const override;
};

} // namespace TutorialEditor
