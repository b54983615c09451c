// SPDX-License-Identifier: MIT
#pragma once

#include <QTextEdit>

// The hint's text box. A hint is rich text and may show pictures out of files,
// but of those that cannot be read to an end, a pipe or a device, and of those
// that do not fit into memory, it shows what Qt shows for a missing one.
class HintText : public QTextEdit {
public:
    // What all pictures of one hint may come to.
    static constexpr qint64 kMostPixels = 16 * 1024 * 1024;

    using QTextEdit::QTextEdit;

    QVariant loadResource(int type, const QUrl& name) override;
    // Puts a new hint into the box: plain or rich text.
    void setHint(const QString& text);

private:
    // Whether the file of a picture is readable and small enough to be shown
    // beside the pictures before it.
    bool takePicture(const QByteArray& file);

    qint64 mPixels = 0; // of the hint's pictures so far
};
