// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraspectrumstackedwidget.h"
#include "imagespectrumstackedwidget.h"

#include "drawviewfixture.h"
#include "guardedtest.h"
#include "plotpage.h"
#include "shellfixture.h"
#include "spectrum3ddrawframebase.h"
#include "spectrum3ddrawviewbase.h"
#include "spectrumzoomui.h"

#include <qwt3d_surfaceplot.h>

#include <memory>

class SpectrumStacksTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void slotsInOrder();
    void pageFollowsDisplayMode_data();
    void pageFollowsDisplayMode();
    void plot3DIsMadeOnce();
    void plot3DHasTheSizeOfTheOthers();
    void wiresOfThe3DPlot_data();
    void wiresOfThe3DPlot();
    void resizesAllPages();
    void wiresOfTheLivePlot();
    void livePayloadsAreQueued();
    void wiresOfThePicturesPlot();
    void curveOfAPictureIsDrawn();
    void newPropertiesReachThePlot();
    void newAreaOfTheLivePicture();
    void useAreaChange_data();
    void useAreaChange();
    void newAreaOfTheOpenFile_data();
    void newAreaOfTheOpenFile();
    void newAreaWithoutAPicture();
    void spectrumFileStartsHorizontal();
};

void SpectrumStacksTest::slotsInOrder()
{
    QCOMPARE(OwnMethods(SpectrumStackedWidgetBase::staticMetaObject), QStringList("slotDisplayModeChange()"));
    QCOMPARE(OwnMethods(CameraSpectrumStackedWidget::staticMetaObject),
             QStringList({ "SlotNewArea(double,double,double,double)", "SlotUpdateUseArea()" }));
    QCOMPARE(OwnMethods(ImageSpectrumStackedWidget::staticMetaObject),
             QStringList({ "slotNewArea(double,double,double,double)", "slotOpenSpefile()" }));
}

void SpectrumStacksTest::pageFollowsDisplayMode_data()
{
    QTest::addColumn<bool>("physics");
    QTest::addColumn<bool>("plot2D");
    QTest::addColumn<bool>("peak2D");
    QTest::addColumn<bool>("plot3D");
    QTest::addColumn<int>("page");
    QTest::newRow("physics") << true << false << false << false << 0;
    QTest::newRow("physics first") << true << true << true << true << 0;
    QTest::newRow("2D") << false << true << false << false << 1;
    QTest::newRow("2D peak") << false << false << true << false << 1;
    QTest::newRow("3D") << false << false << false << true << 2;
}

void SpectrumStacksTest::pageFollowsDisplayMode()
{
    QFETCH(bool, physics);
    QFETCH(bool, plot2D);
    QFETCH(bool, peak2D);
    QFETCH(bool, plot3D);
    QFETCH(int, page);
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    QCOMPARE(stack.count(), 3);
    stack.setCurrentIndex(page == 0 ? 2 : 0);
    services.spectrumUI.displayModePhysics = physics;
    services.spectrumUI.displayMode2D = plot2D;
    services.spectrumUI.displayMode2DPeak = peak2D;
    services.spectrumUI.displayMode3D = plot3D;
    stack.slotDisplayModeChange();
    QCOMPARE(stack.currentIndex(), page);

    services.spectrumUI.displayModePhysics = services.spectrumUI.displayMode2D = false;
    services.spectrumUI.displayMode2DPeak = services.spectrumUI.displayMode3D = false;
    stack.slotDisplayModeChange(); // a mode that is none of them
    QCOMPARE(stack.currentIndex(), page);
}

void SpectrumStacksTest::wiresOfThe3DPlot_data()
{
    QTest::addColumn<bool>("live");
    QTest::newRow("live") << true;
    QTest::newRow("opened picture") << false;
}

void SpectrumStacksTest::wiresOfThe3DPlot()
{
    QFETCH(bool, live);
    ShellServices services;
    services.spectrumUI.displayModeGeneral = false;
    services.spectrumUI.displayMode3D = true;
    std::unique_ptr<SpectrumStackedWidgetBase> stack;
    if (live)
        stack = std::make_unique<CameraSpectrumStackedWidget>(nullptr);
    else
        stack = std::make_unique<ImageSpectrumStackedWidget>(nullptr);
    stack->slotDisplayModeChange();
    auto *view = stack->findChild<Spectrum3DDrawViewBase *>();
    QVERIFY(view);
    auto *plot = view->findChild<Qwt3D::SurfacePlot *>();
    auto *bar = view->findChild<SpectrumZoomUI *>();
    const QVector<Wire> wires{
        { plot, SIGNAL(rotationChanged(double, double, double)), view,
          SLOT(Slot3DViewRotationChanged(double, double, double)) },
        { plot, SIGNAL(zoomChanged(double)), view, SLOT(Slot3DZoomChanged(double)) },
        { &services.spectrum, SIGNAL(SignalUpdateMultiTrack(void *)), view, SLOT(SlotUpdateMultiTrack(void *)) },
        { bar, SIGNAL(SignalZoomIn()), view, SLOT(SlotZoomIn()) },
        { bar, SIGNAL(SignalZoomOut()), view, SLOT(SlotZoomOut()) },
        { bar, SIGNAL(SignalZoomReset()), view, SLOT(SlotZoomReset()) },
        { bar, SIGNAL(SignalHorizontalZoomIn()), view, SLOT(SlotHorizontalZoomIn()) },
        { bar, SIGNAL(SignalHorizontalZoomOut()), view, SLOT(SlotHorizontalZoomOut()) },
        { &services.spectrumUI, SIGNAL(SignalSpectralPropertyChanged()), view, SLOT(SlotSpectralPropertyChanged()) },
    };
    QCOMPARE(MissingWires(wires), QStringList());
}

void SpectrumStacksTest::resizesAllPages()
{
    ShellServices services;
    ImageSpectrumStackedWidget stack(nullptr);
    stack.resize(411, 305);
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    for (int page = 0; page < 3; ++page)
        QCOMPARE(stack.widget(page)->size(), QSize(411, 305));
}

void SpectrumStacksTest::plot3DIsMadeOnce()
{
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    QPointer<QWidget> placeholder = stack.widget(2);
    QCOMPARE(QString(placeholder->metaObject()->className()), QString("QWidget"));
    services.spectrumUI.displayMode3D = true;
    stack.slotDisplayModeChange();
    QCOMPARE(stack.count(), 3);
    auto *page = qobject_cast<Spectrum3DDrawFrameBase *>(stack.widget(2));
    QVERIFY(page);
    QCOMPARE(stack.currentWidget(), page);
    QVERIFY(placeholder);
    QCOMPARE(placeholder->parentWidget(), &stack);
    services.spectrumUI.displayMode3D = false;
    services.spectrumUI.displayMode2D = true;
    stack.slotDisplayModeChange();
    services.spectrumUI.displayMode2D = false;
    services.spectrumUI.displayMode3D = true;
    stack.slotDisplayModeChange();
    QCOMPARE(stack.currentWidget(), page);
    QCOMPARE(stack.findChildren<Spectrum3DDrawFrameBase *>().size(), 1);
}

void SpectrumStacksTest::plot3DHasTheSizeOfTheOthers()
{
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    stack.resize(500, 400);
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    services.spectrumUI.displayMode3D = true;
    stack.slotDisplayModeChange();
    QTRY_COMPARE(stack.widget(2)->size(), QSize(500, 400));
    stack.resize(600, 450);
    QTRY_COMPARE(stack.widget(1)->size(), QSize(600, 450));
    QCOMPARE(stack.widget(2)->size(), QSize(600, 450));
}

void SpectrumStacksTest::wiresOfTheLivePlot()
{
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    auto *plot = qobject_cast<Spectrum2DDrawFrameBase *>(stack.widget(1));
    QVERIFY(plot);
    const QVector<Wire> wires{
        { &services.spectrumUI, SIGNAL(SignalSpectralPropertyChanged()), plot,
          SLOT(SlotSpectralPropertyChanged()) },
        { &services.intensity, SIGNAL(SignalUpdateCurve(void *)), plot, SLOT(SlotUpdateCurve(void *)) },
        { &services.spectrum, SIGNAL(SignalUpdateFVB(void *)), plot, SLOT(SlotUpdateFVB(void *)) },
        { &services.spectrum, SIGNAL(SignalUpdateMultiTrack(void *)), plot,
          SLOT(SlotUpdateMultiTrack(void *)) },
        { &services.spectrumUI, SIGNAL(SignalMultiTrackOnFlagChanged()), plot,
          SLOT(SlotMultitrackOnFlagChanged()) },
        { &services.useArea, SIGNAL(signalUpdateUseArea()), &stack, SLOT(SlotUpdateUseArea()) },
    };
    QCOMPARE(MissingWires(wires), QStringList());
}

void SpectrumStacksTest::livePayloadsAreQueued()
{
    ShellServices services;
    services.frame.frameWidth = 3;
    services.spectrumUI.displayModeGeneral = false;
    services.spectrumUI.displayMode2D = true;
    CameraSpectrumStackedWidget stack(nullptr);
    stack.resize(600, 400);
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    auto *graph = stack.widget(1)->findChild<QCustomPlot *>()->graph(0);
    const auto drawn = [graph] {
        return graph->data()->isEmpty() ? -1.0 : graph->data()->constBegin()->value;
    };

    CurvePayload curve({ 11, 0, 0 }, { 12 });
    LinePayload fvb({ 21, 0, 0 });
    LinePayload tracks({ 31, 0, 0 });
    emit services.intensity.SignalUpdateCurve(curve.Param());
    QCOMPARE(drawn(), -1.0);
    QCoreApplication::processEvents();
    QCOMPARE(drawn(), 11.0);
    emit services.spectrum.SignalUpdateFVB(fvb.Param());
    QCOMPARE(drawn(), 11.0);
    QCoreApplication::processEvents();
    QCOMPARE(drawn(), 21.0);
    emit services.spectrum.SignalUpdateMultiTrack(tracks.Param());
    QCOMPARE(drawn(), 21.0);
    QCoreApplication::processEvents();
    QCOMPARE(drawn(), 31.0);
}

void SpectrumStacksTest::wiresOfThePicturesPlot()
{
    ShellServices services;
    ImageSpectrumStackedWidget stack(nullptr);
    auto *plot = qobject_cast<Spectrum2DDrawFrameBase *>(stack.widget(1));
    QVERIFY(plot);
    const QVector<Wire> wires{
        { &services.spectrumUI, SIGNAL(SignalSpectralPropertyChanged()), plot,
          SLOT(SlotSpectralPropertyChanged()) },
        { &services.active, SIGNAL(sglUpdateHorizontalCurve(int *, int, int, int)), plot,
          SLOT(SlotUpdateImageHorizontalCurve(int *, int, int, int)) },
        { &services.active, SIGNAL(sglUpdateVerticalCurve(int *, int, int, int)), plot,
          SLOT(SlotUpdateImageVerticalCurve(int *, int, int, int)) },
        { &services.active, SIGNAL(signalOpenSpefile()), &stack, SLOT(slotOpenSpefile()) },
    };
    QCOMPARE(MissingWires(wires), QStringList());
}

void SpectrumStacksTest::curveOfAPictureIsDrawn()
{
    ShellServices services;
    ImageSpectrumStackedWidget stack(nullptr);
    stack.resize(600, 400);
    stack.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stack));
    int row[] = { 10, 4000, 200 };
    CallLog::Clear();
    emit services.active.sglUpdateHorizontalCurve(row, 3, 0, 3);
    // The page knows that it shows a file: it looks for peaks in any mode.
    QCOMPARE(CallLog::Calls(), QStringList("AlgSpectrometer::Findcurvepeak(3, 3, 15, 10, 0)"));
    QCOMPARE(stack.widget(1)->findChild<QCustomPlot *>()->graph(0)->data()->size(), 3);
}

void SpectrumStacksTest::newPropertiesReachThePlot()
{
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    services.spectrumUI.linePen = QPen(Qt::magenta, 2);
    emit services.spectrumUI.SignalSpectralPropertyChanged();
    QCOMPARE(stack.widget(1)->findChild<QCustomPlot *>()->graph(0)->pen(), QPen(Qt::magenta, 2));
}

void SpectrumStacksTest::newAreaOfTheLivePicture()
{
    ShellServices services;
    CameraSpectrumStackedWidget stack(nullptr);
    CallLog::Clear();
    stack.SlotNewArea(1, 2, 3, 4);
    QCOMPARE(CallLog::Calls(), QStringList({ "DisplayModeUIManager::SetImageExpansionAreaFlag(false)",
                                             "SpectrumUIManager::SlotNewArea(1, 2, 3, 4)" }));
}

void SpectrumStacksTest::useAreaChange_data()
{
    QTest::addColumn<int>("useArea");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<bool>("general");
    QTest::newRow("spectrum") << 1 << false << false;
    QTest::newRow("spectrum hidden") << 1 << true << true;
    QTest::newRow("other") << 0 << false << true;
}

void SpectrumStacksTest::useAreaChange()
{
    QFETCH(int, useArea);
    QFETCH(bool, hidden);
    QFETCH(bool, general);
    ShellServices services;
    services.useArea.useAreaType = useArea;
    services.useArea.spectrumHidden = hidden;
    CameraSpectrumStackedWidget stack(nullptr);
    CallLog::Clear();
    emit services.useArea.signalUpdateUseArea();
    QStringList calls{ "SpectrumUIManager::SetFocusAssitanceFlag(false)",
                       "SpectrumUIManager::SetFVBOnFlag(0)",
                       "SpectrumUIManager::SetMultiTrackOnFlag(false)" };
    if (general)
        calls << "SpectrumUIManager::SetDisplayModeGeneral()";
    calls << "UIConfigManager::UpdateCameraControlUI()";
    QCOMPARE(CallLog::Calls(), calls);
}

void SpectrumStacksTest::newAreaOfTheOpenFile_data()
{
    QTest::addColumn<QString>("area");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("valid");
    QTest::newRow("accepted") << "1,2" << true << "true";
    QTest::newRow("refused") << "x" << false << "false";
    QTest::newRow("empty") << "" << true << "false";
    QTest::newRow("none") << QString() << true << "false";
}

void SpectrumStacksTest::newAreaOfTheOpenFile()
{
    QFETCH(QString, area);
    QFETCH(bool, accepted);
    QFETCH(QString, valid);
    ShellServices services;
    services.active.expansionArea = area;
    services.spectrumUI.validConversationResult = accepted;
    ImageSpectrumStackedWidget stack(nullptr);
    CallLog::Clear();
    stack.slotNewArea(1, 2, 3, 4);
    QCOMPARE(CallLog::Calls(), QStringList({ "DisplayModeUIManager::SetImageExpansionAreaFlag(" + valid + ")",
                                             "DisplayModeUIManager::SetImageExpansionArea(" + area + ")",
                                             "SpectrumUIManager::SlotImageNewArea(1, 2, 3, 4)" }));
}

void SpectrumStacksTest::newAreaWithoutAPicture()
{
    ShellServices services;
    services.spectrumUI.validConversationResult = true;
    ImageSpectrumStackedWidget stack(nullptr);
    services.global.activeImageManager = nullptr;
    CallLog::Clear();
    stack.slotNewArea(1, 2, 3, 4);
    QCOMPARE(CallLog::Calls(), QStringList({ "DisplayModeUIManager::SetImageExpansionAreaFlag(false)",
                                             "DisplayModeUIManager::SetImageExpansionArea()",
                                             "SpectrumUIManager::SlotImageNewArea(1, 2, 3, 4)" }));
}

void SpectrumStacksTest::spectrumFileStartsHorizontal()
{
    ShellServices services;
    ImageSpectrumStackedWidget stack(nullptr);
    CallLog::Clear();
    emit services.active.signalOpenSpefile();
    QCOMPARE(CallLog::Calls(), QStringList("SpectrumUIManager::SetDirectionHorizontal()"));
}

GUARDED_TEST_MAIN(SpectrumStacksTest)
#include "tst_spectrumstacks.moc"
