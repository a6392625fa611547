// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraspectrumstackedwidget.h"
#include "imagespectrumstackedwidget.h"
#include "rulerbarvertical.h"
#include "spectrumdrawviewbase.h"
#include "spectrumview.h"

#include "drawviewfixture.h"
#include "guardedtest.h"
#include "plotpage.h"
#include "shellfixture.h"

#include <QApplication>
#include <QLayout>
#include <QMouseEvent>
#include <QSignalSpy>

namespace {

/// Below the image; the other horizontal one tells grey levels.
QWidget *PixelRuler(const QWidget *page)
{
    constexpr int pixelRulerRow = 4;
    return page->layout()->itemAt(pixelRulerRow)->layout()->itemAt(0)->widget();
}

} // namespace

/// The page with the spectrum image in the two stacks.
class SpectrumStackViewsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void pictureIsRefittedAfterAResize();
    void dragsClicksAndStepsBack();
    void wiresOfTheLiveView();
    void liveProfilesAreQueued();
    void wiresOfThePicturesView();
    void openedPictureIsStatic();
    void openedPictureIsStaticWhenItIsConnected();
};

void SpectrumStackViewsTest::pictureIsRefittedAfterAResize()
{
    const DisplayScale scale(1.0);
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    stack.resize(740, 580); // leaves 600 x 400
    emit services.preview.signalPreviewImage(GreyPicture(QSize(300, 100)));
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    const SpectrumDrawViewBase *view = stack.findChild<SpectrumView *>()->GetDrawView();
    QCOMPARE(view->size(), QSize(600, 200));
    stack.resize(440, 580);
    QTRY_COMPARE(view->size(), QSize(300, 100));
    stack.setCurrentIndex(1); // behind another page too
    stack.resize(1040, 580);
    QTRY_COMPARE(view->size(), QSize(900, 300));
}

void SpectrumStackViewsTest::dragsClicksAndStepsBack()
{
    const DisplayScale scale(1.0);
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    stack.resize(740, 580); // leaves 600 x 400
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    QWidget *image = stack.findChild<SpectrumView *>()->GetDrawView()->viewport();
    const auto drag = [image](const QPoint &from, const QPoint &to) {
        CallLog::Clear();
        QTest::mousePress(image, Qt::LeftButton, Qt::NoModifier, from);
        QMouseEvent move(QEvent::MouseMove, to, image->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(image, &move);
        QTest::mouseRelease(image, Qt::LeftButton, Qt::NoModifier, to);
    };
    const QString area = "SpectrumUIManager::SlotNewArea(%1)";
    const QString pick = "IntensityManager::SetAnchorPoint(%1)";
    const QString noExpansion = "DisplayModeUIManager::SetImageExpansionAreaFlag(false)";

    CallLog::Clear();
    emit services.preview.signalPreviewImage(GreyPicture(QSize(1200, 400)));
    QCOMPARE(CallLog::Calls(),
             QStringList({ noExpansion, area.arg("0, 1200, 0, 400"), pick.arg("600, 200, (0, 0, 1, 1)") }));
    drag(QPoint(100, 50), QPoint(100, 50));
    QCOMPARE(CallLog::Calls(), QStringList(pick.arg("200, 100, (0, 0, 1, 1)")));
    drag(QPoint(100, 50), QPoint(250, 150));
    QCOMPARE(CallLog::Calls(), QStringList({ noExpansion, area.arg("200, 500, 100, 300"),
                                             pick.arg("350, 200, (0.166667, 0.25, 0.416667, 0.75)") }));
    drag(QPoint(500, 300), QPoint(505, 500)); // 5 pixels across: a click
    QCOMPARE(CallLog::Calls(), QStringList(pick.arg("252, 250, (0.166667, 0.25, 0.416667, 0.75)")));
    drag(QPoint(600, 400), QPoint(500, 300));
    QCOMPARE(CallLog::Calls(),
             QStringList({ noExpansion, area.arg("0, 1200, 0, 400"), pick.arg("600, 200, (0, 0, 1, 1)") }));
}

void SpectrumStackViewsTest::wiresOfTheLiveView()
{
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    auto *page = qobject_cast<SpectrumView *>(stack.widget(0));
    QVERIFY(page);
    SpectrumDrawViewBase *view = page->GetDrawView();
    auto *verticalRuler = page->findChild<RulerBarVertical *>();
    const QVector<Wire> wires{
        { &services.spectrumUI, SIGNAL(SignalSpectralPropertyChanged()), page,
          SLOT(SlotSpectralPropertyChanged()) },
        { &services.useArea, SIGNAL(signalSpectrumUIUpdate()), page, SLOT(SlotSpectrumUIChange()) },
        { &services.useArea, SIGNAL(signalUpdateUseArea()), page, SLOT(SlotSpectrumUIChange()) },
        { &services.preview, SIGNAL(signalPreviewImage(QImage)), view, SLOT(slotPaintPreview(QImage)) },
        { &services.preview, SIGNAL(signalSetUpdatesEnabled(bool)), view, SLOT(slotSetUpdatesEnabled(bool)) },
        { &services.intensity, SIGNAL(SignalUpdateCurve(void *)), page, SLOT(SlotUpdateCurve(void *)) },
        { view, SIGNAL(SignalPressPosChange(QPointF, QRectF)), page,
          SLOT(SlotPressPosChange(QPointF, QRectF)) },
        { view, SIGNAL(SignalNewRect(qreal, qreal, qreal, qreal)), &stack,
          SLOT(SlotNewArea(qreal, qreal, qreal, qreal)) },
        { &services.displayMode, SIGNAL(SignalChangeHShowValueRange(qreal, qreal)), PixelRuler(page),
          SLOT(changedShowValueRange(qreal, qreal)) },
        { &services.displayMode, SIGNAL(SignalChangeVShowValueRange(qreal, qreal)), verticalRuler,
          SLOT(changedShowValueRange(qreal, qreal)) },
        { &services.intensity, SIGNAL(SignalPseudoColorsUpdate(const QVector<QColor>)), page,
          SLOT(SlotPseudoColorsChanged(const QVector<QColor>)) },
    };
    QCOMPARE(MissingWires(wires), QStringList());
    // The profiles of an opened picture are not for the live page.
    const QVector<Wire> absent{ { view, SIGNAL(SignalPressPosChangeStatic(QPointF, QRectF, bool)), page,
                                  SLOT(SlotPressPosChangeStatic(QPointF, QRectF, bool)) } };
    QCOMPARE(MissingWires(absent).size(), 1);
}

void SpectrumStackViewsTest::liveProfilesAreQueued()
{
    ShellServices services;
    services.frame.frameWidth = 3;
    services.frame.frameHeight = 2;
    services.spectrumUI.displayModeGeneral = false;
    services.spectrumUI.displayModePhysics = true;
    CameraSpectrumStackedWidget stack(nullptr);
    CurvePayload curve({ 11, 0, 0 }, { 12, 0 });
    curve.record.region = QRectF(0, 0, 1, 1);
    emit services.intensity.SignalUpdateCurve(curve.Param());
    QCOMPARE(curve.record.horizontalShow, curve.oldRow.data());
    QCoreApplication::processEvents();
    QCOMPARE(curve.record.horizontalShow, curve.row.data());
}

void SpectrumStackViewsTest::wiresOfThePicturesView()
{
    ShellServices services;
    ImageSpectrumStackedWidget stack(nullptr);
    auto *page = qobject_cast<SpectrumView *>(stack.widget(0));
    QVERIFY(page);
    SpectrumDrawViewBase *view = page->GetDrawView();
    auto *verticalRuler = page->findChild<RulerBarVertical *>();
    const QVector<Wire> wires{
        { &services.spectrumUI, SIGNAL(SignalSpectralPropertyChanged()), page,
          SLOT(SlotSpectralPropertyChanged()) },
        { &services.useArea, SIGNAL(signalSpectrumUIUpdate()), page, SLOT(SlotSpectrumUIChange()) },
        { &services.useArea, SIGNAL(signalUpdateUseArea()), page, SLOT(SlotSpectrumUIChange()) },
        { &services.active, SIGNAL(sglUpdateHorizontalCurve(int *, int, int, int)), page,
          SLOT(SlotUpdateHorizontalCurve(int *, int, int, int)) },
        { &services.active, SIGNAL(sglUpdateVerticalCurve(int *, int, int, int)), page,
          SLOT(SlotUpdateVerticalCurve(int *, int, int, int)) },
        { &services.active, SIGNAL(signalUpdateLevel(int, int)), page, SLOT(SlotUpdateLevel(int, int)) },
        { view, SIGNAL(SignalPressPosChangeStatic(QPointF, QRectF, bool)), page,
          SLOT(SlotPressPosChangeStatic(QPointF, QRectF, bool)) },
        { view, SIGNAL(SignalNewRect(qreal, qreal, qreal, qreal)), &stack,
          SLOT(slotNewArea(qreal, qreal, qreal, qreal)) },
        { &services.spectrumUI, SIGNAL(signalDisplayModeChange()), view, SLOT(SlotDisplayModeChange()) },
        { &services.spectrumUI, SIGNAL(signalDisplayModePropertyChange()), view,
          SLOT(SlotDisplayModeChange()) },
        { &services.displayMode, SIGNAL(SignalImageChangeHShowValueRange(qreal, qreal)), PixelRuler(page),
          SLOT(changedShowValueRange(qreal, qreal)) },
        { &services.displayMode, SIGNAL(SignalImageChangeVShowValueRange(qreal, qreal)), verticalRuler,
          SLOT(changedShowValueRange(qreal, qreal)) },
        { &services.active, SIGNAL(signalResetImageInfo()), page, SLOT(slotResetImageInfo()) },
        { &services.active, SIGNAL(signalUpdatePseudoColor(const QVector<QColor>)), page,
          SLOT(SlotPseudoColorsChanged(const QVector<QColor>)) },
        { &services.active, SIGNAL(signalResetImageSize()), view, SLOT(slotResetImageInfo()) },
    };
    QCOMPARE(MissingWires(wires), QStringList());
    const QVector<Wire> absent{ { view, SIGNAL(SignalPressPosChange(QPointF, QRectF)), page,
                                  SLOT(SlotPressPosChange(QPointF, QRectF)) } };
    QCOMPARE(MissingWires(absent).size(), 1);
}

void SpectrumStackViewsTest::openedPictureIsStatic()
{
    ShellServices services;
    CallLog::Clear();
    ImageSpectrumStackedWidget stack(nullptr);
    auto *page = stack.findChild<SpectrumView *>();
    QCOMPARE(CallLog::Calls().filter("ConnectWidthDrawView"), QStringList("active ConnectWidthDrawView(true)"));
    QCOMPARE(services.active.connectedViews, QVector<QObject *>{ page->GetDrawView() });
    CallLog::Clear();
    // Both say so by what they ask for.
    page->SlotDisplayModeUpdate();
    QCOMPARE(CallLog::Calls(), QStringList("SpectrumUIManager::CalculateImageArea()"));
    QSignalSpy fitted(page->GetDrawView(), SIGNAL(SignalImageChange(QSize)));
    page->GetDrawView()->slotPaintStaticPreview(GreyPicture(QSize(601, 10)));
    QCOMPARE(fitted.size(), 0);
}

/// The picture may show itself at once.
void SpectrumStackViewsTest::openedPictureIsStaticWhenItIsConnected()
{
    ShellServices services;
    int fits = -1;
    services.active.atConnection = [&](QObject *object) {
        auto *view = qobject_cast<SpectrumDrawViewBase *>(object);
        QWidget *page = view->parentWidget();
        while (page && !qobject_cast<SpectrumView *>(page))
            page = page->parentWidget();
        QVERIFY(page);
        CallLog::Clear();
        qobject_cast<SpectrumView *>(page)->SlotDisplayModeUpdate();
        QSignalSpy fitted(view, SIGNAL(SignalImageChange(QSize)));
        view->slotPaintStaticPreview(GreyPicture(QSize(601, 10)));
        fits = fitted.size();
    };
    const ImageSpectrumStackedWidget stack(nullptr);
    QCOMPARE(CallLog::Count("SpectrumUIManager::CalculateImageArea()"), 1);
    QCOMPARE(fits, 0);
}

GUARDED_TEST_MAIN(SpectrumStackViewsTest)
#include "tst_spectrumstackviews.moc"
