// SPDX-License-Identifier: MIT
#include "overlay/tutorialtooltip.h"

#include "overlay/answerbutton.h"
#include "overlay/hinttext.h"
#include "overlay/tutorialindicator.h"

#include <QAccessible>
#include <QBitmap>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QPainter>
#include <QTextDocument>

#include <algorithm>
#include <utility>

namespace {

constexpr QRect kGeometry(0, 0, 640, TutorialTooltip::kTextTop + TutorialTooltip::kTextRoom);
constexpr int kMirroredArrowLeft = 256; // px
constexpr int kIconSize = 56; // px
constexpr int kBounceRoom = 16; // px, the way the arrow dips
constexpr int kUpwardsShift = 6; // px, that an arrow pointing up is drawn higher
constexpr int kTipAboveBottom = 10; // px, in the arrow's picture
constexpr int kTipSize = 32; // px, of the square around the tip

// Between the scales that there are pictures for they are shrunk; at those every
// pixel stays as it is.
void smoothen(QPainter* painter, const QPixmap& picture, qreal scale)
{
    painter->setRenderHint(
        QPainter::SmoothPixmapTransform, !qFuzzyCompare(picture.devicePixelRatio(), scale));
}

} // namespace

TutorialTooltip::TutorialTooltip(QWidget* parent)
    : QWidget(nullptr), mIndicator(qobject_cast<TutorialIndicator*>(parent)),
      mText(new HintText(this))
{
    const int height = mIndicator->hintHeight();
    mText->setMinimumSize(kTextWidth, height);
    mText->setMaximumSize(kTextWidth, height);
    mText->setGeometry(mIndicator->arrow().width(), kTextTop, kTextWidth, height);
    mText->setLineWrapMode(QTextEdit::WidgetWidth);
    mText->setAutoFormatting(QTextEdit::AutoAll);
    mText->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mText->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mText->setSizePolicy(QSizePolicy());
    mText->setWindowFlags(Qt::WindowTransparentForInput);
    createButtons();
    setAccessibleName(tr("Hint"));
    setText(mIndicator->hint());
    if (!mIndicator->hint().isEmpty())
        mIndicator->markHintChanged();

    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_MacAlwaysShowToolWindow);
    setWindowFlags(kPaintedWindowFlags);
    setGeometry(kGeometry);
    show();
}

BalloonParts TutorialTooltip::parts() const
{
    if (!mIndicator)
        return {};
    const QSize arrow = mIndicator->arrow().size();
    const bool left = mIndicator->motion().flippedHorizontally;
    const int arrowLeft = left ? kMirroredArrowLeft : 0;
    const int tipTop =
        mIndicator->motion().flippedVertically ? 0 : kBounceRoom + arrow.height() - kTipAboveBottom;
    BalloonParts parts;
    if (mIndicator->isArrowVisible()) {
        parts.arrow = QRect(arrowLeft, 0, arrow.width(), arrow.height() + kBounceRoom);
        parts.tip = QRect(
            arrowLeft + (arrow.width() - kTipSize) / 2, tipTop - kTipSize / 2, kTipSize, kTipSize);
    }
    parts.icon = iconArea(mIndicator->icon(devicePixelRatioF()));
    if (mText && mText->isVisibleTo(this))
        parts.text = mText->geometry();
    return parts;
}

void TutorialTooltip::setText(const QString& text)
{
    if (!text.isEmpty())
        mText->setHint(text);
    mText->setVisible(!text.isEmpty());
    announce(text.isEmpty() ? QString() : mText->plainHint());
}

// A learner who does not see the hint is told it when it changes, and again on
// the balloon and on each of its buttons.
void TutorialTooltip::announce(const QString& hint)
{
    const bool isNew = hint != accessibleDescription();
    setAccessibleDescription(hint);
    mText->setAccessibleDescription(hint);
    for (AnswerButton* button : findChildren<AnswerButton*>())
        button->setAccessibleDescription(hint);
    if (!isNew || hint.isEmpty())
        return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void TutorialTooltip::placeText(bool flippedHorizontally)
{
    mText->move(flippedHorizontally ? 0 : mIndicator->arrow().width(), kTextTop);
}

int TutorialTooltip::fitText(int room)
{
    mText->fitInto(std::min(room, kTextRoom));
    const int height = static_cast<int>(mText->document()->size().height());
    mText->setFixedHeight(height);
    return height;
}

void TutorialTooltip::setMasked(bool masked)
{
    if (!masked) {
        if (std::exchange(mMaskedBounce, std::nullopt))
            clearMask();
        return;
    }
    // The arrow goes on between the mask and the painting.
    mMaskedBounce = bounceOffset(mIndicator->GetElapsed());
    const QRect area = parts().arrow | parts().icon;
    QPixmap shapes(area.size().expandedTo({1, 1}));
    shapes.fill(Qt::transparent);
    QPainter painter(&shapes);
    painter.translate(-area.topLeft());
    if (mIndicator->isArrowVisible())
        drawArrow(&painter);
    drawIcon(&painter);
    painter.end();
    QRegion region = QRegion(shapes.mask()).translated(area.topLeft()) + parts().text;
    // An empty mask is none at all.
    if (region.isEmpty())
        region = QRect(-1, -1, 1, 1);
    if (region != mask())
        setMask(region);
}

QRegion TutorialTooltip::animatedRegion(const QSize& arrow, bool flippedHorizontally)
{
    const int left = flippedHorizontally ? kMirroredArrowLeft : 0;
    QRegion region(left, 0, arrow.width() + kIconSize, arrow.height() + kBounceRoom + kIconSize);
    // The icon stands to the right of the arrow, or else on its other side.
    if (flippedHorizontally)
        region += QRect(kMirroredArrowLeft - kIconSize, 0, kIconSize, kIconSize);
    return region;
}

void TutorialTooltip::paintEvent(QPaintEvent* event)
{
    if (!mIndicator)
        return;
    QPainter painter(this);
    clear(&painter);
    if (mIndicator->isArrowVisible())
        drawArrow(&painter);
    drawIcon(&painter);
    QWidget::paintEvent(event);
}

void TutorialTooltip::closeEvent(QCloseEvent*)
{
    delete mText;
    mText = nullptr;
    if (mIndicator)
        mIndicator->forgetTooltip();
}

void TutorialTooltip::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && mIndicator)
        mIndicator->handleActivationChange(this);
}

void TutorialTooltip::createButtons()
{
    const auto button = [this](const QString& text) {
        auto* result = new AnswerButton(text, this);
        result->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        result->setFixedSize(kButtonSize);
        result->setAttribute(Qt::WA_TranslucentBackground);
        result->setAttribute(Qt::WA_ShowWithoutActivating);
        result->setAttribute(Qt::WA_MacAlwaysShowToolWindow);
        result->setAccessibleName(text);
        result->hide();
        return result;
    };
    // "Yes" and "No" share the translations of the host's own question box.
    const auto answer = [](const char* text) {
        return QCoreApplication::translate("ObjYesNoBox", text);
    };
    AnswerButton* next = button(tr("Next"));
    AnswerButton* yes = button(answer(QT_TRANSLATE_NOOP("ObjYesNoBox", "Yes")));
    AnswerButton* no = button(answer(QT_TRANSLATE_NOOP("ObjYesNoBox", "No")));
    AnswerButton::pair(yes, no);
    mIndicator->setButtons(next, yes, no);
}

void TutorialTooltip::clear(QPainter* painter)
{
    const QSize arrow = mIndicator->arrow().size();
    const bool flipped = mIndicator->motion().flippedHorizontally;
    painter->setCompositionMode(QPainter::CompositionMode_Clear);
    if (mIndicator->takeFullRepaint()) {
        painter->fillRect(rect(), Qt::transparent);
    } else {
        painter->fillRect(flipped ? kMirroredArrowLeft : 0, 0, arrow.width(),
            arrow.height() + kBounceRoom, Qt::transparent);
        painter->fillRect(flipped ? kMirroredArrowLeft - kIconSize : arrow.width(), 0, kIconSize,
            kIconSize, Qt::transparent);
    }
    painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void TutorialTooltip::drawArrow(QPainter* painter) const
{
    const QPixmap& arrow = mIndicator->arrow();
    const bool up = mIndicator->motion().flippedVertically;
    const bool left = mIndicator->motion().flippedHorizontally;
    const float bounce = mMaskedBounce.value_or(bounceOffset(mIndicator->GetElapsed()));
    const int offset = static_cast<int>(up ? bounce - kUpwardsShift : bounce);

    painter->save();
    const QPixmap drawn = mIndicator->arrow(devicePixelRatioF());
    smoothen(painter, drawn, devicePixelRatioF());
    painter->translate(left ? arrow.width() + kMirroredArrowLeft : 0, up ? arrow.height() : 0);
    painter->scale(left ? -1 : 1, up ? -1 : 1);
    painter->drawPixmap(QPointF(0, offset), drawn);
    painter->restore();
}

void TutorialTooltip::drawIcon(QPainter* painter) const
{
    const QPixmap icon = mIndicator->icon(devicePixelRatioF());
    if (icon.isNull())
        return;
    smoothen(painter, icon, devicePixelRatioF());
    painter->drawPixmap(iconArea(icon).topLeft(), icon);
}

QRect TutorialTooltip::iconArea(const QPixmap& icon) const
{
    const QSize size = (QSizeF(icon.size()) / icon.devicePixelRatio()).toSize();
    const bool flipped = mIndicator->motion().flippedHorizontally;
    const int left = flipped ? kMirroredArrowLeft - size.width() : mIndicator->arrow().width();
    return {QPoint(left, 0), size};
}
