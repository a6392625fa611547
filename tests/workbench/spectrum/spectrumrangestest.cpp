// SPDX-License-Identifier: GPL-3.0-or-later
#include "centredisplay.h"
#include "guardedtest.h"
#include "spectrumranges.h"
#include "spectrumsettings.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <limits>

namespace {

/// A spectrum whose pixels are half a nanometre, from 400 nm on.
class CalibratedSettings : public SpectrumSettings
{
public:
    using SpectrumSettings::SpectrumSettings;
    bool isHorizontal = true;

    bool Calculate(int pixel, double &x) const override
    {
        x = 400.0 + 0.5 * pixel;
        return true;
    }
    bool IsDirectionHorinzontal() const override { return isHorizontal; }
};

struct Parts
{
    QTemporaryDir folder;
    QSettings settings{folder.filePath("settings.ini"), QSettings::IniFormat};
    SpectrumRanges ranges;
    CentreDisplay centre{&settings};
    QSignalSpy liveH{&ranges, &DisplayModeManager::SignalChangeHShowValueRange};
    QSignalSpy liveV{&ranges, &DisplayModeManager::SignalChangeVShowValueRange};
    QSignalSpy imageH{&ranges, &DisplayModeManager::SignalImageChangeHShowValueRange};
    QSignalSpy imageV{&ranges, &DisplayModeManager::SignalImageChangeVShowValueRange};
};

using Range = QList<QVariant>;

} // namespace

class SpectrumRangesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void rulersCountPixelsWithoutCalibration();
    void calibratedValuesStandAlongTheSpectrum();
    void openedPictureHasRangesOfItsOwn();
    void areaOfNoSenseIsIgnored_data();
    void areaOfNoSenseIsIgnored();
    void noPictureNoRange();
    void modesAreToldApart_data();
    void modesAreToldApart();
};

void SpectrumRangesTest::rulersCountPixelsWithoutCalibration()
{
    Parts parts;
    SpectrumSettings settings(&parts.ranges, &parts.centre);
    QCOMPARE(settings.GetDisplayModeManager(), &parts.ranges);
    settings.SlotNewArea(512.5, 1024, 10, 200);
    QCOMPARE(parts.liveH.takeFirst(), Range({512.5, 1024.0}));
    QCOMPARE(parts.liveV.takeFirst(), Range({10.0, 200.0}));
    QVERIFY(parts.imageH.isEmpty() && parts.imageV.isEmpty());
    QCOMPARE(settings.GetTitleName(), QString("Pixel Number"));
}

void SpectrumRangesTest::calibratedValuesStandAlongTheSpectrum()
{
    Parts parts;
    CalibratedSettings settings(&parts.ranges, &parts.centre);
    settings.SlotNewArea(100, 300, 10, 200);
    QCOMPARE(parts.liveH.takeFirst(), Range({450.0, 550.0}));
    QCOMPARE(parts.liveV.takeFirst(), Range({10.0, 200.0}));

    settings.isHorizontal = false;
    parts.centre.CalculatePreviewArea(); // the direction was changed
    QCOMPARE(parts.liveH.takeFirst(), Range({100.0, 300.0}));
    QCOMPARE(parts.liveV.takeFirst(), Range({405.0, 500.0}));
}

void SpectrumRangesTest::openedPictureHasRangesOfItsOwn()
{
    Parts parts;
    CalibratedSettings settings(&parts.ranges, &parts.centre);
    settings.SlotImageNewArea(0, 100, 0, 50);
    settings.CalculateImageArea();
    QCOMPARE(parts.imageH.count(), 2);
    QCOMPARE(parts.imageH.at(1), Range({400.0, 450.0}));
    QCOMPARE(parts.imageV.at(1), Range({0.0, 50.0}));
    QVERIFY(parts.liveH.isEmpty() && parts.liveV.isEmpty());
}

void SpectrumRangesTest::areaOfNoSenseIsIgnored_data()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("bottom");
    QTest::newRow("no number") << nan << 100.0 << 0.0 << 50.0;
    QTest::newRow("no number at the end") << 0.0 << 100.0 << 0.0 << nan;
    QTest::newRow("endless") << 0.0 << std::numeric_limits<double>::infinity() << 0.0 << 50.0;
    QTest::newRow("no width") << 100.0 << 100.0 << 0.0 << 50.0;
    QTest::newRow("turned round") << 0.0 << 100.0 << 50.0 << 0.0;
}

void SpectrumRangesTest::areaOfNoSenseIsIgnored()
{
    QFETCH(double, left);
    QFETCH(double, right);
    QFETCH(double, top);
    QFETCH(double, bottom);
    Parts parts;
    SpectrumSettings settings(&parts.ranges, &parts.centre);
    settings.SlotNewArea(1, 2, 3, 4);
    settings.SlotImageNewArea(5, 6, 7, 8);
    settings.SlotNewArea(left, right, top, bottom);
    settings.SlotImageNewArea(left, right, top, bottom);
    QCOMPARE(parts.liveH.count(), 1);
    QCOMPARE(parts.imageV.count(), 1);
    parts.centre.CalculatePreviewArea();
    QCOMPARE(parts.liveH.last(), Range({1.0, 2.0}));
}

void SpectrumRangesTest::noPictureNoRange()
{
    Parts parts;
    SpectrumSettings settings(&parts.ranges, &parts.centre);
    settings.CalculateImageArea();
    parts.centre.CalculatePreviewArea();
    QVERIFY(parts.liveH.isEmpty() && parts.liveV.isEmpty() && parts.imageH.isEmpty() && parts.imageV.isEmpty());
}

void SpectrumRangesTest::modesAreToldApart_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = 0; mode <= int(DisplayMode::Tracks3D); ++mode)
        QTest::newRow(qPrintable(QString::number(mode))) << mode;
}

void SpectrumRangesTest::modesAreToldApart()
{
    QFETCH(int, mode);
    Parts parts;
    SpectrumSettings settings(&parts.ranges, &parts.centre);
    const QSignalSpy changes(&settings, &SpectrumUIManager::signalDisplayModeChange);
    settings.SetMode(DisplayMode(mode));
    QCOMPARE(changes.count(), mode == 0 ? 0 : 1);
    QCOMPARE(settings.IsDisplayModeGeneral(), mode == int(DisplayMode::General));
    QCOMPARE(settings.IsDisplayModePhysics(), mode == int(DisplayMode::Physics));
    QCOMPARE(settings.IsDisplayMode2D(), mode == int(DisplayMode::Plot));
    QCOMPARE(settings.IsDisplayMode2DPeak(), mode == int(DisplayMode::PlotPeak));
    QCOMPARE(settings.IsDisplayMode3D(), mode == int(DisplayMode::Tracks3D));
    settings.SetDisplayModeGeneral();
    QVERIFY(settings.IsDisplayModeGeneral());
    QCOMPARE(parts.centre.GetCurrentDisplayMode(), 0);
    const QSignalSpy properties(&settings, &SpectrumUIManager::signalDisplayModePropertyChange);
    settings.UpdateDisplayModeProperty();
    QCOMPARE(properties.count(), 1);
}

GUARDED_TEST_MAIN(SpectrumRangesTest)
#include "spectrumrangestest.moc"
