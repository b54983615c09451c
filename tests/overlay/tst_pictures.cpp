#include <QImage>
#include <QtTest>

// The overlay's geometry relies on what is drawn, so that a new drawing must
// keep to it.
class tst_Pictures : public QObject {
    Q_OBJECT

private slots:
    void iconFitsItsSquare_data();
    void iconFitsItsSquare();
    void arrowPointsAtItsTip();
};

void tst_Pictures::iconFitsItsSquare_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"click", "double_click", "right_click", "eye", "wait", "keyboard"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_Pictures::iconFitsItsSquare()
{
    QFETCH(QString, name);
    const QImage icon(QStringLiteral(":/resource/png/%1.png").arg(name));
    QCOMPARE(icon.size(), QSize(56, 56));
    QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(icon.pixel(28, 28)), 255);
}

// Whichever way the arrow is mirrored, its tip must stay on one screen point.
void tst_Pictures::arrowPointsAtItsTip()
{
    const QImage arrow(QStringLiteral(":/resource/png/arrow.png"));
    QCOMPARE(arrow.size(), QSize(76, 159));
    QCOMPARE(arrow.mirrored(true, false), arrow);

    int lastPaintedRow = -1;
    for (int y = 0; y < arrow.height(); ++y) {
        for (int x = 0; x < arrow.width(); ++x) {
            if (qAlpha(arrow.pixel(x, y)) > 0)
                lastPaintedRow = y;
        }
    }
    // The lower edge of row 148 is at y = 149.
    QCOMPARE(lastPaintedRow, 148);
    // Symmetric, so that the two columns beside x = 38 hold the tip.
    QVERIFY(qAlpha(arrow.pixel(38, 148)) > 128);
    QCOMPARE(qAlpha(arrow.pixel(30, 148)), 0);
}

QTEST_GUILESS_MAIN(tst_Pictures)
#include "tst_pictures.moc"
