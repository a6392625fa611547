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

/// A picture of `width` columns as it is in its file.
SpectralPicture Opened(const SpectralAxis &axis, int width)
{
    const QSize size(width, 200);
    return {1, size, QRect(QPoint(0, 0), size), Orientation(), axis, axis};
}

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

Q_DECLARE_METATYPE(SpectralAxis)

class SpectrumRangesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void rulersCountPixelsWithoutCalibration();
    void calibratedValuesStandAlongTheSpectrum();
    void rulersCountInTheirCalibration_data();
    void rulersCountInTheirCalibration();
    void theRulerOfTheRowsCountsInTheirCalibration();
    void titleFollowsTheZoom();
    void theSameAxisIsAnnouncedOnce();
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

void SpectrumRangesTest::rulersCountInTheirCalibration_data()
{
    QTest::addColumn<SpectralAxis>("axis");
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("right");
    QTest::addColumn<Range>("range");
    QTest::addColumn<QString>("title");
    const QString nanometres = "Wavelength [nm]";
    const QString pixels = "Pixel Number";
    const int nm = int(SpectralUnit::Nanometre);
    const int wavenumber = int(SpectralUnit::Wavenumber);
    const auto axis = [](SpectralUnit unit, double first, double step, double bend = 0) {
        SpectralAxis values;
        values.unit = unit;
        for (int i = 0; i < 1001; ++i)
            values.values << first + step * i + bend * i * (1000 - i) / 250000.0;
        return values;
    };
    const SpectralAxis rising = axis(SpectralUnit::Nanometre, 400, 0.5);
    QTest::newRow("whole") << rising << nm << 0.0 << 1000.0 << Range({ 400.0, 900.0 }) << nanometres;
    QTest::newRow("zoomed to 5 nm") << rising << nm << 200.0 << 210.0 << Range({ 500.0, 505.0 })
                                    << nanometres;
    QTest::newRow("zoomed to less") << rising << nm << 200.0 << 209.0 << Range({ 200.0, 209.0 }) << pixels;
    QTest::newRow("in pixels") << rising << int(SpectralUnit::Pixel) << 0.0 << 1000.0
                               << Range({ 0.0, 1000.0 }) << pixels;
    QTest::newRow("falling in wavenumbers")
        << rising << wavenumber << 0.0 << 1000.0 << Range({ 0.0, 1000.0 }) << pixels;
    const SpectralAxis falling = axis(SpectralUnit::Nanometre, 900, -0.5);
    QTest::newRow("falling") << falling << nm << 0.0 << 1000.0 << Range({ 0.0, 1000.0 }) << pixels;
    // Rising from 11111 to 25000, but at the middle of the sensor 15385 and not 18056.
    QTest::newRow("uneven") << falling << wavenumber << 0.0 << 1000.0 << Range({ 0.0, 1000.0 }) << pixels;
    // 800 to 795 nm: next to even.
    QTest::newRow("even for a part") << falling << wavenumber << 200.0 << 210.0
                                     << Range({ 12500.0, 1e7 / 795 }) << "Wavenumber [1/cm]";
    // In the middle 1.8 and 2.2 % of 500 nm away from a straight line.
    QTest::newRow("bent a little") << axis(SpectralUnit::Nanometre, 400, 0.5, 9) << nm << 0.0 << 1000.0
                                   << Range({ 400.0, 900.0 }) << nanometres;
    QTest::newRow("bent") << axis(SpectralUnit::Nanometre, 400, 0.5, 11) << nm << 0.0 << 1000.0
                          << Range({ 0.0, 1000.0 }) << pixels;
    QTest::newRow("Raman shift") << axis(SpectralUnit::RamanShift, 100, 3) << nm << 0.0 << 1000.0
                                 << Range({ 100.0, 3100.0 }) << "Raman Shift [1/cm]";
    QTest::newRow("on both sides of the laser")
        << axis(SpectralUnit::RamanShift, -100, 3) << nm << 0.0 << 1000.0 << Range({ 0.0, 1000.0 }) << pixels;
    QTest::newRow("no calibration") << SpectralAxis() << nm << 0.0 << 1000.0 << Range({ 0.0, 1000.0 })
                                    << pixels;
}

/// Values that a ruler would show falsely are not told to it, nor what they would be called.
void SpectrumRangesTest::rulersCountInTheirCalibration()
{
    QFETCH(SpectralAxis, axis);
    QFETCH(int, unit);
    QFETCH(double, left);
    QFETCH(double, right);
    QFETCH(Range, range);
    Parts parts;
    SpectrumSettings settings(&parts.ranges, &parts.centre);
    settings.SetMode(DisplayMode::Physics);
    settings.slotSetImageShown(true);
    settings.SetUnit(SpectralUnit(unit));
    settings.SetImage(Opened(axis, 1001));
    parts.imageH.clear();
    settings.SlotImageNewArea(left, right, 10, 200);
    QVERIFY(!parts.imageH.isEmpty());
    QCOMPARE(parts.imageH.last().at(0).toDouble(), range.at(0).toDouble());
    QCOMPARE(parts.imageH.last().at(1).toDouble(), range.at(1).toDouble());
    QCOMPARE(parts.imageV.last(), Range({ 10.0, 200.0 }));
    QTEST(settings.GetTitleName(), "title");
}

void SpectrumRangesTest::theRulerOfTheRowsCountsInTheirCalibration()
{
    Parts parts;
    SpectrumSettings settings(&parts.ranges, &parts.centre);
    settings.SetMode(DisplayMode::Physics);
    settings.slotSetImageShown(true);
    SpectralAxis axis;
    axis.unit = SpectralUnit::Nanometre;
    axis.side = SpectralSide::Rows;
    for (int row = 0; row < 200; ++row)
        axis.values << 400 + 0.5 * row;
    settings.SetImage(Opened(axis, 300));
    settings.SlotImageNewArea(0, 300, 20, 120);
    QCOMPARE(parts.imageH.last(), Range({ 0.0, 300.0 }));
    QCOMPARE(parts.imageV.last(), Range({ 20.0, 120.0 }));
    settings.SetHorizontal(false);
    settings.SlotImageNewArea(0, 300, 20, 120);
    QCOMPARE(parts.imageH.last(), Range({ 0.0, 300.0 }));
    QCOMPARE(parts.imageV.last(), Range({ 410.0, 460.0 }));
    QCOMPARE(settings.GetTitleName(), QString("Wavelength [nm]"));
}

void SpectrumRangesTest::titleFollowsTheZoom()
{
    Parts parts;
    SpectrumSettings settings(&parts.ranges, &parts.centre);
    settings.SetMode(DisplayMode::Physics);
    SpectralAxis axis;
    axis.unit = SpectralUnit::Nanometre;
    axis.values = { 400, 400.5 };
    settings.slotSetImageShown(true);
    settings.SetImage(Opened(axis, 1000));
    QCOMPARE(settings.GetTitleName(), QString("Wavelength [nm]"));
    const QSignalSpy titles(&settings, &SpectrumUIManager::signalDisplayModePropertyChange);
    settings.SlotImageNewArea(0, 1000, 0, 200);
    QCOMPARE(titles.count(), 0);
    settings.SlotImageNewArea(100, 108, 0, 200);
    QCOMPARE(titles.count(), 1);
    QCOMPARE(settings.GetTitleName(), QString("Pixel Number"));
    settings.SetMode(DisplayMode::Plot); // which shows any axis
    QCOMPARE(settings.GetTitleName(), QString("Wavelength [nm]"));
    settings.SetMode(DisplayMode::Physics);
    settings.SlotImageNewArea(100, 300, 0, 200);
    QCOMPARE(titles.count(), 2);
    QCOMPARE(settings.GetTitleName(), QString("Wavelength [nm]"));
}

/// A stack's next frame has the axis of the one before: nobody needs to ask for curves anew.
void SpectrumRangesTest::theSameAxisIsAnnouncedOnce()
{
    Parts parts;
    SpectrumSettings settings(&parts.ranges, &parts.centre);
    const QSignalSpy titles(&settings, &SpectrumUIManager::signalDisplayModePropertyChange);
    SpectralAxis axis;
    axis.unit = SpectralUnit::Nanometre;
    axis.values = { 400, 401, 402 };
    for (int frame = 0; frame < 3; ++frame) {
        settings.SetImage(Opened(axis, 3));
        QCOMPARE(titles.count(), 1);
    }
    SpectralPicture another = Opened(axis, 3);
    another.file = 2;
    settings.SetImage(another);
    QCOMPARE(titles.count(), 1);
    axis.values[2] = 403;
    settings.SetImage(Opened(axis, 3));
    QCOMPARE(titles.count(), 2);
    settings.SetImage(Opened(axis, 4));
    QCOMPARE(titles.count(), 3);
    axis.unit = SpectralUnit::RamanShift;
    settings.SetImage(Opened(axis, 4));
    QCOMPARE(titles.count(), 4);
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
