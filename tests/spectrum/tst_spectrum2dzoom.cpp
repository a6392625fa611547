// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "plotpage.h"
#include "spectrumzoomui.h"

#include <QPushButton>

namespace {

void ClickButton(const PlotPage &page, const char *name)
{
    page.page->findChild<SpectrumZoomUI *>()->findChild<QPushButton *>(name)->click();
}

} // namespace

class TestSpectrum2DZoom : public GuardedTest
{
    Q_OBJECT

private slots:
    void firstCurveSetsTheRanges();
    void blankRatio_data();
    void blankRatio();
    void aDarkCurveIsBroughtIntoTheRange();
    void nextCurveKeepsTheRanges();
    void automaticZoomFollowsEachCurve();
    void requestsForNewRanges_data();
    void requestsForNewRanges();
    void verticalButtons();
    void verticalButtonsKeepACurveWithAnOffset();
    void horizontalButtons();
    void reset();
    void calibrationChangeRestartsTheSteps();
    void levels();
    void modeChange_data();
    void modeChange();
    void fractionsAreZoomed();
    void picturesAreRangedEachTime();
    void rangingAgainKeepsTheBlankSpace();
    void steppingBackLeavesTheBlankSpaceOnce();
    void aFreshPictureHasItsBlankSpaceOnce_data();
    void aFreshPictureHasItsBlankSpaceOnce();
    void aPictureBelowZeroIsNotCutOff();
    void flatPicturesStayInPlace();
    void resetGoesBackToTheFirstStep();
    void theFirstStepIsCalibrated();
    void flatCurve_data();
    void flatCurve();
};

void TestSpectrum2DZoom::firstCurveSetsTheRanges()
{
    PlotPage page([](FakeServices &services) {
        services.spectrumUI.calibrationOffset = 400;
        services.spectrumUI.calibrationFactor = 2;
    });
    page.DrawLine({ 300, 4000, 200 });
    QCOMPARE(Text(page.X()), QString("400..404"));
    QCOMPARE(Text(page.Y()), QString("200..5000"));
}

void TestSpectrum2DZoom::blankRatio_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QString>("y");
    QTest::newRow("none") << 0.0 << "0..4000";
    QTest::newRow("fifth") << 0.2 << "0..5000";
    QTest::newRow("half") << 0.5 << "0..8000";
    QTest::newRow("everything") << 1.0 << "0..4000";
}

void TestSpectrum2DZoom::blankRatio()
{
    QFETCH(double, ratio);
    PlotPage page;
    page.services.spectrumUI.blankRatio = ratio;
    page.DrawLine({ 0, 4000, 200 });
    QTEST(Text(page.Y()), "y");
}

/// It has no height, which is no range.
void TestSpectrum2DZoom::aDarkCurveIsBroughtIntoTheRange()
{
    PlotPage page;
    page.DrawLine({ 100, 5000, 100 });
    page.page->SlotUpdateResetFlag();
    page.DrawLine({ 0, 0, 0 });
    QVERIFY2(page.Y().contains(0), qPrintable(Text(page.Y())));
}

void TestSpectrum2DZoom::nextCurveKeepsTheRanges()
{
    PlotPage page;
    page.DrawLine({ 0, 4000, 200 });
    page.DrawLine({ 0, 9000, 200, 100, 0 });
    QCOMPARE(Text(page.X()), QString("0..2"));
    QCOMPARE(Text(page.Y()), QString("0..5000"));
}

void TestSpectrum2DZoom::automaticZoomFollowsEachCurve()
{
    PlotPage page;
    page.services.spectrumUI.zoomAutoFlag = true;
    page.DrawLine({ 0, 9000, 200, 100, 0 });
    page.DrawLine({ 100, 4000, 200 });
    QCOMPARE(Text(page.X()), QString("0..2"));
    QCOMPARE(Text(page.Y()), QString("100..5000"));
}

void TestSpectrum2DZoom::requestsForNewRanges_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("FVB by hand") << QByteArray("SignalFVBManualFlagChanged");
    QTest::newRow("FVB on or off") << QByteArray("SignalFVBOnFlagChanged");
    QTest::newRow("display mode") << QByteArray("signalDisplayModeChange");
    QTest::newRow("display properties") << QByteArray("signalDisplayModePropertyChange");
    QTest::newRow("image panel") << QByteArray("signalUpdateImageControlUI");
}

void TestSpectrum2DZoom::requestsForNewRanges()
{
    QFETCH(QByteArray, signal);
    PlotPage page;
    page.DrawLine({ 0, 9000, 200, 100, 0 });
    QObject *sender = &page.services.spectrumUI;
    if (signal.contains("ControlUI"))
        sender = &page.services.uiConfig;
    if (signal.contains("Flag"))
        QVERIFY(QMetaObject::invokeMethod(sender, signal, Q_ARG(bool, false)));
    else
        QVERIFY(QMetaObject::invokeMethod(sender, signal));
    page.DrawLine({ 100, 4000, 200 });
    QCOMPARE(Text(page.X()), QString("0..2"));
    QCOMPARE(Text(page.Y()), QString("100..5000"));
}

void TestSpectrum2DZoom::verticalButtons()
{
    PlotPage page;
    page.DrawLine({ 0, 4000, 200 });
    page.plot->yAxis->setRange(-10.5, 1000.5);
    ClickButton(page, "pushButton2DZoomIn");
    QCOMPARE(Text(page.Y()), QString("-10..900"));
    ClickButton(page, "pushButton2DZoomOut");
    QCOMPARE(Text(page.Y()), QString("-10..990"));
    QCOMPARE(Text(page.X()), QString("0..2"));
}

void TestSpectrum2DZoom::verticalButtonsKeepACurveWithAnOffset()
{
    PlotPage page;
    page.DrawLine({ 1000, 1100, 1000 });
    for (int click = 0; click < 10; ++click)
        ClickButton(page, "pushButton2DZoomIn");
    QVERIFY2(page.Y().contains(1000) && page.Y().contains(1001), qPrintable(Text(page.Y())));
}

void TestSpectrum2DZoom::horizontalButtons()
{
    PlotPage page;
    page.DrawLine(Values(1001, 5));
    const QString y = Text(page.Y());
    ClickButton(page, "pushButton2DHZoomIn");
    QCOMPARE(Text(page.X()), QString("50..950"));
    ClickButton(page, "pushButton2DHZoomOut");
    QCOMPARE(Text(page.X()), QString("5..995")); // 5 % of 900
    ClickButton(page, "pushButton2DHZoomOut");
    QCOMPARE(Text(page.X()), QString("0..1001"));
    QCOMPARE(Text(page.Y()), y);
}

void TestSpectrum2DZoom::reset()
{
    PlotPage page; // 10 pixels wide: the first step is 0 to 10
    QVERIFY(page.Show());
    page.services.preview.SetRunning(true);
    page.DrawLine({ 10, 4000, 200, 0, 0, 0, 0, 0, 0, 0 });
    page.plot->xAxis->setRange(3, 4);
    page.plot->yAxis->setRange(100, 200);
    page.services.spectrumUI.titleName = "Wavelength (nm)";
    CallLog::Clear();
    ClickButton(page, "pushButton2DScaleReset");
    QCOMPARE(CallLog::Calls(), QStringList("SpectrumUIManager::SetZoomAutoFlag(true)"));
    QCOMPARE(Text(page.X()), QString("0..10"));
    QCOMPARE(Text(page.Y()), QString("0..4000"));
    QCOMPARE(page.plot->xAxis->label(), QString("Wavelength (nm)"));
    page.services.spectrumUI.zoomAutoFlag = false;
    page.DrawLine({ 0, 100, 0 }); // sets its ranges once more
    QCOMPARE(Text(page.Y()), QString("0..125"));
}

void TestSpectrum2DZoom::calibrationChangeRestartsTheSteps()
{
    PlotPage page;
    page.services.preview.SetRunning(true);
    page.DrawLine({ 0, 4000, 200 });
    page.plot->xAxis->setRange(300, 700);
    emit page.services.spectrumUI.SignalConversationFormulaChanged();
    page.DrawLine({});
    page.plot->xAxis->setRange(5, 6);
    page.page->SlotZoomReset();
    QCOMPARE(Text(page.X()), QString("300..700"));
}

void TestSpectrum2DZoom::levels()
{
    PlotPage page;
    page.page->SlotUpdateLevels(16, 200);
    QCOMPARE(Text(page.Y()), QString("16..250"));
    page.services.spectrumUI.blankRatio = 0.0;
    page.page->SlotUpdateLevels(0, 255);
    QCOMPARE(Text(page.Y()), QString("0..255"));
}

void TestSpectrum2DZoom::modeChange_data()
{
    QTest::addColumn<bool>("running");
    QTest::addColumn<bool>("staticMode");
    QTest::addColumn<QString>("y");
    QTest::newRow("preview runs") << true << false << "50..60";
    QTest::newRow("preview stands") << false << false << "0..5000";
    QTest::newRow("opened picture, preview runs") << true << true << "0..5000";
}

void TestSpectrum2DZoom::modeChange()
{
    QFETCH(bool, running);
    QFETCH(bool, staticMode);
    PlotPage page;
    page.services.preview.SetRunning(running);
    page.DrawLine({ 0, 4000, 200 });
    page.page->SetStaticMode(staticMode);
    page.plot->yAxis->setRange(50, 60);
    page.services.spectrumUI.titleName = "Wavelength (nm)";
    emit page.services.spectrumUI.signalDisplayModeChange();
    QTEST(Text(page.Y()), "y");
    QCOMPARE(page.plot->xAxis->label(), QString("Wavelength (nm)"));
    const bool ranged = staticMode || !running;
    QCOMPARE(DebugLines().contains("custom plot range[0.000000, 4000.000000]"), ranged);
}

/// Whole numbers of a fraction would be nothing but 0.
void TestSpectrum2DZoom::fractionsAreZoomed()
{
    PlotPage page;
    page.services.imageCore.curveFactor = 1000.0;
    int row[] = { 100, 400, 200 };
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("0.1..0.5"));
    page.page->SlotZoomIn();
    QCOMPARE(Text(page.Y()), QString("0.1..0.45"));
    page.page->SlotZoomOut();
    QCOMPARE(Text(page.Y()), QString("0.1..0.495"));
}

void TestSpectrum2DZoom::picturesAreRangedEachTime()
{
    PlotPage page;
    int row[] = { 10, 4000, 200 };
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("10..5000"));
    page.page->SetStaticMode(true);
    row[1] = 8000;
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("10..10000"));
    page.services.spectrumUI.directionHorinzontal = false;
    row[1] = 16000;
    page.page->SlotUpdateImageVerticalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("10..20000"));
}

void TestSpectrum2DZoom::rangingAgainKeepsTheBlankSpace()
{
    PlotPage page;
    page.page->SetStaticMode(true);
    int row[] = { 0, 4000, 200 };
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("0..5000"));
    for (int pick = 0; pick < 5; ++pick)
        page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("0..5000"));
    page.plot->yAxis->setRange(0, 8000); // zoomed by the user
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("0..10000"));
}

void TestSpectrum2DZoom::steppingBackLeavesTheBlankSpaceOnce()
{
    PlotPage page;
    QVERIFY(page.Show());
    page.page->SetStaticMode(true);
    int row[] = { 0, 8000, 200 };
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    row[1] = 4000;
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    page.plot->replot();
    page.Drag(QPoint(400, 100), QPoint(200, 100)); // there is no step left
    QCOMPARE(Text(page.Y()), QString("0..5000"));
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("0..5000"));
}

void TestSpectrum2DZoom::aFreshPictureHasItsBlankSpaceOnce_data()
{
    QTest::addColumn<bool>("automatic");
    QTest::addColumn<bool>("modeChanges");
    QTest::newRow("first") << false << false;
    QTest::newRow("automatic zoom") << true << false;
    QTest::newRow("after a mode change") << false << true;
}

void TestSpectrum2DZoom::aFreshPictureHasItsBlankSpaceOnce()
{
    QFETCH(bool, automatic);
    QFETCH(bool, modeChanges);
    PlotPage page;
    page.page->SetStaticMode(true);
    page.services.spectrumUI.zoomAutoFlag = automatic;
    int row[] = { 0, 4000, 200 };
    for (int frame = 0; frame < 3; ++frame) {
        page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
        if (modeChanges)
            emit page.services.spectrumUI.signalDisplayModeChange();
        QCOMPARE(Text(page.Y()), QString("0..5000"));
    }
    row[1] = 8000;
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("0..10000"));
}

void TestSpectrum2DZoom::aPictureBelowZeroIsNotCutOff()
{
    PlotPage page;
    page.page->SetStaticMode(true);
    int row[] = { -50, -10, -30 };
    for (int pick = 0; pick < 2; ++pick) {
        page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
        QCOMPARE(Text(page.Y()), QString("-50..0")); // a fifth of 50 above -10
    }
}

void TestSpectrum2DZoom::flatPicturesStayInPlace()
{
    PlotPage page;
    page.page->SetStaticMode(true);
    int row[] = { 500, 500, 500 };
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("500..625"));
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("500..625"));
    row[1] = 8000;
    page.page->SlotUpdateImageHorizontalCurve(row, 3, 0, 3);
    QCOMPARE(Text(page.Y()), QString("500..10000"));
}

void TestSpectrum2DZoom::resetGoesBackToTheFirstStep()
{
    PlotPage page; // 10 pixels wide: the first step is 0 to 10
    QVERIFY(page.Show());
    page.services.preview.SetRunning(true);
    page.DrawLine({ 10, 4000, 200, 0, 0, 0, 0, 0, 0, 0 });
    page.Drag(2, 8);
    page.Drag(4, 6);
    QVERIFY(page.X().lower > 3 && page.X().upper < 7);
    page.page->SlotZoomReset();
    QCOMPARE(Text(page.X()), QString("0..10"));
    // The steps between are forgotten.
    page.Drag(3, 7);
    page.Drag(6, 4);
    QVERIFY(page.X().lower <= 0 && page.X().upper >= 9);
}

void TestSpectrum2DZoom::theFirstStepIsCalibrated()
{
    PlotPage page([](FakeServices &services) {
        services.spectrumUI.calibrationOffset = 400;
        services.spectrumUI.calibrationFactor = 2;
    });
    page.services.preview.SetRunning(true);
    page.page->SlotZoomReset();
    QCOMPARE(Text(page.X()), QString("400..420"));
}

void TestSpectrum2DZoom::flatCurve_data()
{
    QTest::addColumn<unsigned int>("value");
    QTest::newRow("dark") << 0u;
    QTest::newRow("bright") << 500u;
}

void TestSpectrum2DZoom::flatCurve()
{
    QFETCH(unsigned int, value);
    PlotPage page;
    page.DrawLine(Values(10, value));
    QCOMPARE(page.DrawnValues(), QVector<double>(10, value));
    QVERIFY(page.Y().size() > 0.0);
    QVERIFY(page.Y().contains(value));
    page.DrawLine(Values(1, value)); // one sample
    QCOMPARE(page.DrawnValues(), QVector<double>(1, value));
    QVERIFY(page.X().size() > 0.0);
}

GUARDED_TEST_MAIN(TestSpectrum2DZoom)
#include "tst_spectrum2dzoom.moc"
