// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerastackedwidget.h"

#include "drawviewbase.h"
#include "focusinfo.h"
#include "globalnotify.h"
#include "guardedtest.h"
#include "shellfixture.h"

#include <QGraphicsItem>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QPainterPath>
#include <QPen>

namespace {

/// Keeps the ids it was notified of.
class Observer : public LxObserver
{
public:
    Observer() { GlobalAttachObserver(this); }
    ~Observer() override { GlobalDetachObserver(this); }
    void UpdateObserver(int id, void *data) override
    {
        ids << id;
        withData = withData || data;
    }

    QVector<int> ids;
    bool withData = false;
};

/// The camera page with a picture in it.
struct Page
{
    Page()
        : stack(nullptr)
        , scene(stack.GetMainDrawView()->scene())
    {
        stack.GetMainDrawView()->slotPaintPreview(QImage(400, 300, QImage::Format_Grayscale8));
        CallLog::Clear();
    }

    QList<FocusInfo *> Overlays() const { return scene->findChildren<FocusInfo *>(); }
    int VisibleMarks() const
    {
        int marks = 0;
        for (const QGraphicsItem *item : scene->items())
            marks += item->isVisible() && !(item->flags() & QGraphicsItem::ItemHasNoContents);
        return marks;
    }

    CameraStackedWidget stack;
    QGraphicsScene *scene;
};

void DragBand(FocusInfo *overlay, int top, int bottom)
{
    QMetaObject::invokeMethod(overlay->GetFVBLineObject(), "SignalTopBottomChanged", Q_ARG(int, top),
                              Q_ARG(int, bottom));
}

} // namespace

class CameraOverlaysTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void bandIsFoundBetweenEndPoints_data();
    void bandIsFoundBetweenEndPoints();
    void bandSetByHandIsShownOnce_data();
    void bandSetByHandIsShownOnce();
    void bandHasItsRowsAndItsMovability_data();
    void bandHasItsRowsAndItsMovability();
    void noBand_data();
    void noBand();
    void oneEndPointIsNoBand();
    void everyBandSignalConnectsAgain();
    void bandLineIsWired();
    void draggedBandIsStored();
    void closingTheBandTwice();
    void modeAllClosesTheBand();
    void tracksAreShownAndTakenAway();
    void noTracksLeaveNoOverlay();
    void focusLinesAreShown();
    void focusLinesAreAsChosen_data();
    void focusLinesAreAsChosen();
    void focusWithoutAngles();
    void focusOffClearsLines();
    void focusOffHidesTheCrossLine();
    void closingFocusAssistance();
    void crossLineIsWired();
};

void CameraOverlaysTest::bandIsFoundBetweenEndPoints_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<double>("second");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::newRow("downwards") << 120.7 << 40.2 << 40 << 120;
    QTest::newRow("upwards") << 40.2 << 120.7 << 40 << 120;
    QTest::newRow("one row") << 55.9 << 55.9 << 55 << 55;
    QTest::newRow("from the edge") << 0.0 << 299.99 << 0 << 299;
}

void CameraOverlaysTest::bandIsFoundBetweenEndPoints()
{
    QFETCH(double, first);
    QFETCH(double, second);
    QFETCH(int, top);
    QFETCH(int, bottom);
    ShellServices services;
    services.spectrumUI.fvbOnFlag = 1;
    services.spectrumUI.fvbModeAuto = true;
    services.spectrum.endPointList = { QPointF(0, first), QPointF(399, second), QPointF(5, 1) };
    Page page;
    Observer observer;
    emit services.spectrum.SignalSpectralineFVB();
    QCOMPARE(CallLog::Calls(), QStringList({ QString("SpectrumUIManager::SetTop(%1)").arg(top),
                                             QString("SpectrumUIManager::SetBottom(%1)").arg(bottom) }));
    QCOMPARE(observer.ids, QVector<int>{ 90 });
    QVERIFY(!observer.withData);
    QCOMPARE(page.Overlays().size(), 1);
    QVERIFY(page.VisibleMarks() > 0);
}

void CameraOverlaysTest::bandSetByHandIsShownOnce_data()
{
    QTest::addColumn<bool>("automatic");
    QTest::newRow("by hand") << false;
    QTest::newRow("by hand after it was found") << true;
}

void CameraOverlaysTest::bandSetByHandIsShownOnce()
{
    QFETCH(bool, automatic);
    ShellServices services;
    services.spectrumUI.fvbOnFlag = 1;
    services.spectrumUI.manualFlag = true;
    services.spectrumUI.fvbModeAuto = automatic;
    services.spectrumUI.top = 30;
    services.spectrumUI.bottom = 80;
    services.spectrum.endPointList = { QPointF(0, 1), QPointF(0, 2) };
    Page page;
    Observer observer;
    emit services.spectrum.SignalSpectralineFVB();
    QCOMPARE(observer.ids, QVector<int>{ 90 });
    QCOMPARE(page.Overlays().size(), 1);
    emit services.spectrum.SignalSpectralineFVB();
    QCOMPARE(observer.ids, QVector<int>{ 90 });
    QCOMPARE(page.Overlays().size(), 1);
    QCOMPARE(CallLog::Calls(), QStringList());
    DragBand(page.Overlays().first(), 31, 81); // connected once
    QCOMPARE(CallLog::Count("SpectrumUIManager::SetTop(31)"), 1);
}

void CameraOverlaysTest::bandHasItsRowsAndItsMovability_data()
{
    QTest::addColumn<bool>("manual");
    QTest::addColumn<bool>("automatic");
    QTest::addColumn<QVector<int>>("edges");
    QTest::newRow("set by hand") << true << false << QVector<int>{ 30, 80 };
    QTest::newRow("set by hand after it was found") << true << true << QVector<int>{ 30, 80 };
    QTest::newRow("found") << false << true << QVector<int>{ 150, 250 };
}

void CameraOverlaysTest::bandHasItsRowsAndItsMovability()
{
    QFETCH(bool, manual);
    QFETCH(bool, automatic);
    QFETCH(QVector<int>, edges);
    ShellServices services;
    services.spectrumUI.fvbOnFlag = 1;
    services.spectrumUI.fvbModeAuto = automatic;
    services.spectrumUI.manualFlag = manual;
    services.spectrumUI.top = 30;
    services.spectrumUI.bottom = 80;
    services.spectrum.endPointList = { QPointF(7, 150.6), QPointF(9, 250.3) };
    Page page;
    emit services.spectrum.SignalSpectralineFVB();
    const auto *line = qobject_cast<QGraphicsObject *>(page.Overlays().first()->GetFVBLineObject());
    QVERIFY(line);
    for (const int row : { 30, 80, 150, 250 }) // where the mouse finds an edge
        QCOMPARE(line->shape().contains(QPointF(200, row)), edges.contains(row));
    QCOMPARE(line->acceptedMouseButtons() != Qt::NoButton, manual);
}

void CameraOverlaysTest::noBand_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("all");
    QTest::addColumn<int>("endPoints");
    QTest::newRow("no end points") << true << false << 0;
    QTest::newRow("off") << false << false << 2;
    QTest::newRow("all rows") << true << true << 2;
}

void CameraOverlaysTest::noBand()
{
    QFETCH(bool, on);
    QFETCH(bool, all);
    QFETCH(int, endPoints);
    ShellServices services;
    services.spectrumUI.fvbOnFlag = on;
    services.spectrumUI.fvbModeAll = all;
    services.spectrumUI.fvbModeAuto = true;
    for (int i = 0; i < endPoints; ++i)
        services.spectrum.endPointList << QPointF(i, i);
    Page page;
    Observer observer;
    emit services.spectrum.SignalSpectralineFVB();
    QVERIFY(page.Overlays().isEmpty());
    QVERIFY(observer.ids.isEmpty());
    QCOMPARE(CallLog::Calls(), QStringList());
}

void CameraOverlaysTest::oneEndPointIsNoBand()
{
    ShellServices services;
    services.spectrumUI.fvbOnFlag = 1;
    services.spectrumUI.fvbModeAuto = true;
    services.spectrum.endPointList = { QPointF(3, 4) };
    Page page;
    Observer observer;
    emit services.spectrum.SignalSpectralineFVB();
    QCOMPARE(CallLog::Calls(), QStringList());
    QVERIFY(observer.ids.isEmpty());
    QCOMPARE(page.VisibleMarks(), 0);
}

void CameraOverlaysTest::everyBandSignalConnectsAgain()
{
    ShellServices services;
    services.spectrumUI.fvbOnFlag = 1;
    services.spectrumUI.fvbModeAuto = true;
    services.spectrum.endPointList = { QPointF(0, 10), QPointF(0, 20) };
    Page page;
    Observer observer;
    emit services.spectrum.SignalSpectralineFVB();
    emit services.spectrum.SignalSpectralineFVB();
    QCOMPARE(page.Overlays().size(), 1);
    QCOMPARE(observer.ids, QVector<int>({ 90, 90 }));
    DragBand(page.Overlays().first(), 11, 19);
    QCOMPARE(CallLog::Count("SpectrumUIManager::SetTop(11)"), 2);
}

void CameraOverlaysTest::bandLineIsWired()
{
    ShellServices services;
    services.spectrumUI.fvbOnFlag = 1;
    services.spectrumUI.fvbModeAuto = true;
    services.spectrum.endPointList = { QPointF(0, 10), QPointF(0, 20) };
    Page page;
    emit services.spectrum.SignalSpectralineFVB();
    QObject *line = page.Overlays().first()->GetFVBLineObject();
    QCOMPARE(MissingWires({
                 { line, SIGNAL(SignalTopBottomChanged(int, int)), &page.stack,
                   SLOT(SlotTopBottomChanged(int, int)) },
                 { &services.spectrumUI, SIGNAL(SignalTopBottomChanged(QPointF, QPointF)), line,
                   SLOT(SetFVBArea(QPointF, QPointF)) },
                 { &services.spectrumUI, SIGNAL(SignalFVBManualFlagChanged(bool)), line,
                   SLOT(SlotFVBManualFlagChanged(bool)) },
                 { &services.spectrumUI, SIGNAL(SignalFVBSpeedingFlagChanged(bool)), line,
                   SLOT(SlotFVBSpeedingFlagChanged(bool)) },
             }),
             QStringList());
}

void CameraOverlaysTest::draggedBandIsStored()
{
    ShellServices services;
    Page page;
    Observer observer;
    page.stack.SlotTopBottomChanged(17, 93);
    QCOMPARE(CallLog::Calls(),
             QStringList({ "SpectrumUIManager::SetTop(17)", "SpectrumUIManager::SetBottom(93)" }));
    QCOMPARE(observer.ids, QVector<int>{ 90 });
    QVERIFY(!observer.withData);
}

void CameraOverlaysTest::closingTheBandTwice()
{
    ShellServices services;
    services.spectrumUI.fvbOnFlag = 1;
    services.spectrumUI.fvbModeAuto = true;
    services.spectrum.endPointList = { QPointF(0, 10), QPointF(0, 20) };
    Page page;
    emit services.spectrum.SignalSpectralineFVB();
    QVERIFY(page.VisibleMarks() > 0);
    emit services.spectrumUI.SignalFVBClose();
    QCOMPARE(page.VisibleMarks(), 0);
    const QList<FocusInfo *> forgotten = page.Overlays();
    emit services.spectrumUI.SignalFVBClose();
    QCOMPARE(page.Overlays(), forgotten);
    QCOMPARE(DebugLines().count("CameraStackedWidget::SlotFVBClose"), 2);

    emit services.spectrum.SignalSpectralineFVB(); // a fresh overlay
    QCOMPARE(page.Overlays().size(), forgotten.size() + 1);
    QVERIFY(page.VisibleMarks() > 0);
}

void CameraOverlaysTest::modeAllClosesTheBand()
{
    ShellServices services;
    services.spectrumUI.fvbOnFlag = 1;
    services.spectrumUI.fvbModeAuto = true;
    services.spectrum.endPointList = { QPointF(0, 10), QPointF(0, 20) };
    Page page;
    emit services.spectrum.SignalSpectralineFVB();
    emit services.spectrumUI.SignalFVBModeAll();
    QCOMPARE(page.VisibleMarks(), 0);
}

void CameraOverlaysTest::tracksAreShownAndTakenAway()
{
    ShellServices services;
    services.spectrumUI.multiTrackOnFlag = true;
    services.spectrumUI.multiTrackList = { QRectF(0, 10, 400, 20), QRectF(0, 50, 400, 20) };
    Page page;
    emit services.spectrumUI.SignalMultiTrackOnFlagChanged();
    QVERIFY(page.VisibleMarks() >= 2);
    QCOMPARE(page.Overlays().size(), 1);
    QVERIFY(page.Overlays().first()->GetFVBLineObject());
    QVERIFY(!page.Overlays().first()->GetCrossLineObject());
    emit services.spectrumUI.SignalMultiTrackOnFlagChanged();
    QCOMPARE(page.Overlays().size(), 1);
    services.spectrumUI.multiTrackOnFlag = false;
    emit services.spectrumUI.SignalMultiTrackOnFlagChanged();
    QCOMPARE(page.VisibleMarks(), 0);
    services.spectrumUI.multiTrackOnFlag = true;
    emit services.spectrumUI.SignalMultiTrackOnFlagChanged();
    QVERIFY(page.VisibleMarks() >= 2);
}

void CameraOverlaysTest::noTracksLeaveNoOverlay()
{
    ShellServices services;
    Page page;
    emit services.spectrumUI.SignalMultiTrackOnFlagChanged();
    QCOMPARE(page.VisibleMarks(), 0);
    QVERIFY(page.Overlays().isEmpty());
}

void CameraOverlaysTest::focusLinesAreShown()
{
    ShellServices services;
    services.spectrumUI.focusAssitanceFlag = true;
    services.spectrum.angleList = { 1.5F };
    services.spectrum.distanceList = { 12.0F };
    services.spectrum.linePointList = { QPoint(50, 60) };
    services.spectrum.extendRectList = { QRect(40, 0, 20, 300) };
    Page page;
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    QCOMPARE(page.Overlays().size(), 1);
    QVERIFY(page.VisibleMarks() > 0);
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    QCOMPARE(page.Overlays().size(), 1);
    QCOMPARE(CallLog::Count("SpectrumManager::ClearFocusInfo()"), 0);
}

void CameraOverlaysTest::focusLinesAreAsChosen_data()
{
    QTest::addColumn<bool>("byHand");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("rectangle");
    QTest::addColumn<bool>("line");
    QTest::newRow("all, found") << false << 0 << true << true;
    QTest::newRow("all, by hand") << true << 0 << true << true;
    QTest::newRow("rectangles") << false << 1 << true << false;
    QTest::newRow("lines, by hand") << true << 2 << false << true;
}

void CameraOverlaysTest::focusLinesAreAsChosen()
{
    QFETCH(bool, byHand);
    QFETCH(int, mode);
    ShellServices services;
    services.spectrumUI.focusAssitanceFlag = true;
    services.spectrumUI.speSelectionFlag = byHand;
    services.spectrumUI.spectrumSelectionMode = mode;
    services.spectrum.angleList = { 1.5F };
    services.spectrum.distanceList = { 12.0F };
    services.spectrum.linePointList = { QPoint(50, 60) };
    services.spectrum.extendRectList = { QRect(40, 0, 20, 300) };
    Page page;
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    bool hasRectangle = false;
    bool hasLine = false;
    for (QGraphicsItem *item : page.scene->items()) {
        const auto *rectangle = qgraphicsitem_cast<QGraphicsRectItem *>(item);
        const auto *line = qgraphicsitem_cast<QGraphicsLineItem *>(item);
        if (rectangle) {
            hasRectangle = true;
            QCOMPARE(rectangle->rect(), QRectF(40, 0, 20, 300));
        }
        hasLine = hasLine || line;
        if (rectangle || line) {
            const Qt::PenStyle style = rectangle ? rectangle->pen().style() : line->pen().style();
            QCOMPARE(style, byHand ? Qt::DashLine : Qt::SolidLine);
        }
    }
    QTEST(hasRectangle, "rectangle");
    QTEST(hasLine, "line");
}

void CameraOverlaysTest::focusWithoutAngles()
{
    ShellServices services;
    services.spectrumUI.focusAssitanceFlag = true;
    services.spectrum.angleList = { 1.5F };
    services.spectrum.distanceList = { 12.0F };
    services.spectrum.linePointList = { QPoint(50, 60) };
    services.spectrum.extendRectList = { QRect(40, 0, 20, 300) };
    Page page;
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    services.spectrum.angleList.clear();
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    QCOMPARE(page.VisibleMarks(), 1); // the cross line
    QCOMPARE(CallLog::Count("SpectrumManager::ClearFocusInfo()"), 0);
}

void CameraOverlaysTest::focusOffClearsLines()
{
    ShellServices services;
    Page page;
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    QCOMPARE(CallLog::Calls(), QStringList("SpectrumManager::ClearFocusInfo()"));
    QCOMPARE(page.VisibleMarks(), 0);
}

void CameraOverlaysTest::focusOffHidesTheCrossLine()
{
    ShellServices services;
    services.spectrumUI.focusAssitanceFlag = true;
    Page page;
    emit services.spectrum.SignalSpectralineAutoDetectFinish(); // whose overlay comes after the flags
    const auto *cross = qobject_cast<QGraphicsObject *>(page.Overlays().first()->GetCrossLineObject());
    QVERIFY(cross->isVisible());
    services.spectrumUI.focusAssitanceFlag = false;
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    QVERIFY(!cross->isVisible());
    emit services.spectrumUI.SignalFocusOnChanged(true); // it can come back
    QVERIFY(cross->isVisible());
    emit services.spectrumUI.SignalFocusCrossLineFlagChanged(false);
    QVERIFY(!cross->isVisible());
}

void CameraOverlaysTest::closingFocusAssistance()
{
    ShellServices services;
    services.spectrumUI.focusAssitanceFlag = true;
    services.spectrum.angleList = { 1.5F };
    services.spectrum.distanceList = { 12.0F };
    services.spectrum.linePointList = { QPoint(50, 60) };
    services.spectrum.extendRectList = { QRect(40, 0, 20, 300) };
    Page page;
    emit services.spectrumUI.SignalAssitanceFocusClose(); // nothing is open
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    QVERIFY(page.VisibleMarks() > 0);
    emit services.spectrumUI.SignalAssitanceFocusClose();
    QCOMPARE(page.VisibleMarks(), 0);
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    QCOMPARE(page.Overlays().size(), 2);
    QVERIFY(page.VisibleMarks() > 0);
}

void CameraOverlaysTest::crossLineIsWired()
{
    ShellServices services;
    Page page;
    emit services.spectrum.SignalSpectralineAutoDetectFinish();
    QObject *cross = page.Overlays().first()->GetCrossLineObject();
    QCOMPARE(MissingWires({
                 { &services.preview, SIGNAL(signalImageSizeChanged()), cross, SLOT(SlotImageSizeChanged()) },
                 { &services.spectrumUI, SIGNAL(SignalFocusOnChanged(bool)), cross,
                   SLOT(SlotCrossLineVisiable(bool)) },
                 { &services.spectrumUI, SIGNAL(SignalFocusCrossLineFlagChanged(bool)), cross,
                   SLOT(SlotCrossLineEnable(bool)) },
             }),
             QStringList());
}

GUARDED_TEST_MAIN(CameraOverlaysTest)
#include "tst_cameraoverlays.moc"
