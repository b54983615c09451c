// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/buttonplace.h"

#include <QPointer>
#include <QWidget>

#include <optional>

class HintText;
class TutorialIndicator;

// The balloon: a transparent window above all others that lets clicks through
// and paints the arrow, the icon and the hint. It makes the three button
// windows and hands them to its indicator, which decides everything else.
class TutorialTooltip : public QWidget {
    Q_OBJECT

public:
    static constexpr int kTextTop = 56; // px, text box below the balloon's top
    static constexpr int kTextWidth = 256; // px
    static constexpr int kTextRoom = 424; // px, the highest text box
    static constexpr QSize kButtonSize{64, 32};
    static constexpr Qt::WindowFlags kPaintedWindowFlags =
        Qt::WindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
            | Qt::WindowTransparentForInput | Qt::NoDropShadowWindowHint);

    // parent: the indicator. It does not become the Qt parent: the balloon is a
    // top-level window. The balloon is shown at once.
    explicit TutorialTooltip(QWidget* parent);

    // What is shown at the moment, in the balloon's own pixels.
    BalloonParts parts() const;

    // Puts the text into the text box; an empty one hides the box.
    void setText(const QString& text);
    // Moves the text box to the balloon's left edge, or back beside the arrow.
    void placeText(bool flippedHorizontally);
    // Makes the text box as high as its text, and the text no higher than the
    // balloon and the room, in pixels. Returns the height in pixels.
    int fitText(int room);

    // Where nothing mixes the balloon with what is beneath it, cuts it out along
    // the arrow, the icon and the text as they are to be painted now.
    void setMasked(bool masked);

    // The part of the balloon that the arrow and the icon change, in its own
    // pixels.
    static QRegion animatedRegion(const QSize& arrow, bool flippedHorizontally);

protected:
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void announce(const QString& hint);
    void createButtons();
    void clear(QPainter* painter);
    void drawArrow(QPainter* painter) const;
    void drawIcon(QPainter* painter) const;
    // Where the icon stands; empty for a null pixmap.
    QRect iconArea(const QPixmap& icon) const;

    QPointer<TutorialIndicator> mIndicator;
    HintText* mText;
    // The way down that the arrow has in the mask, in pixels.
    std::optional<float> mMaskedBounce;
};
