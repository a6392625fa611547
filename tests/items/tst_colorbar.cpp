// SPDX-License-Identifier: GPL-3.0-or-later
#include "colorbarcells.h"
#include "gradientcolorlayoutitem.h"

#include "guardedtest.h"

#include <QImage>
#include <QSignalSpy>

class TestColorBar : public GuardedTest
{
    Q_OBJECT

private slots:
    void cells_data();
    void cells();
    void steps();
    void painted();
    void paletteIsPassedOn();
    void shortAndEmptyPalettes();
};

void TestColorBar::cells_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("count");
    QTest::addColumn<QRectF>("last");
    QTest::newRow("400") << 400 << 33 << QRectF(385, 1, 16, 20);
    QTest::newRow("256") << 256 << 32 << QRectF(249, 1, 8, 20);
    QTest::newRow("narrow") << 31 << 33 << QRectF(1, 1, 31, 20);
    QTest::newRow("none") << 0 << 32 << QRectF(1, 1, 0, 20);
    QTest::newRow("below 0") << -5 << 0 << QRectF();
}

void TestColorBar::cells()
{
    QFETCH(int, width);
    const QVector<QRectF> cells = ComputeColorBarCells(QSize(width, 20), 1);
    QTEST(cells.size(), "count");
    QTEST(cells.isEmpty() ? QRectF() : cells.last(), "last");
}

void TestColorBar::steps()
{
    QCOMPARE(ComputeColorBarStep(256, 32), 8);
    QCOMPARE(ComputeColorBarStep(256, 33), 7);
    QCOMPARE(ComputeColorBarStep(5, 33), 0);
    QCOMPARE(ComputeColorBarStep(256, 0), 0);
}

void TestColorBar::painted()
{
    GradientColorLayoutItem bar(nullptr);
    bar.resize(402, 22);
    bar.SetItemSize(400, 20);
    const QImage image = bar.grab().toImage();
    QCOMPARE(image.pixelColor(5, 0), QColor(Qt::white));
    for (int cell = 0; cell < 33; ++cell)
        QCOMPARE(image.pixelColor(1 + cell * 12 + 6, 10), QColor(cell * 7, cell * 7, cell * 7));
    QCOMPARE(image.pixelColor(400, 10), QColor(224, 224, 224));
}

void TestColorBar::paletteIsPassedOn()
{
    GradientColorLayoutItem bar(nullptr);
    bar.resize(258, 22);
    bar.SetItemSize(256, 20);
    QSignalSpy changed(&bar, SIGNAL(changeColors(QVector<QColor>)));
    const QVector<QColor> palette(256, Qt::red);
    bar.changedPalette(palette);
    bar.changedPalette(palette);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.last().first().value<QVector<QColor>>(), palette);
    QCOMPARE(bar.grab().toImage().pixelColor(250, 10), QColor(Qt::red));
}

void TestColorBar::shortAndEmptyPalettes()
{
    GradientColorLayoutItem bar(nullptr);
    bar.resize(258, 22);
    bar.SetItemSize(256, 20);
    bar.changedPalette({Qt::green, Qt::red});
    QCOMPARE(bar.grab().toImage().pixelColor(250, 10), QColor(Qt::green));
    bar.changedPalette({});
    const QImage image = bar.grab().toImage();
    QCOMPARE(image.pixelColor(255, 10), QColor(Qt::white));
    QCOMPARE(image.pixelColor(100, 10), bar.palette().color(QPalette::Window));
}

GUARDED_TEST_MAIN(TestColorBar)
#include "tst_colorbar.moc"
