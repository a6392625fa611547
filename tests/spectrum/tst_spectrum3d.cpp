// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "page3d.h"

#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QVBoxLayout>

/// The 3D page: what it is made of, and when it takes what the service tells.
class TestSpectrum3D : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void methodsInOrder();
    void page();
    void resizing();
    void onlyIn3DMode();
    void withoutTracks();
    void tracksWithoutWidth_data();
    void tracksWithoutWidth();
    void buffersAreExchanged();
    void queuedFromTheService();
    void onePayloadForTwoPages();
};

void TestSpectrum3D::methodsInOrder()
{
    const auto ownMethods = [](const QMetaObject &meta) {
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods << QString::fromLatin1(meta.method(i).methodSignature());
        return methods;
    };
    QCOMPARE(ownMethods(Spectrum3DDrawFrameBase::staticMetaObject),
             QStringList("SignalUpdateMultiTrack(void*)"));
    QCOMPARE(ownMethods(Spectrum3DDrawViewBase::staticMetaObject),
             QStringList({ "SlotUpdateMultiTrack(void*)", "Slot3DViewRotationChanged(double,double,double)",
                           "Slot3DZoomChanged(double)", "SlotZoomIn()", "SlotZoomOut()", "SlotZoomReset()",
                           "SlotHorizontalZoomIn()", "SlotHorizontalZoomOut()",
                           "SlotSpectralPropertyChanged()" }));
}

void TestSpectrum3D::page()
{
    Page3D page;
    QCOMPARE(page.view->parentWidget(), &page.page);
    auto *column = qobject_cast<QVBoxLayout *>(page.view->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(40, 10, 10, 10));
    QCOMPARE(column->count(), 1);
    QCOMPARE(column->itemAt(0)->widget(), page.plot);
    QCOMPARE(int(page.plot->plotStyle()), 7);
    // Only plot and bar are windows of their own; the rest of the program stays as it is.
    QVERIFY(!page.view->testAttribute(Qt::WA_NativeWindow));
    QVERIFY(page.Show());
    QVERIFY(!page.view->internalWinId());
    auto *bar = page.view->findChild<SpectrumZoomUI *>();
    QCOMPARE(bar->geometry(), QRect(5, 220, 30, 170));
    QVERIFY(!bar->findChild<QPushButton *>("pushButtonRescaleAuto")->isVisible());
    QVERIFY(page.view->children().indexOf(bar) > page.view->children().indexOf(page.plot));
    GlobalNotifyObserver(NotifyRefreshOverlays, nullptr); // changes nothing
    QVERIFY(!page.plot->hasData());
}

void TestSpectrum3D::resizing()
{
    Page3D page;
    QVERIFY(page.Show());
    page.page.resize(700, 500);
    QTRY_COMPARE(page.view->size(), QSize(700, 500));
    QCOMPARE(page.view->findChild<SpectrumZoomUI *>()->geometry(), QRect(5, 320, 30, 170));
    QVERIFY(DebugLines().contains("Spectrum3DDrawFrameBase::resizeEvent: QSize(700, 500)"));
}

void TestSpectrum3D::onlyIn3DMode()
{
    Page3D page;
    QVERIFY(page.Show());
    page.services.spectrumUI.displayMode3D = false;
    page.Update();
    QVERIFY(!page.plot->hasData());
    QCOMPARE(page.payload->record.fill, page.payload->first.data());
    page.view->SlotUpdateMultiTrack(nullptr);
}

void TestSpectrum3D::withoutTracks()
{
    Page3D page(0);
    QVERIFY(page.Show());
    page.Update();
    QVERIFY(page.plot->isHidden());
    QVERIFY(!page.plot->hasData());
    QCOMPARE(page.payload->record.fill, page.payload->first.data());
    page.SetTracks(2, 300);
    page.Update();
    QVERIFY(page.plot->isVisible());
    QVERIFY(page.plot->hasData());
    const auto *notice = page.view->findChild<QLabel *>();
    QVERIFY(notice && notice->isHidden());
    page.SetTracks(0, 300);
    page.Update();
    QVERIFY(page.plot->isHidden());
    QCOMPARE(notice->text(), QString("There are no tracks to show: draw them on the picture or have them found."));
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->geometry(), QRect(40, 10, 550, 380));
}

void TestSpectrum3D::tracksWithoutWidth_data()
{
    QTest::addColumn<QRectF>("track");
    QTest::newRow("empty") << QRectF();
    QTest::newRow("drawn leftwards") << QRectF(100, 0, -50, 10);
}

void TestSpectrum3D::tracksWithoutWidth()
{
    QFETCH(QRectF, track);
    Page3D page;
    QVERIFY(page.Show());
    page.services.spectrumUI.multiTrackList = { track };
    page.Update();
    QVERIFY(!page.plot->hasData());
}

void TestSpectrum3D::buffersAreExchanged()
{
    Page3D page;
    QVERIFY(page.Show());
    page.Update();
    QCOMPARE(page.payload->record.show, page.payload->first.data());
    QCOMPARE(page.payload->record.fill, page.payload->second.data());
    QVERIFY(page.payload->lock.tryLock());
    page.payload->lock.unlock();
    LinePayload empty({ 1 });
    empty.record.fill = nullptr;
    page.view->SlotUpdateMultiTrack(empty.Param()); // nothing to draw: tracks that are switched off
    QVERIFY(page.plot->isHidden());
    QCOMPARE(PlotLines::Of(page.plot).first()->lines().size(), size_t(3));
    page.Update();
    QVERIFY(page.plot->isVisible());
}

void TestSpectrum3D::queuedFromTheService()
{
    Page3D page;
    QVERIFY(page.Show());
    LinePayload payload(Values(900, 5));
    emit page.services.spectrum.SignalUpdateMultiTrack(payload.Param());
    QVERIFY(!page.plot->hasData());
    QCoreApplication::processEvents();
    QVERIFY(page.plot->hasData());

    // A payload that is delivered after the mode has changed is not touched.
    LinePayload late(Values(900, 5));
    emit page.services.spectrum.SignalUpdateMultiTrack(late.Param());
    page.services.spectrumUI.displayMode3D = false;
    QCoreApplication::processEvents();
    QCOMPARE(late.record.fill, late.first.data());
}

/// The live page and that of the opened picture each have a plot; one of them is seen.
void TestSpectrum3D::onePayloadForTwoPages()
{
    Page3D page(1, 300);
    Spectrum3DDrawFrameBase other(nullptr);
    other.setWindowFlag(Qt::FramelessWindowHint);
    other.resize(600, 400);
    const auto *plot = other.findChild<Qwt3D::SurfacePlot *>();
    LinePayload payload(Values(300, 1000), Values(300, 0));
    QVERIFY(page.Show());
    emit page.services.spectrum.SignalUpdateMultiTrack(payload.Param());
    QCoreApplication::processEvents();
    QCOMPARE(payload.record.show, payload.first.data());
    QCOMPARE(Text(PlotLines::Of(page.plot).first()->lines()[0][0]), QString("0 0 2"));
    QVERIFY(PlotLines::Of(plot).isEmpty());

    page.page.hide();
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    std::fill(payload.second.begin(), payload.second.end(), 3000U); // the next one
    emit page.services.spectrum.SignalUpdateMultiTrack(payload.Param());
    QCoreApplication::processEvents();
    QCOMPARE(payload.record.show, payload.second.data());
    QCOMPARE(Text(PlotLines::Of(plot).first()->lines()[0][0]), QString("0 0 6"));
    QCOMPARE(Text(PlotLines::Of(page.plot).first()->lines()[0][0]), QString("0 0 2"));
}

GUARDED_TEST_MAIN(TestSpectrum3D)
#include "tst_spectrum3d.moc"
