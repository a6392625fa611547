// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "plotdrawing.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include <cmath>

namespace {

constexpr double dotsPerInch = 96;

/// A page of 200 x 100 pixels that is yellow, with these commands on it.
QByteArray Page(const QByteArray &commands)
{
    return "%!PS-Adobe-3.0 EPSF-3.0\n/LS { newpath moveto } BD\n%%EndProlog\n%%BeginPageSetup\n100 0 translate 90 rotate\n"
           "%%EndPageSetup\nmark\ngsave\n1.0 1.0 scale\n1 1 0 C\n"
           "newpath 0 0 moveto 200 0 lineto 200 100 lineto 0 100 lineto\nclosepath fill\n"
           + commands + "grestore\nshowpage\ncleartomark\n%%EOF\n";
}

/// Of 200 points.
QByteArray LongLine()
{
    QByteArray commands = "3 W\n1 0 0 C\n0 50 LS\n";
    for (int i = 1; i < 199; ++i)
        commands += QByteArray::number(i) + " 50 L\n";
    return commands + "199 50 LE\n";
}

QImage Painted(const PlotDrawing &drawing)
{
    QImage image(200, 100, QImage::Format_RGB32);
    image.fill(Qt::green);
    QPainter painter(&image);
    drawing.Paint(&painter, QFont("DejaVu Sans"), dotsPerInch);
    return image;
}

/// What is not the yellow of the page.
QRect Ink(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::yellow))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace

/// What the 3D plots' library says of a plot becomes lines and texts where they are on the screen.
class PlotDrawingTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void linesAndTexts()
    {
        const auto drawing = PlotDrawing::FromEps(Page("() 100 90 16 /Courier STC\n3 W\n0 0.4 1 C\n10 20 LS\n30.5 40 L\n50 20 LE\n"
                                                       "0.5 W\n0 0 0 C\n0 0 LS\n200 100 LE\n(Counts (sum)) 60 70 12 /Courier SCL\n"));
        QVERIFY(drawing);
        QCOMPARE(drawing->size, QSizeF(200, 100));
        QCOMPARE(drawing->background, QColor(Qt::yellow));
        QCOMPARE(drawing->strokes.size(), size_t(2));
        QCOMPARE(drawing->strokes[0].points, QPolygonF(QVector<QPointF>{{10, 80}, {30.5, 60}, {50, 80}}));
        QCOMPARE(drawing->strokes[0].width, 3.0);
        QCOMPARE(drawing->strokes[0].color.rgb(), qRgb(0, 102, 255));
        QCOMPARE(drawing->strokes[1].points, QPolygonF(QVector<QPointF>{{0, 100}, {200, 0}}));
        QCOMPARE(drawing->strokes[1].width, 0.5);
        QCOMPARE(drawing->labels.size(), size_t(1)); // that of the title is empty
        QCOMPARE(drawing->labels[0].text, QString("Counts (sum)"));
        QCOMPARE(drawing->labels[0].anchor, QPointF(60, 30));
        QCOMPARE(drawing->labels[0].pointSize, 12.0);
    }

    void whatIsNotWholeIsNothing_data()
    {
        QTest::addColumn<QByteArray>("eps");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << Page("10 20 LS\n30 40 LE\n").chopped(40);
        QTest::newRow("without a page") << QByteArray("%%EndPageSetup\n1 W\n0 0 LS\n1 1 LE\nshowpage\n");
        QTest::newRow("page of nothing") << QByteArray("%%EndPageSetup\nnewpath 0 0 moveto lineto\nshowpage\n");
    }

    void whatIsNotWholeIsNothing()
    {
        QFETCH(QByteArray, eps);
        QVERIFY(!PlotDrawing::FromEps(eps));
    }

    /// A text lies on the side of its anchor that the plot has given it.
    void textsLieAtTheirAnchor_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<double>("across"); // of the size of the text, from the anchor to the middle
        QTest::addColumn<double>("down");
        QTest::newRow("below to the left") << QByteArray("S") << 0.5 << -0.5;
        QTest::newRow("below") << QByteArray("SBC") << 0.0 << -0.5;
        QTest::newRow("below to the right") << QByteArray("SBR") << -0.5 << -0.5;
        QTest::newRow("left") << QByteArray("SCL") << 0.5 << 0.0;
        QTest::newRow("middle") << QByteArray("SCC") << 0.0 << 0.0;
        QTest::newRow("right") << QByteArray("SCR") << -0.5 << 0.0;
        QTest::newRow("above to the left") << QByteArray("STL") << 0.5 << 0.5;
        QTest::newRow("above") << QByteArray("STC") << 0.0 << 0.5;
        QTest::newRow("above to the right") << QByteArray("STR") << -0.5 << 0.5;
    }

    void textsLieAtTheirAnchor()
    {
        QFETCH(QByteArray, command);
        QFETCH(double, across);
        QFETCH(double, down);
        const auto drawing = PlotDrawing::FromEps(Page("0 0 0 C\n(HHHH) 100 50 12 /Courier " + command + '\n'));
        QVERIFY(drawing);
        QFont font("DejaVu Sans");
        font.setPixelSize(16); // 12 points on a screen of 96 dots per inch
        const QSize size = QFontMetrics(font).size(Qt::TextSingleLine, "HHHH");
        const QRect ink = Ink(Painted(*drawing));
        QVERIFY(ink.width() > 30);
        QVERIFY2(std::abs(ink.center().x() - (100 + across * size.width())) < 3, qPrintable(QString::number(ink.center().x())));
        QVERIFY2(std::abs(ink.center().y() - (50 + down * size.height())) < 3, qPrintable(QString::number(ink.center().y())));
    }

    /// It is painted in pieces.
    void aLongLineHasNoGaps()
    {
        const auto drawing = PlotDrawing::FromEps(Page(LongLine()));
        QVERIFY(drawing);
        const QImage image = Painted(*drawing);
        for (int x = 0; x < 199; ++x)
            QCOMPARE(image.pixelColor(x, 50), QColor(Qt::red));
    }

    /// In a drawing it is one line.
    void aLongLineIsOneElement()
    {
        const auto drawing = PlotDrawing::FromEps(Page(LongLine()));
        QVERIFY(drawing);
        QBuffer buffer;
        QSvgGenerator generator;
        generator.setOutputDevice(&buffer);
        QPainter painter(&generator);
        drawing->Paint(&painter, QFont(), dotsPerInch);
        painter.end();
        QCOMPARE(buffer.data().count("<polyline"), 1);
    }
};

GUARDED_TEST_MAIN(PlotDrawingTest)
#include "plotdrawingtest.moc"
