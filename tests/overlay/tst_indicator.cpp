// SPDX-License-Identifier: MIT
#include "overlay/hinttext.h"
#include "overlay/overlayowner.h"
#include "overlay/tutorialindicator.h"
#include "overlay/tutoriallog.h"
#include "overlay/tutorialtooltip.h"
#include "tests/support/windows.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <sys/stat.h>

using namespace Tutorial;

Q_DECLARE_METATYPE(HintText::Fit)

namespace {

class Owner : public OverlayOwner {
public:
    bool isRunning() const override { return running; }
    QRect hostRect() const override { return host; }
    QPoint getXy(EnumWindowKind) const override { return {}; }
    void send(const QString& message) override { sent << message; }
    void reorderWindow() override { calls << QStringLiteral("reorder"); }
    void updateVisibility() override { calls << QStringLiteral("visibility"); }

    bool running = true;
    QRect host{0, 0, 1280, 800};
    QStringList sent;
    QStringList calls;
};

// Notes where a window is moved.
class Moves : public QObject {
public:
    explicit Moves(QWidget* window) { window->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Move)
            positions << static_cast<QWidget*>(watched)->pos();
        return false;
    }
    QVector<QPoint> positions;
};

template <class Widget>
QList<Widget*> visible()
{
    QList<Widget*> found = windows<Widget>();
    found.erase(std::remove_if(found.begin(), found.end(),
                    [](Widget* widget) { return !widget->isVisible(); }),
        found.end());
    return found;
}

TutorialTooltip* balloon()
{
    const QList<TutorialTooltip*> found = visible<TutorialTooltip>();
    return found.size() == 1 ? found.first() : nullptr;
}

QPushButton* button(const char* text)
{
    for (QPushButton* candidate : visible<QPushButton>()) {
        if (candidate->text() == QLatin1String(text))
            return candidate;
    }
    return nullptr;
}

// What the overlay's paints left in an area of the balloon.
QImage picture(const QRect& area)
{
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    balloon()->render(&image, QPoint(), area, QWidget::DrawChildren);
    return image;
}

bool isBlank(const QImage& image)
{
    QImage blank(image.size(), image.format());
    blank.fill(Qt::transparent);
    return image == blank;
}

} // namespace

// The windows of the overlay, with an owner of ten lines and no host.
class tst_Indicator : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void glideMovesBalloonAndButtons();
    void buttonsStayWithinReach();
    void hintSetsTheHeight();
    void hintThatIsTooHighIsSetSmallerOrCut_data();
    void hintThatIsTooHighIsSetSmallerOrCut();
    void hintShowsPicturesOutOfFiles();
    void iconIsDrawnWithoutAnArrow();
    void tipStandsOnItsPlaceAtEveryScale_data();
    void tipStandsOnItsPlaceAtEveryScale();
    void sideChangeMovesTheTextBox();
    void balloonThatWentMissingIsMadeAgain();
    void buttonsSendAnswers();
    void keysPressButtonsAndGoBetweenThem();
    void hintIsToldToScreenReaders();
    void cardIsReadable();
    void windowsOutliveTheirOwner();

private:
    QScopedPointer<Owner> mOwner;
    QScopedPointer<TutorialIndicator> mIndicator;
};

void tst_Indicator::init()
{
    mOwner.reset(new Owner);
    mIndicator.reset(new TutorialIndicator(nullptr, mOwner.data()));
}

void tst_Indicator::cleanup()
{
    mIndicator->close();
    mIndicator.reset();
    mOwner.reset();
    QVERIFY(visible<QWidget>().isEmpty());
    qDeleteAll(windows<TutorialTooltip>());
    QCOMPARE(QApplication::topLevelWidgets().size(), 0);
}

void tst_Indicator::glideMovesBalloonAndButtons()
{
    mIndicator->setHint(QString());
    mIndicator->init(false, true);
    Moves balloons(balloon());
    Moves yes(button("Yes"));
    Moves no(button("No"));
    mIndicator->moveInterpolating(100, 200);
    const QVector<QPoint> expected = {{25, 50}, {43, 87}, {57, 115}, {67, 136}, {75, 152}};
    QTRY_VERIFY(balloons.positions.size() >= expected.size());
    QCOMPARE(balloons.positions.mid(0, expected.size()), expected);
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(yes.positions.at(i), expected.at(i) + QPoint(76, 64 + 56));
        QCOMPARE(no.positions.at(i), expected.at(i) + QPoint(76 + 56, 64 + 56));
    }
}

// Below a target near the bottom they were off the screen.
void tst_Indicator::buttonsStayWithinReach()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    mIndicator->init(false, true);
    const auto places = [] {
        return QPair<QPoint, QPoint>(button("Yes")->pos(), button("No")->pos());
    };
    const auto both = [](int x, int y) { return qMakePair(QPoint(x, y), QPoint(x + 56, y)); };
    mIndicator->moveInterpolating(0, screen.height() - 100);
    QTRY_COMPARE(places(), both(76, screen.height() - 32));
    // What is shown there changes while the balloon stays.
    mIndicator->setIconKind(Icon_eye);
    mIndicator->setHint(QStringLiteral("hint"));
    const auto standsClear = [] {
        return button("Yes")->geometry().top() >= 0
            && !button("Yes")->geometry().intersects(
                balloon()->findChild<QTextEdit*>()->geometry().translated(balloon()->pos()));
    };
    QTRY_VERIFY(standsClear());
    mIndicator->moveInterpolating(0, 100);
    QTRY_COMPARE(places(), both(76, balloon()->y() + 56 + mIndicator->hintHeight()));
}

void tst_Indicator::hintSetsTheHeight()
{
    auto* text = balloon()->findChild<QTextEdit*>();
    QVERIFY(!text->isVisible());
    mIndicator->init(true, false);
    mIndicator->setHint(QStringLiteral("one<br>two<br>three<br>four<br>five<br>six"));
    QVERIFY(text->isVisible());
    QTRY_VERIFY(mIndicator->hintHeight() > 80);
    const int height = mIndicator->hintHeight();
    QCOMPARE(text->geometry(), QRect(76, 56, 256, height));
    // The balloon has not moved, the button below the text has.
    QCOMPARE(balloon()->pos(), QPoint(0, 0));
    QCOMPARE(button("Next")->pos(), QPoint(76, height + 56));

    mIndicator->setHint(QString());
    QVERIFY(!text->isVisible());
    QCOMPARE(mIndicator->hintHeight(), height);
}

void tst_Indicator::hintThatIsTooHighIsSetSmallerOrCut_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<int>("areaHeight");
    QTest::addColumn<HintText::Fit>("fit");
    const QString pixels = QStringLiteral("<div style=\"font-size:%1px\">line</div>");
    const auto lines = [](int count) {
        return QStringLiteral("one<br>").repeated(count) + QStringLiteral("<i>end</i>");
    };
    const int line = QFontMetrics(QTextEdit().font()).lineSpacing();
    QTest::newRow("fits") << lines(400 / line - 1) << 800 << HintText::Fit::Whole;
    QTest::newRow("smaller") << lines(424 / line) << 800 << HintText::Fit::Smaller;
    QTest::newRow("lines") << lines(60) << 800 << HintText::Fit::Cut;
    QTest::newRow("low area") << lines(13) << 156 << HintText::Fit::Cut;
    QTest::newRow("one word") << QString(200000, QLatin1Char('x')) << 800 << HintText::Fit::Cut;
    QTest::newRow("invisible") << QString(20000, QChar(0x200b)) << 800 << HintText::Fit::Cut;
    QTest::newRow("one high line") << pixels.arg(900) << 800 << HintText::Fit::Cut;
    QTest::newRow("table") << QStringLiteral("<table><tr><td>%1</td></tr></table>").arg(lines(60))
                           << 800 << HintText::Fit::Cut;
}

void tst_Indicator::hintThatIsTooHighIsSetSmallerOrCut()
{
    QFETCH(QString, hint);
    QFETCH(int, areaHeight);
    QFETCH(HintText::Fit, fit);
    auto* text = balloon()->findChild<QTextEdit*>();
    const QFont font = text->document()->defaultFont();
    const int room = std::min(424, areaHeight - 56);
    mOwner->host.setHeight(areaHeight);
    mIndicator->setHint(hint);
    QTRY_VERIFY(mIndicator->hintHeight() != 64);
    QVERIFY(mIndicator->hintHeight() <= room);
    QCOMPARE(text->height(), mIndicator->hintHeight());
    QCOMPARE(text->document()->defaultFont() == font, fit == HintText::Fit::Whole);
    QCOMPARE(text->toPlainText().endsWith(QChar(0x2026)), fit == HintText::Fit::Cut);
    QCOMPARE(HintText::fitOf(hint, 256, room), fit);
    QTextDocument whole;
    whole.setHtml(hint);
    QCOMPARE(balloon()->accessibleDescription(), whole.toPlainText());

    // The next hint is set as if this one had not been there, and a larger area
    // brings this one back.
    if (areaHeight < 800) {
        mOwner->host.setHeight(800);
        QTRY_VERIFY(text->toPlainText() == whole.toPlainText());
    }
    mIndicator->setHint(QStringLiteral("short"));
    QTRY_VERIFY(mIndicator->hintHeight() < 64);
    QCOMPARE(text->document()->defaultFont(), font);
}

// One that has no end used to stop the program, or to fill the memory.
void tst_Indicator::hintShowsPicturesOutOfFiles()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("picture.png"));
    QImage drawn(200, 100, QImage::Format_RGB32);
    drawn.fill(Qt::red);
    QVERIFY(drawn.save(path));
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    const auto shows = [this](const QString& source) {
        mIndicator->setHint(QStringLiteral("<img src=\"%1\">").arg(source));
        return picture({76, 56, 256, 150}).pixelColor(100, 50) == Qt::red;
    };
    QVERIFY(shows(path));
    QVERIFY(!shows(pipe));
    QVERIFY(!shows(QStringLiteral("file:///dev/zero")));
    QVERIFY(shows(QStringLiteral("file://") + path));

    // A small file unfolds to any number of pixels: one picture may be too many,
    // or the second of two.
    const QString large = folder.filePath(QStringLiteral("large.png"));
    QImage unfolded(20000, 20000, QImage::Format_Mono);
    unfolded.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
    unfolded.fill(0);
    QVERIFY(unfolded.save(large));
    QVERIFY(!shows(large));
    QByteArray file;
    QBuffer buffer(&file);
    QVERIFY(unfolded.copy(0, 0, 4096, 4096).save(&buffer, "png"));
    const QString data =
        QStringLiteral("data:image/png;base64,") + QString::fromLatin1(file.toBase64());
    QVERIFY(shows(data));
    QVERIFY(!shows(data + QStringLiteral("\" width=1><img src=\"") + path));
    QVERIFY(shows(path));
}

void tst_Indicator::iconIsDrawnWithoutAnArrow()
{
    const QRect arrowArea(0, 0, 76, 175);
    const QRect iconArea(76, 0, 56, 56);
    mIndicator->setTargetWindowOffset(1, 1, Window_MainWindow, false);
    QVERIFY(!isBlank(picture(arrowArea)));
    QVERIFY(isBlank(picture(iconArea)));
    mIndicator->setTargetWindowOffset(1, 1, Window_MainWindow, true);
    mIndicator->setIconKind(Icon_keyboard);
    QVERIFY(isBlank(picture(arrowArea)));
    QVERIFY(!isBlank(picture(iconArea)));
    mIndicator->setIconKind(static_cast<EnumIconKind>(-1));
    QVERIFY(isBlank(picture(iconArea)));
}

void tst_Indicator::tipStandsOnItsPlaceAtEveryScale_data()
{
    QTest::addColumn<int>("targetX");
    QTest::addColumn<int>("targetY");
    QTest::addColumn<QPoint>("tip");
    QTest::newRow("down") << 400 << 100 << QPoint(38, 165);
    QTest::newRow("down, mirrored") << 1200 << 100 << QPoint(256 + 38, 165);
    QTest::newRow("up") << 400 << -100 << QPoint(38, 0);
}

// CTest runs this also with QT_SCALE_FACTOR: all places are logical pixels.
void tst_Indicator::tipStandsOnItsPlaceAtEveryScale()
{
    QFETCH(int, targetX);
    QFETCH(int, targetY);
    QFETCH(QPoint, tip);
    const qreal scale = balloon()->devicePixelRatioF();
    const QByteArray wanted = qgetenv("QT_SCALE_FACTOR");
    QCOMPARE(scale, wanted.isEmpty() ? 1.0 : wanted.toDouble());
    const QPixmap arrow = mIndicator->arrow(scale);
    QCOMPARE(mIndicator->arrow().size(), QSize(76, 159));
    QCOMPARE(QSizeF(arrow.size()) / arrow.devicePixelRatio(), QSizeF(76, 159));
    QVERIFY(arrow.devicePixelRatio() >= scale);

    mIndicator->setTargetWindowOffset(1, 1, Window_MainWindow, false);
    mIndicator->moveInterpolating(targetX, targetY);
    const bool up = targetY < 0;
    const bool left = targetX > 1000;
    QTRY_COMPARE_WITH_TIMEOUT(mIndicator->motion().flippedVertically, up, 10000);
    QTRY_COMPARE_WITH_TIMEOUT(mIndicator->motion().flippedHorizontally, left, 10000);
    // At rest, which it is for half of each period, the tip reaches its place.
    QImage image(balloon()->size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    const auto distance = [&] {
        image.fill(Qt::transparent);
        balloon()->render(&image, {}, {}, QWidget::DrawChildren);
        QRect bounds;
        for (int y = 0; y < qMin(image.height(), qRound(200 * scale)); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 128)
                    bounds |= QRect(x, y, 1, 1);
            }
        }
        const QPointF found(bounds.left() + bounds.width() / 2.0,
            up ? bounds.top() : bounds.top() + bounds.height());
        return (found / scale - tip).manhattanLength();
    };
    QTRY_VERIFY_WITH_TIMEOUT(distance() <= 3, 20000); // rendering is slow at 3
}

void tst_Indicator::sideChangeMovesTheTextBox()
{
    mIndicator->setHint(QStringLiteral("hint"));
    mIndicator->setIconKind(Icon_eye);
    auto* text = balloon()->findChild<QTextEdit*>();
    mIndicator->moveInterpolating(1200, 100);
    QTRY_COMPARE_WITH_TIMEOUT(text->pos(), QPoint(0, 56), 10000);
    QVERIFY(isBlank(picture({0, 0, 76, 56})));
    QVERIFY(!isBlank(picture({200, 0, 56, 56})));
    QVERIFY(!isBlank(picture({256, 0, 76, 175})));
    mIndicator->moveInterpolating(400, 100);
    QTRY_COMPARE_WITH_TIMEOUT(text->pos(), QPoint(76, 56), 10000);
    QVERIFY(isBlank(picture({332, 0, 300, 175})));
}

void tst_Indicator::balloonThatWentMissingIsMadeAgain()
{
    mOwner->running = false;
    balloon()->close();
    mIndicator->moveInterpolating(50, 50);
    QTest::qWait(300);
    QVERIFY(!balloon());
    mIndicator->showTooltip();
    mIndicator->hideTooltip();

    mOwner->running = true;
    QTRY_VERIFY(balloon());
    balloon()->close();
    mIndicator->setHint(QStringLiteral("hint"));
    QVERIFY(balloon()->findChild<QTextEdit*>()->isVisible());
    balloon()->close();
    mIndicator->setTargetWindowOffset(-9999, -9999, Window_MainWindow, false);
    mIndicator->init(true, true);
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QTest::mouseClick(button("No"), Qt::LeftButton);
    QCOMPARE(mOwner->sent, QStringList({QStringLiteral("next"), QStringLiteral("no")}));
}

void tst_Indicator::buttonsSendAnswers()
{
    mIndicator->init(true, true);
    for (const char* text : {"Next", "Yes", "No"})
        QTest::mouseClick(button(text), Qt::LeftButton);
    QCOMPARE(mOwner->sent.join(QLatin1Char(' ')), QStringLiteral("next yes no"));
    mIndicator->hideButton();
    QVERIFY(visible<QPushButton>().isEmpty());
    mIndicator->showButton();
    QCOMPARE(visible<QPushButton>().size(), 3);

    button("Yes")->activateWindow();
    QTRY_VERIFY(button("Yes")->isActiveWindow());
    QVERIFY(mIndicator->isAnyActive());
    QVERIFY(!mIndicator->isButtonWindowActive());
    mIndicator->init(false, true);
    QVERIFY(mIndicator->isButtonWindowActive());
}

void tst_Indicator::keysPressButtonsAndGoBetweenThem()
{
    mIndicator->init(false, true);
    button("Yes")->activateWindow();
    QTRY_VERIFY(button("Yes")->isActiveWindow());
    QTest::keyClick(button("Yes"), Qt::Key_Return);
    QTest::keyClick(button("Yes"), Qt::Key_Space);
    QCOMPARE(mOwner->sent.join(QLatin1Char(' ')), QStringLiteral("yes yes"));
    QPushButton* from = button("Yes");
    QPushButton* to = button("No");
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Right, Qt::Key_Left}) {
        QTest::keyClick(from, key);
        QTRY_VERIFY(to->isActiveWindow() && to->hasFocus());
        std::swap(from, to);
    }
    QTest::keyClick(button("No"), Qt::Key_Enter);
    QCOMPARE(mOwner->sent.last(), QStringLiteral("no"));
    // Next stands alone: its keys go nowhere.
    mIndicator->init(true, false);
    button("Next")->activateWindow();
    QTRY_VERIFY(button("Next")->isActiveWindow());
    QTest::keyClick(button("Next"), Qt::Key_Tab);
    QTest::keyClick(button("Next"), Qt::Key_Return);
    QCOMPARE(mOwner->sent.last(), QStringLiteral("next"));
}

void tst_Indicator::hintIsToldToScreenReaders()
{
    mIndicator->init(true, true);
    mIndicator->setHint(QStringLiteral("<b>one</b>"));
    QCOMPARE(balloon()->accessibleDescription(), QStringLiteral("one"));
    mIndicator->setHint(QStringLiteral("two"));
    for (const char* name : {"Next", "Yes", "No"}) {
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(button(name));
        QCOMPARE(told->text(QAccessible::Name), QLatin1String(name));
        QCOMPARE(told->text(QAccessible::Description), QStringLiteral("two"));
    }
    mIndicator->setHint(QString());
    QVERIFY(button("Next")->accessibleDescription().isEmpty());
    const TutorialLog log(nullptr, mOwner.data());
    QVERIFY(!log.accessibleName().isEmpty());
}

// By the formula of the web's accessibility guidelines: the relative luminance.
static double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

void tst_Indicator::cardIsReadable()
{
    QFile file(QStringLiteral(CARD_FILE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
    mIndicator->init(true, true);
    mIndicator->setHint(QStringLiteral("<b>MMMM MMMM MMMM</b><br>MMMM MMMM"));
    auto* text = balloon()->findChild<QTextEdit*>();
    QTRY_VERIFY(mIndicator->hintHeight() != 64);
    // What the edge takes of the height is the margin below the last line.
    const QTextDocument* document = text->document();
    QVERIFY(
        text->viewport()->height() >= document->size().height() - document->documentMargin() - 1);
    for (QWidget* shown : {static_cast<QWidget*>(text), static_cast<QWidget*>(button("Yes"))}) {
        // Inside of the edge there are the paper and the letters only.
        const QRect inside = shown->rect().adjusted(8, 8, -8, -8);
        const QImage image = shown->grab(inside).toImage();
        double darkest = 1;
        double lightest = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const double found = luminance(image.pixelColor(x, y));
                darkest = std::min(darkest, found);
                lightest = std::max(lightest, found);
            }
        }
        QVERIFY((lightest + 0.05) / (darkest + 0.05) >= 7);
    }
    qApp->setStyleSheet(QString());
}

void tst_Indicator::windowsOutliveTheirOwner()
{
    TutorialLog log(nullptr, mOwner.data());
    mIndicator->init(true, false);
    mOwner.reset();
    mIndicator->setTargetWindowOffset(1, 1, Window_MapEditTreeBox, false);
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    button("Next")->activateWindow();
    QTest::qWait(300);
    QVERIFY(balloon());
}

QTEST_MAIN(tst_Indicator)
#include "tst_indicator.moc"
