// SPDX-License-Identifier: GPL-3.0-or-later
#include "cropframe.h"
#include "drawviewfixture.h"
#include "guardedtest.h"
#include "lxgpudrawitem.h"

#include <QGraphicsScene>
#include <QOpenGLWidget>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

const char glViewportLine[] =
    "[drawviewbase.cpp:589 DrawViewBase::SetGPUDrawView] DrawViewBase::SetGPUDrawView()";

/// A view whose viewport somebody gave a margin.
class MarginView : public DrawViewBase
{
public:
    MarginView()
        : DrawViewBase(nullptr)
    {
        setViewportMargins(5, 6, 7, 8);
    }

    using QAbstractScrollArea::viewportMargins;
};

/// A viewport that switches its view to CPU drawing as soon as it is there.
class LeavingViewport : public QWidget
{
public:
    explicit LeavingViewport(DrawViewBase *view)
        : m_view(view)
        , m_replaced(view->viewport())
    {
    }

    bool detached = false; ///< the viewport before this one was taken out of the view

protected:
    void showEvent(QShowEvent *) override
    {
        m_view->SetCPUDraw(true);
        detached = m_replaced && !m_replaced->parentWidget();
    }

private:
    DrawViewBase *m_view;
    QPointer<QWidget> m_replaced;
};

bool IsCropFrameOnTop(const DrawViewBase *view)
{
    return view->childAt(view->rect().center()) == view->GetCropFrame();
}

} // namespace

/// The change between CPU and GPU drawing.
class TestDrawViewModes : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void switchingToGPUDrawing();
    void switchingTwiceChangesNothing();
    void switchingWithoutASceneIsWarnedOf();
    void switchingBackAndForthLeavesNothingBehind();
    void zoomedPictureIsTakenIntoTheHostAndBack();
    void shownPartIsKept();
    void cropFrameStaysOnTop();
    void cropFrameFollowsTheViewIntoTheHost();
    void pausedPictureIsShownAfterGPUDrawing();
    void scaleSetUnderTheCropFrameIsTakenAlong();
    void marginsAreTakenAway();
    void replacedViewportIsMadeAnew();
    void replacedViewportIsDetached();
    void removedWithItsItem();
    void nobodyHearsOfItsEnd();
};

void TestDrawViewModes::switchingToGPUDrawing()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.LogSignals();
    fixture.view->SetGPUDrawView();
    QVERIFY(fixture.view->IsGPUDraw());
    QVERIFY(qobject_cast<QOpenGLWidget *>(fixture.view->viewport()));
    QVERIFY(fixture.view->viewport()->hasMouseTracking());
    QCOMPARE(fixture.view->viewport()->geometry(), fixture.view->rect());
    QCOMPARE(fixture.view->scene()->items().size(), 1);
    QCOMPARE(DebugLines(), QStringList(glViewportLine));
    QCOMPARE(CallLog::Calls(),
             (QStringList{ "signalUpdateHorizontalScrollBar()", "signalUpdateVerticalScrollBar()" }));
    QCOMPARE(fixture.view->GetGPUViewRect(), QRectF(0, 0, 1, 1));
    // The crop frame is the topmost child.
    QCOMPARE(fixture.view->children().last(), static_cast<QObject *>(fixture.view->GetCropFrame()));
}

void TestDrawViewModes::switchingTwiceChangesNothing()
{
    DrawViewFixture fixture;
    fixture.view->SetCPUDraw(true);
    QVERIFY(!fixture.view->IsGPUDraw());
    fixture.view->SetCPUDraw(false);
    const QWidget *viewport = fixture.view->viewport();
    fixture.view->SetCPUDraw(false);
    QCOMPARE(static_cast<const QWidget *>(fixture.view->viewport()), viewport);
    QCOMPARE(fixture.view->scene()->items().size(), 1);
    QCOMPARE(DebugLines(), QStringList(glViewportLine));
}

void TestDrawViewModes::switchingWithoutASceneIsWarnedOf()
{
    DrawViewFixture fixture;
    const std::unique_ptr<QGraphicsScene> scene(fixture.view->scene());
    fixture.view->setScene(nullptr);
    ExpectWarning(QRegularExpression("^DrawViewBase::SetGPUDrawView\\(\\): Failed to create LxGPUDrawItem$"));
    fixture.view->SetGPUDrawView();
    QVERIFY(!fixture.view->IsGPUDraw());
}

void TestDrawViewModes::switchingBackAndForthLeavesNothingBehind()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    const int children = fixture.view->findChildren<QObject *>().size();
    for (int i = 0; i < 20; ++i) {
        fixture.host.slotSetCPUDraw(false);
        QVERIFY(fixture.view->IsGPUDraw());
        const QPointer<QWidget> viewport = fixture.view->viewport();
        fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }, i));
        QApplication::processEvents();

        fixture.host.slotSetCPUDraw(true);
        QVERIFY(!viewport);
        QVERIFY(!qobject_cast<QOpenGLWidget *>(fixture.view->viewport()));
        QVERIFY(fixture.view->viewport()->hasMouseTracking());
        QVERIFY(fixture.view->scene()->items().isEmpty());
        QCOMPARE(fixture.view->viewportUpdateMode(), QGraphicsView::MinimalViewportUpdate);
        QCOMPARE(fixture.view->findChildren<QObject *>().size(), children);
        QCOMPARE(DebugLines().count("LxCamGPURender::~LxCamGPURender()"), i + 1);
    }
    QCOMPARE(DebugLines().count(glViewportLine), 20);
}

void TestDrawViewModes::zoomedPictureIsTakenIntoTheHostAndBack()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 4096, 4096 }));
    fixture.view->slotSetScaleFactor(32.0);
    fixture.host.slotSetCPUDraw(false);
    // No viewport of 131072 pixels for OpenGL.
    QCOMPARE(fixture.view->size(), QSize(400, 300));
    QVERIFY(fixture.host.findChild<QScrollBar *>("horizontalScrollBar")->isVisible());
    QVERIFY(fixture.host.findChild<QScrollBar *>("verticalScrollBar")->isVisible());
    QCOMPARE(fixture.Scale(), 32.0);

    fixture.host.slotSetCPUDraw(true);
    QCOMPARE(fixture.view->size(), QSize(131072, 131072));
    QVERIFY(!fixture.host.findChild<QScrollBar *>("horizontalScrollBar")->isVisible());
}

void TestDrawViewModes::shownPartIsKept()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 4000, 3200 }));
    fixture.view->slotSetScaleFactor(2.0);
    fixture.frame->SetSliderPosition({ 3000, 2500 });
    fixture.host.slotSetCPUDraw(false);
    QCOMPARE(fixture.FrameScroll(), QPoint(0, 0));
    QCOMPARE(fixture.ViewScroll(), QPoint(3000, 2500));
    QCOMPARE(float(fixture.view->GetGPUViewRect().x()), 3000.0F / 8000);
    QCOMPARE(float(fixture.view->GetGPUViewRect().y()), 2500.0F / 6400);
    QCOMPARE(fixture.host.findChild<QScrollBar *>("verticalScrollBar")->value(), 2500);

    fixture.view->slotHorizontalScrollBarValueChanged(3100);
    fixture.host.slotSetCPUDraw(true);
    QCOMPARE(fixture.FrameScroll(), QPoint(3100, 2500));
    QCOMPARE(fixture.ViewScroll(), QPoint(0, 0));
}

void TestDrawViewModes::cropFrameStaysOnTop()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 800, 400 }));
    fixture.view->GetCropFrame()->show();
    for (bool cpuDraw : { false, true, false, true }) {
        fixture.host.slotSetCPUDraw(cpuDraw);
        QVERIFY(IsCropFrameOnTop(fixture.view));
    }
}

void TestDrawViewModes::cropFrameFollowsTheViewIntoTheHost()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->slotPaintPreview(GreyPicture({ 2000, 1600 }));
    fixture.view->slotZoom1v1();
    fixture.view->GetCropFrame()->show();
    QCOMPARE(fixture.view->GetCropFrame()->size(), QSize(2000, 1600));
    fixture.host.slotSetCPUDraw(false);
    QCOMPARE(fixture.view->size(), QSize(400, 300));
    QCOMPARE(fixture.view->GetCropFrame()->size(), QSize(400, 300));
    QVERIFY(fixture.host.findChild<QScrollBar *>("horizontalScrollBar")->isVisible());
    QVERIFY(fixture.host.findChild<QScrollBar *>("verticalScrollBar")->isVisible());

    fixture.host.slotSetCPUDraw(true);
    QCOMPARE(fixture.view->GetCropFrame()->size(), QSize(2000, 1600));
}

void TestDrawViewModes::pausedPictureIsShownAfterGPUDrawing()
{
    DrawViewFixture fixture;
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.host.slotSetCPUDraw(false);
    const QImage last = GreyPicture({ 250, 200 }, 5);
    fixture.view->slotPaintPreview(last);
    fixture.view->slotZoom1v1();
    fixture.host.slotSetCPUDraw(true);
    QCOMPARE(fixture.view->scene()->backgroundBrush().texture().toImage(), last);
    QCOMPARE(fixture.view->grab().toImage().convertToFormat(QImage::Format_RGB32),
             last.convertToFormat(QImage::Format_RGB32));
}

void TestDrawViewModes::scaleSetUnderTheCropFrameIsTakenAlong()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.host.slotSetCPUDraw(false);
    fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
    fixture.view->slotZoom1v1();
    fixture.view->GetCropFrame()->show();
    fixture.view->slotZoomOut();
    QCOMPARE(fixture.report.GetScaleFactor(), 1.0F);
    // At 0.5 the picture is as large as the view already is.
    fixture.host.slotSetCPUDraw(true);
    QCOMPARE(fixture.view->size(), QSize(400, 300));
    QCOMPARE(fixture.report.GetScaleFactor(), 0.5F);
}

void TestDrawViewModes::marginsAreTakenAway()
{
    FakeServices services;
    MarginView view;
    view.SetGPUDrawView();
    QCOMPARE(view.viewportMargins(), QMargins());
}

void TestDrawViewModes::replacedViewportIsMadeAnew()
{
    DrawViewFixture fixture;
    fixture.view->SetGPUDrawView();
    fixture.view->setViewport(new QWidget);
    fixture.view->SetCPUDraw(true);
    QVERIFY(!fixture.view->IsGPUDraw());
    fixture.view->SetGPUDrawView();
    QVERIFY(qobject_cast<QOpenGLWidget *>(fixture.view->viewport()));
    QCOMPARE(DebugLines().count(glViewportLine), 2);
}

void TestDrawViewModes::replacedViewportIsDetached()
{
    DrawViewFixture fixture;
    QVERIFY(fixture.Show());
    fixture.view->SetGPUDrawView();
    auto *viewport = new LeavingViewport(fixture.view);
    fixture.view->setViewport(viewport);
    QVERIFY(viewport->detached);
    QVERIFY(!fixture.view->IsGPUDraw());
    QCOMPARE(fixture.view->viewport(), static_cast<QWidget *>(viewport));
}

void TestDrawViewModes::removedWithItsItem()
{
    {
        DrawViewFixture fixture;
        QVERIFY(fixture.Show());
        fixture.view->SetGPUDrawView();
        fixture.view->slotPaintPreview(GreyPicture({ 800, 600 }));
        QApplication::processEvents();
    }
    QCOMPARE(DebugLines().last(), QString("LxCamGPURender::~LxCamGPURender()"));
}

void TestDrawViewModes::nobodyHearsOfItsEnd()
{
    QStringList heard;
    {
        DrawViewFixture fixture;
        connect(fixture.view, &QObject::destroyed, this, [&] { heard << "view"; });
        connect(fixture.view->scene(), &QObject::destroyed, this, [&] { heard << "scene"; });
    }
    QCOMPARE(heard, QStringList("scene")); // what was connected to the view is not any more
}

GUARDED_TEST_MAIN(TestDrawViewModes)
#include "tst_drawviewmodes.moc"
