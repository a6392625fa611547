// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "page3d.h"
#include "payloadlocker.h"

#include <QLabel>
#include <QSemaphore>
#include <QVBoxLayout>

#include <algorithm>
#include <thread>

Q_DECLARE_METATYPE(QMargins)

namespace {

/// Keeps the ids that it is told.
class ToldPage : public Spectrum3DDrawFrameBase
{
public:
    using Spectrum3DDrawFrameBase::Spectrum3DDrawFrameBase;
    void UpdateObserver(int id, void *) override { ids << id; }

    QVector<int> ids;
};

QImage Picture(Qwt3D::SurfacePlot *plot)
{
    plot->updateGL();
    return plot->grabFrameBuffer().convertToFormat(QImage::Format_RGB32);
}

/// The most pixels one above the other that `counts`.
template <typename Counts>
int HighestRun(const QImage &picture, const Counts &counts)
{
    int highest = 0;
    for (int x = 0; x < picture.width(); ++x) {
        int run = 0;
        for (int y = 0; y < picture.height(); ++y) {
            run = counts(picture.pixelColor(x, y)) ? run + 1 : 0;
            highest = std::max(highest, run);
        }
    }
    return highest;
}

} // namespace

/// What the 3D page looks like, on displays of either size.
class TestSpectrum3DLook : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void page_data();
    void page();
    void noticeOfTracksThatAreSwitchedOff();
    void linesAreThreePixelsThickAndSmooth();
    void noGridBehindTheLines();
    void drawnLinesAreTheNewestOnes();
    void isToldNotifications();
};

void TestSpectrum3DLook::page_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QRect>("bar");
    QTest::addColumn<QRect>("barWhenHigher");
    QTest::newRow("usual display") << 1.0 << QMargins(40, 10, 10, 10) << QRect(5, 220, 30, 170) << QRect(5, 320, 30, 170);
    QTest::newRow("large display") << 2.0 << QMargins(80, 20, 20, 20) << QRect(5, 40, 60, 340) << QRect(5, 140, 60, 340);
}

void TestSpectrum3DLook::page()
{
    QFETCH(double, scale);
    const DisplayScale displayScale(scale);
    const FakeServices services;
    Spectrum3DDrawFrameBase page(nullptr);
    page.setWindowFlag(Qt::FramelessWindowHint);
    page.resize(600, 400);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    auto *view = page.findChild<Spectrum3DDrawViewBase *>();
    const auto *bar = view->findChild<SpectrumZoomUI *>();
    QTEST(view->layout()->contentsMargins(), "margins");
    QTEST(bar->geometry(), "bar");
    page.resize(600, 500);
    QTRY_COMPARE(view->height(), 500);
    QTEST(bar->geometry(), "barWhenHigher");
}

void TestSpectrum3DLook::noticeOfTracksThatAreSwitchedOff()
{
    Page3D page;
    QVERIFY(page.Show());
    auto *notice = page.view->findChild<QLabel *>();
    LinePayload off({ 1 });
    off.record.fill = off.record.show = nullptr;
    page.view->SlotUpdateMultiTrack(off.Param());
    QVERIFY(page.plot->isHidden());
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->text(), QString("The tracks are switched off."));
    page.SetTracks(0, 300);
    page.Update();
    QCOMPARE(notice->text(), QString("There are no tracks to show: draw them on the picture or have them found."));

    notice->setText("A file has no tracks."); // the host knows more of it
    page.SetTracks(3, 300);
    page.view->SlotUpdateMultiTrack(off.Param());
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->text(), QString("A file has no tracks."));
}

void TestSpectrum3DLook::linesAreThreePixelsThickAndSmooth()
{
    Page3D page(5, 300);
    QVERIFY(page.Show());
    page.services.spectrumUI.lineColor = QColor(255, 0, 0);
    page.Update(65500); // flat lines that run aslant over the screen, less than one row for a column
    const QImage picture = Picture(page.plot);
    const auto redness = [](const QColor &colour) { return colour.red() - colour.blue(); };
    QVERIFY(HighestRun(picture, [](const QColor &colour) { return colour == QColor(255, 0, 0); }) >= 2);
    const int thickness = HighestRun(picture, [&](const QColor &colour) { return redness(colour) > 40; });
    QVERIFY2(thickness >= 3 && thickness <= 5, qPrintable(QString::number(thickness)));
    // At its edges a line mixes with the white ground.
    const auto isMixed = [](const QColor &colour) { return colour.red() > 240 && colour.blue() > 40 && colour.blue() < 215; };
    QVERIFY(HighestRun(picture, isMixed) > 0);
}

void TestSpectrum3DLook::noGridBehindTheLines()
{
    Page3D page(1, 300);
    QVERIFY(page.Show());
    page.Update(65500);
    Qwt3D::CoordinateSystem *box = page.plot->coordinates();
    const auto darkPixels = [&] {
        const QImage picture = Picture(page.plot);
        int dark = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                dark += picture.pixelColor(x, y).value() < 128;
        }
        return dark;
    };
    const int seen = darkPixels();
    box->setGridLines(true, true, Qwt3D::LEFT);
    QVERIFY(darkPixels() > seen + 100);
}

/// The buffers are exchanged when the producer has done with them.
void TestSpectrum3DLook::drawnLinesAreTheNewestOnes()
{
    Page3D page(1, 300);
    QVERIFY(page.Show());
    LinePayload payload(Values(300, 1000));
    QSemaphore isHeld;
    QSemaphore mayWrite;
    std::thread producer([&] {
        const PayloadLocker locker(&payload.lock);
        isHeld.release();
        mayWrite.tryAcquire(1, 200); // the page waits for the lock meanwhile
        payload.second.assign(300, 3000);
        payload.record.fill = payload.second.data();
        payload.record.show = payload.first.data();
    });
    isHeld.acquire();
    page.view->SlotUpdateMultiTrack(payload.Param());
    producer.join();
    const std::vector<Qwt3D::TripleField> lines = PlotLines::Of(page.plot).first()->lines();
    QCOMPARE(Text(lines[0][0]), QString("0 0 6"));
}

void TestSpectrum3DLook::isToldNotifications()
{
    const FakeServices services;
    const ToldPage page(nullptr);
    GlobalNotifyObserver(NotifyFVBBandChanged, nullptr);
    QCOMPARE(page.ids, QVector<int>{ NotifyFVBBandChanged });
}

GUARDED_TEST_MAIN(TestSpectrum3DLook)
#include "tst_spectrum3dlook.moc"
