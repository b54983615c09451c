// SPDX-License-Identifier: MIT
#pragma once

#include <QTextEdit>

// The hint's text box. A hint is rich text and may show pictures out of files,
// but of those that cannot be read to an end, a pipe or a device, and of those
// that do not fit into memory, it shows what Qt shows for a missing one.
class HintText : public QTextEdit {
public:
    using QTextEdit::QTextEdit;

    QVariant loadResource(int type, const QUrl& name) override;
};
