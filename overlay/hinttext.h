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

    // Of a hint's letters more than these are never shown: they do not fit in the
    // smallest size, and laying all of them out takes seconds.
    static constexpr int kMostLetters = 6000;
    static constexpr int kSmallestPoints = 8;

    // How a hint came to fit into its room.
    enum class Fit { Whole, Smaller, Cut };

    using QTextEdit::QTextEdit;

    QVariant loadResource(int type, const QUrl& name) override;
    // Puts a new hint into the box: plain or rich text.
    void setHint(const QString& text);
    // The hint's plain text, whole also where not all of it is shown.
    const QString& plainHint() const { return mPlainHint; }
    // Sets a hint that is higher than the room, in pixels, in a smaller size,
    // down to kSmallestPoints; when that is too high as well, what is shown of it
    // ends with an ellipsis. A hint that fits stays as it is.
    Fit fitInto(int room);
    // What fitInto() would say to a hint in a text box of that width and room in
    // pixels, in the program's font for such boxes. For authoring: a tutorial
    // shows what fits whole as it was written.
    static Fit fitOf(const QString& text, int width, int room);

private:
    int textHeight() const;
    // Puts an ellipsis in the place of everything from a position on.
    void cutAt(int position);
    // Whether the file of a picture is readable and small enough to be shown
    // beside the pictures before it.
    bool takePicture(const QByteArray& file);

    qint64 mPixels = 0; // of the hint's pictures so far
    QString mPlainHint;
    bool mTooLong = false; // more than kMostLetters
    bool mSmaller = false; // than the box's font
};
