// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "guardedtest.h"

#include <QScrollBar>

namespace {

/// The part of the scaled picture that starts at `scroll`, taken pixel by pixel.
QImage ScaledPart(const QImage &picture, double scale, const QPoint &scroll, const QSize &size)
{
    QImage part(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            part.setPixel(
                x, y,
                picture.pixel(int((scroll.x() + x + 0.5) / scale), int((scroll.y() + y + 0.5) / scale)));
        }
    }
    return part;
}

} // namespace

/// With CPU drawing every screen pixel shows the picture pixel below it.
class TestDrawViewPixels : public GuardedTest
{
    Q_OBJECT

private slots:
    void pictureIsShownPixelByPixel_data();
    void pictureIsShownPixelByPixel();
    void scrolledPartIsOnTheScreen_data();
    void scrolledPartIsOnTheScreen();
    void farCornerCanBeScrolledTo();
    void fittedPictureNeedsNoScrollBars();
    void nextFrameReplacesThePicture();
    void smallerPictureLeavesNothingOfTheLargerOne();
    void transparentPictureShowsWhatIsBehind();
};

void TestDrawViewPixels::pictureIsShownPixelByPixel_data()
{
    QTest::addColumn<QSize>("pictureSize");
    QTest::addColumn<bool>("colour");
    QTest::addColumn<double>("scale");
    for (bool colour : { false, true }) {
        const QByteArray kind = colour ? "colour, " : "grey, ";
        QTest::newRow(kind + "zoom 1") << QSize(300, 200) << colour << 1.0;
        QTest::newRow(kind + "zoom 8") << QSize(300, 200) << colour << 8.0;
        QTest::newRow(kind + "odd width, zoom 1") << QSize(301, 203) << colour << 1.0;
        QTest::newRow(kind + "odd width, zoom 8") << QSize(301, 203) << colour << 8.0;
        QTest::newRow(kind + "one pixel") << QSize(1, 1) << colour << 256.0;
        QTest::newRow(kind + "larger than the window") << QSize(1601, 999) << colour << 1.0;
        QTest::newRow(kind + "below 1") << QSize(1599, 999) << colour << 1.0 / 3;
    }
}

void TestDrawViewPixels::pictureIsShownPixelByPixel()
{
    QFETCH(QSize, pictureSize);
    QFETCH(bool, colour);
    QFETCH(double, scale);
    DrawViewFixture fixture;
    const QImage picture = colour ? ColourPicture(pictureSize) : GreyPicture(pictureSize);
    fixture.view->slotPaintPreview(picture);
    fixture.view->slotSetScaleFactor(scale);
    const QSize size = pictureSize * scale; // whole numbers in all rows
    QCOMPARE(fixture.view->size(), size);
    const QImage shown = fixture.view->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown, ScaledPart(picture, scale, { 0, 0 }, size));
}

void TestDrawViewPixels::scrolledPartIsOnTheScreen_data()
{
    QTest::addColumn<QSize>("pictureSize");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPoint>("scroll");
    QTest::newRow("zoom 1") << QSize(1600, 1200) << 1.0 << QPoint(333, 222);
    QTest::newRow("zoom 8, in the middle of a pixel") << QSize(1600, 1200) << 8.0 << QPoint(1003, 2005);
    QTest::newRow("largest camera, zoom 8") << QSize(4096, 4096) << 8.0 << QPoint(32000, 31000);
    // Beyond the 16 bits in which the window system counts pixels.
    QTest::newRow("largest camera, zoom 32, start") << QSize(4096, 4096) << 32.0 << QPoint(0, 0);
    QTest::newRow("largest camera, zoom 32, far end") << QSize(4096, 4096) << 32.0 << QPoint(130000, 130500);
}

void TestDrawViewPixels::scrolledPartIsOnTheScreen()
{
    QFETCH(QSize, pictureSize);
    QFETCH(double, scale);
    QFETCH(QPoint, scroll);
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    const QImage picture = GreyPicture(pictureSize);
    fixture.view->slotPaintPreview(picture);
    fixture.view->slotSetScaleFactor(scale);
    fixture.frame->SetSliderPosition(scroll);
    QCOMPARE(fixture.FrameScroll(), scroll);
    QWidget *window = fixture.frame->viewport();
    QTRY_VERIFY(fixture.frame->verticalScrollBar()->isVisible());
    const QImage expected = ScaledPart(picture, scale, scroll, window->size());
    QTRY_COMPARE(GrabFromScreen(window), expected);
}

void TestDrawViewPixels::farCornerCanBeScrolledTo()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    const QImage picture = GreyPicture({ 800, 600 });
    fixture.view->slotPaintPreview(picture);
    fixture.view->slotZoom1v1();
    QTRY_VERIFY(fixture.frame->verticalScrollBar()->isVisible());
    fixture.frame->SetSliderPosition({ 10000, 10000 });
    const QSize window = fixture.frame->viewport()->size();
    const QPoint scroll(800 - window.width(), 600 - window.height());
    QTRY_COMPARE(GrabFromScreen(fixture.frame->viewport()), ScaledPart(picture, 1.0, scroll, window));
}

void TestDrawViewPixels::fittedPictureNeedsNoScrollBars()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    const QImage picture = GreyPicture({ 800, 400 });
    fixture.view->slotPaintPreview(picture);
    fixture.view->slotZoom1v1();
    QTRY_VERIFY(fixture.frame->horizontalScrollBar()->isVisible());
    fixture.view->slotZoomFit();
    QTRY_VERIFY(!fixture.frame->horizontalScrollBar()->isVisible());
    QVERIFY(!fixture.frame->verticalScrollBar()->isVisible());
    QCOMPARE(fixture.view->geometry(), QRect(0, 50, 400, 200));
}

void TestDrawViewPixels::nextFrameReplacesThePicture()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    for (int seed = 0; seed < 5; ++seed) {
        const QImage picture = GreyPicture({ 350, 250 }, 50 * seed);
        fixture.view->slotPaintPreview(picture);
        fixture.view->slotZoom1v1();
        QTRY_COMPARE(GrabFromScreen(fixture.view), ScaledPart(picture, 1.0, { 0, 0 }, { 350, 250 }));
    }
}

void TestDrawViewPixels::smallerPictureLeavesNothingOfTheLargerOne()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    QWidget *window = fixture.frame->viewport();
    const QImage empty = GrabFromScreen(window);
    QImage large(390, 290, QImage::Format_Grayscale8);
    large.fill(0);
    fixture.view->slotPaintPreview(large);
    fixture.view->slotZoom1v1();
    QTRY_COMPARE(GrabFromScreen(fixture.view), ScaledPart(large, 1.0, { 0, 0 }, large.size()));

    const QImage small = GreyPicture({ 256, 128 });
    fixture.view->slotPaintPreview(small);
    fixture.view->slotZoom1v1();
    QTRY_COMPARE(GrabFromScreen(fixture.view), ScaledPart(small, 1.0, { 0, 0 }, small.size()));
    // Beside the picture the frame is as empty as at the start.
    const QImage shown = GrabFromScreen(window);
    QCOMPARE(shown.pixel(5, 5), empty.pixel(5, 5));
    QCOMPARE(shown.pixel(window->width() - 5, window->height() - 5), empty.pixel(5, 5));
}

void TestDrawViewPixels::transparentPictureShowsWhatIsBehind()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    QWidget *window = fixture.frame->viewport();
    const QRgb behind = GrabFromScreen(window).pixel(5, 5);
    const QImage opaque = GreyPicture({ 300, 200 });
    fixture.view->slotPaintPreview(opaque);
    fixture.view->slotZoom1v1();
    QTRY_COMPARE(GrabFromScreen(fixture.view), ScaledPart(opaque, 1.0, { 0, 0 }, opaque.size()));

    QImage picture(300, 200, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    fixture.view->slotPaintPreview(picture);
    QImage expected(fixture.view->size(), QImage::Format_RGB32);
    expected.fill(behind);
    QTRY_COMPARE(GrabFromScreen(fixture.view), expected);
}

GUARDED_TEST_MAIN(TestDrawViewPixels)
#include "tst_drawviewpixels.moc"
