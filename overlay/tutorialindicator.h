// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/compositor.h"
#include "overlay/motion.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <array>

class OverlayOwner;
class QPushButton;
class TutorialTooltip;

// The controller of what the learner sees: it owns the pictures, the texts and
// the animation, and moves the balloon and the button windows. It is a widget
// without a place on the screen: the balloon paints everything.
class TutorialIndicator : public QWidget {
    Q_OBJECT

public:
    // owner: who shows the tutorial. Without it the indicator stands still.
    TutorialIndicator(QWidget* parent, OverlayOwner* owner);

    bool isAnyActive() const;
    // Whether a button that the step shows is the active window. While Next is
    // shown, Yes and No do not count.
    bool isButtonWindowActive() const;
    // Milliseconds since the step began.
    float GetElapsed() const;

    // Begins a step: restarts the bounce and shows its buttons.
    void init(bool showNext, bool showYesNo);
    // text: plain or rich text. An empty one hides the text box.
    void setHint(const QString& text);
    // A value that is no icon draws none.
    void setIconKind(Tutorial::EnumIconKind kind);
    // Remembers what the step points at. x, y: offset in the window in pixels,
    // both Tutorial::kNoCoordinate for nothing, which turns the arrow off.
    void setTargetWindowOffset(int x, int y, Tutorial::EnumWindowKind kind, bool hideArrow);
    // Sets the point that the balloon glides to, in screen pixels.
    void moveInterpolating(int x, int y);
    void showButton();
    void hideButton();
    void showTooltip();
    void hideTooltip();
    void createTooltip();
    // Cuts the balloon out along its parts where nothing runs that mixes windows.
    void updateMask();

    // What the balloon paints.
    //
    // The arrow in its plain size, that all places are counted from.
    const QPixmap& arrow() const { return mArrow; }
    // The arrow and the step's icon, which is a null pixmap for none, drawn for
    // a screen of that many pixels to a logical one.
    QPixmap arrow(qreal scale) const;
    QPixmap icon(qreal scale) const;
    const QString& hint() const { return mHint; }
    int hintHeight() const { return mHintHeight; }
    bool isArrowVisible() const { return mArrowVisible; }
    const BalloonMotion& motion() const { return mMotion; }
    QPoint targetWindowOffset() const { return mTargetOffset; }
    Tutorial::EnumWindowKind targetWindowKind() const { return mTargetWindowKind; }

    // Called by the balloon.
    //
    // The rule for a painted window whose activation has changed: one that
    // gained it has the host's windows put in order, one that lost it takes it
    // back; in both cases the visibility is settled anew.
    void handleActivationChange(QWidget* window);
    void setButtons(QPushButton* next, QPushButton* yes, QPushButton* no);
    void markHintChanged();
    // Whether the whole balloon is to be cleared; asking takes the mark away.
    bool takeFullRepaint();
    void forgetTooltip();

public slots:
    void nextClicked();
    void yesClicked();
    void noClicked();

protected:
    void timerEvent(QTimerEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void answer(const QString& message);
    // Next, Yes and No; null when there is no balloon.
    std::array<QPushButton*, 3> buttons() const { return {mNextButton, mYesButton, mNoButton}; }
    // How high a text box may be, in pixels, so that the host's area holds it.
    int textRoom() const;
    // How far the shown buttons stand from their place below the text, for a
    // balloon at this position.
    QPoint buttonShift(const QPoint& position) const;
    void moveButtons(const QPoint& position);
    void raiseButtons();

    int mTimerId = 0;
    QPixmap mArrow;
    Tutorial::EnumIconKind mIconKind = Tutorial::IconKindCount;
    QPoint mTargetOffset{Tutorial::kNoCoordinate, Tutorial::kNoCoordinate};
    Tutorial::EnumWindowKind mTargetWindowKind = Tutorial::WindowKindCount;
    QString mHint;
    int mHintHeight = 64;
    int mTextRoom = 0; // that the hint was last laid out for
    QPushButton* mNextButton = nullptr;
    QPushButton* mYesButton = nullptr;
    QPushButton* mNoButton = nullptr;
    QPointer<OverlayOwner> mOwner;
    QElapsedTimer mElapsed;
    Compositor mCompositor;
    BalloonMotion mMotion;
    QPoint mButtonShift;
    bool mFullRepaint = false;
    bool mNextWanted = false;
    bool mYesNoWanted = false;
    bool mHintChanged = false;
    TutorialTooltip* mTooltip = nullptr;
    bool mArrowVisible = true;
};
