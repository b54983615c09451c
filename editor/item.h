// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace TutorialEditor {

// A scratch window for trying widgets. Nothing opens it.
class Item : public QWidget {
    Q_OBJECT

public:
    explicit Item(QWidget* parent);
    ~Item() override;

protected:
    void closeEvent(QCloseEvent* event) override;
};

} // namespace TutorialEditor
