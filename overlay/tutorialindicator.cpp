// SPDX-License-Identifier: MIT
#include "overlay/tutorialindicator.h"

#include "overlay/overlayowner.h"
#include "overlay/tutorialtooltip.h"
#include "resource/pictures.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int kTickMs = 100;

// px, of Next, Yes and No from the first of those that are shown.
constexpr std::array<QPoint, 3> kButtonOffsets = {QPoint(0, 0), QPoint(0, 0), QPoint(56, 0)};

int saturatedSum(int a, int b)
{
    return static_cast<int>(std::clamp<qint64>(
        qint64(a) + b, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

// Qt keeps what it has read, so that the file is decoded once.
QPixmap picture(const QString& filename, qreal scale)
{
    return QPixmap(Tutorial::getScaledFilename(filename, scale));
}

bool isActive(const QWidget* window)
{
    return window && window->isActiveWindow();
}

void setShown(QWidget* window, bool shown)
{
    if (window)
        window->setVisible(shown);
}

} // namespace

TutorialIndicator::TutorialIndicator(QWidget* parent, OverlayOwner* owner)
    : QWidget(parent), mArrow(Tutorial::getArrowFilename()), mOwner(owner)
{
    createTooltip();
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    setWindowFlags(TutorialTooltip::kPaintedWindowFlags);
    mTimerId = startTimer(kTickMs, Qt::CoarseTimer);
    mElapsed.start();
}

bool TutorialIndicator::isAnyActive() const
{
    return isActiveWindow() || isActive(mNextButton) || isActive(mYesButton) || isActive(mNoButton);
}

bool TutorialIndicator::isButtonWindowActive() const
{
    if (mNextWanted)
        return isActive(mNextButton);
    return mYesNoWanted && (isActive(mYesButton) || isActive(mNoButton));
}

float TutorialIndicator::GetElapsed() const
{
    return static_cast<float>(mElapsed.elapsed());
}

void TutorialIndicator::init(bool showNext, bool showYesNo)
{
    mElapsed.restart();
    mNextWanted = showNext;
    setShown(mNextButton, showNext);
    mYesNoWanted = showYesNo;
    setShown(mYesButton, showYesNo);
    setShown(mNoButton, showYesNo);
    raiseButtons();
}

void TutorialIndicator::setHint(const QString& text)
{
    createTooltip();
    mHint = text;
    mTooltip->setText(text);
    if (!text.isEmpty())
        markHintChanged();
}

void TutorialIndicator::setIconKind(Tutorial::EnumIconKind kind)
{
    mIconKind = kind;
}

void TutorialIndicator::setTargetWindowOffset(
    int x, int y, Tutorial::EnumWindowKind kind, bool hideArrow)
{
    createTooltip();
    mTargetWindowKind = kind;
    mTargetOffset = QPoint(x, y);
    const bool nowhere = x == Tutorial::kNoCoordinate && y == Tutorial::kNoCoordinate;
    mArrowVisible = !nowhere && !hideArrow;
    if (!nowhere && kind == Tutorial::Window_MapEditTreeBox && mOwner) {
        const QPoint panel = mOwner->getXy(Tutorial::Window_MapEditLeftPanelItem);
        mTargetOffset = QPoint(saturatedSum(x, panel.x()), saturatedSum(y, panel.y()));
    }
}

void TutorialIndicator::moveInterpolating(int x, int y)
{
    mMotion.target = QPoint(x, y);
}

void TutorialIndicator::showButton()
{
    if (mNextWanted)
        setShown(mNextButton, true);
    if (mYesNoWanted) {
        setShown(mYesButton, true);
        setShown(mNoButton, true);
    }
    raiseButtons();
}

void TutorialIndicator::hideButton()
{
    setShown(mNextButton, false);
    setShown(mYesButton, false);
    setShown(mNoButton, false);
}

void TutorialIndicator::showTooltip()
{
    if (!mTooltip)
        return;
    updateMask();
    mTooltip->show();
    // The host may have opened a window or a menu above it since.
    mTooltip->raise();
    raiseButtons();
}

void TutorialIndicator::updateMask()
{
    mTooltip->setMasked(!mCompositor.isRunning());
}

void TutorialIndicator::hideTooltip()
{
    setShown(mTooltip, false);
}

void TutorialIndicator::createTooltip()
{
    if (mTooltip)
        return;
    mTooltip = new TutorialTooltip(this);
    updateMask();
    // A balloon that is made again brings buttons of its own.
    connect(mNextButton, &QAbstractButton::clicked, this, &TutorialIndicator::nextClicked);
    connect(mYesButton, &QAbstractButton::clicked, this, &TutorialIndicator::yesClicked);
    connect(mNoButton, &QAbstractButton::clicked, this, &TutorialIndicator::noClicked);
}

QPixmap TutorialIndicator::arrow(qreal scale) const
{
    return picture(Tutorial::getArrowFilename(), scale);
}

QPixmap TutorialIndicator::icon(qreal scale) const
{
    return picture(Tutorial::getIconFilename(mIconKind), scale);
}

void TutorialIndicator::handleActivationChange(QWidget* window)
{
    if (!mOwner)
        return;
    if (window->isActiveWindow())
        mOwner->reorderWindow();
    else
        window->activateWindow();
    mOwner->updateVisibility();
}

void TutorialIndicator::setButtons(QPushButton* next, QPushButton* yes, QPushButton* no)
{
    mNextButton = next;
    mYesButton = yes;
    mNoButton = no;
}

void TutorialIndicator::markHintChanged()
{
    mHintChanged = true;
}

bool TutorialIndicator::takeFullRepaint()
{
    return std::exchange(mFullRepaint, false);
}

void TutorialIndicator::forgetTooltip()
{
    mTooltip = nullptr;
}

void TutorialIndicator::nextClicked()
{
    answer(QStringLiteral("next"));
}

void TutorialIndicator::yesClicked()
{
    answer(QStringLiteral("yes"));
}

void TutorialIndicator::noClicked()
{
    answer(QStringLiteral("no"));
}

void TutorialIndicator::timerEvent(QTimerEvent*)
{
    if (!mOwner)
        return;
    const bool wasLeft = mMotion.flippedHorizontally;
    if (mMotion.updateSides(mArrow.width(), mOwner->hostRect().right())) {
        mFullRepaint = true;
        if (mTooltip && mMotion.flippedHorizontally != wasLeft)
            mTooltip->placeText(mMotion.flippedHorizontally);
    }
    const QPoint position = mMotion.nextPosition(mArrow.width());

    if (!mTooltip && mOwner->isRunning())
        createTooltip();

    // A new hint's height moves the buttons also when the balloon stays.
    if (mTooltip && !mHint.isEmpty() && textRoom() != mTextRoom) {
        mTooltip->setText(mHint);
        markHintChanged();
    }
    const bool hintChanged = std::exchange(mHintChanged, false);
    if (hintChanged && mTooltip) {
        mTextRoom = textRoom();
        mHintHeight = mTooltip->fitText(mTextRoom);
    }
    const bool moved = hintChanged || position != mMotion.current;
    if (moved && mTooltip)
        mTooltip->move(position);
    // What is shown may have changed, or the host's area, or a screen.
    const QPoint lastShift = std::exchange(mButtonShift, buttonShift(position));
    if (moved || mButtonShift != lastShift)
        moveButtons(position);
    mMotion.current = position;

    if (!mTooltip)
        return;
    updateMask();
    if (mFullRepaint)
        mTooltip->repaint(rect());
    else
        mTooltip->repaint(
            TutorialTooltip::animatedRegion(mArrow.size(), mMotion.flippedHorizontally));
}

void TutorialIndicator::closeEvent(QCloseEvent*)
{
    if (mTimerId != 0)
        killTimer(mTimerId);
    mTimerId = 0;
    for (QPushButton** button : {&mNextButton, &mYesButton, &mNoButton}) {
        if (*button)
            (*button)->close();
        *button = nullptr;
    }
    if (mTooltip)
        mTooltip->close();
    mTooltip = nullptr;
}

void TutorialIndicator::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange)
        handleActivationChange(this);
}

void TutorialIndicator::answer(const QString& message)
{
    if (mOwner)
        mOwner->send(message);
}

int TutorialIndicator::textRoom() const
{
    const QRect area = mOwner->hostRect();
    const int room = TutorialTooltip::kTextRoom;
    return area.isEmpty() ? room : std::min(room, area.height() - TutorialTooltip::kTextTop);
}

QPoint TutorialIndicator::buttonShift(const QPoint& position) const
{
    const QPoint described =
        position + QPoint(mArrow.width(), mHintHeight + TutorialTooltip::kTextTop);
    QRect shown;
    for (int i = 0; i < int(kButtonOffsets.size()); ++i) {
        if (buttons()[i] && buttons()[i]->isVisible())
            shown |= QRect(described + kButtonOffsets[i], TutorialTooltip::kButtonSize);
    }
    if (shown.isEmpty() || !mTooltip || !mOwner)
        return {};
    QVector<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens << screen->geometry();
    const BalloonParts parts = mTooltip->parts().translated(position);
    return buttonPlace(shown, mOwner->hostRect(), screens, parts) - shown.topLeft();
}

void TutorialIndicator::moveButtons(const QPoint& position)
{
    const QPoint corner =
        position + QPoint(mArrow.width(), mHintHeight + TutorialTooltip::kTextTop) + mButtonShift;
    for (int i = 0; i < int(kButtonOffsets.size()); ++i) {
        if (buttons()[i])
            buttons()[i]->move(corner + kButtonOffsets[i]);
    }
}

void TutorialIndicator::raiseButtons()
{
    for (QPushButton* button : buttons()) {
        if (button && button->isVisible())
            button->raise();
    }
}
