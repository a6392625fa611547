// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "madespectra.h"
#include "spectrumcorrections.h"

Q_DECLARE_METATYPE(SpectrumPlace)

class SpectrumCorrectionsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void nothingOnChangesNothing();
    void theAverageIsThatOfTheNewest();
    void aSpectrumThatIsTakenBackCountsOnce();
    void anOlderSpectrumThatIsTakenBackCountsOnce();
    void anotherExposureBeginsAnotherAverage();
    void saturationStaysInTheAverage();
    void darkAndReference_data();
    void darkAndReference();
    void aDarkOfAnotherWidthIsLeftOutAndTold();
    void spectraOfAnotherPlaceAreNotMixed_data();
    void spectraOfAnotherPlaceAreNotMixed();
    void withoutReferenceCountsStayCounts();
    void saturationSpreadsAsFarAsItReaches();
    void whatWasAveragedCanBecomeTheDark();
    void theBaselineGoesAndTheLineStays();
    void aDarkOfAnotherExposureIsSaid_data();
    void aDarkOfAnotherExposureIsSaid();
    void theSentenceSaysAll();
};

namespace {

Spectrum Of(const std::vector<double> &values)
{
    return {values, std::vector<quint8>(values.size(), 0), 0};
}

const SpectrumPlace somewhere{QSize(2, 40), {QRect(100, 200, 2, 40), 1, Orientation()}, true, 10, 11, "one", 16};

} // namespace

void SpectrumCorrectionsTest::nothingOnChangesNothing()
{
    SpectrumCorrections corrections;
    QVERIFY(corrections.Apply(Of({5, 7, 9})).values == std::vector<double>({5, 7, 9}));
    QCOMPARE(corrections.Applied().Sentence(), QString("No correction is on."));
    QCOMPARE(corrections.Applied().Record(), QString("none"));
}

void SpectrumCorrectionsTest::theAverageIsThatOfTheNewest()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 2;
    corrections.SetSettings(settings);
    QVERIFY(corrections.Apply(Of({10, 0})).values == std::vector<double>({10, 0}));
    QVERIFY(corrections.Apply(Of({20, 0})).values == std::vector<double>({15, 0}));
    QVERIFY(corrections.Apply(Of({60, 0})).values == std::vector<double>({40, 0}));
    QVERIFY(corrections.Apply(Of({1, 2, 3})).values == std::vector<double>({1, 2, 3})); // another width
}

/// What came once more took the place that it had: of the average, and among those that rays are told by.
void SpectrumCorrectionsTest::aSpectrumThatIsTakenBackCountsOnce()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 2;
    settings.removesCosmicRays = true;
    corrections.SetSettings(settings);
    std::vector<double> values;
    for (int i = 0; i < 40; ++i)
        values.push_back(100 + i % 3);
    const auto numbered = [&values](quint64 frameId) {
        Spectrum spectrum = Of(values);
        spectrum.frameId = frameId;
        return spectrum;
    };
    corrections.Apply(numbered(1));
    corrections.Apply(numbered(2));
    Spectrum ray = numbered(3);
    ray.values[7] += 5000;
    QCOMPARE(corrections.Apply(ray).values, values);
    for (int i = 0; i < 3; ++i) {
        corrections.TakeBack(3);
        QCOMPARE(corrections.Apply(ray).values, values);
    }
    corrections.TakeBack(77); // never seen
    for (double &value : values)
        value += 10;
    const std::vector<double> mean = corrections.Apply(numbered(4)).values;
    QCOMPARE(mean[0], 105.0);
    QCOMPARE(corrections.Applied().averaged, 2);
}

/// The screen shows fewer frames than come: the one that stands there need not be the newest.
void SpectrumCorrectionsTest::anOlderSpectrumThatIsTakenBackCountsOnce()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 3;
    settings.removesCosmicRays = true;
    corrections.SetSettings(settings);
    const auto numbered = [](quint64 frameId) {
        Spectrum spectrum = Of(std::vector<double>(40, 100 + double(frameId)));
        for (size_t i = 0; i < 40; i += 2)
            spectrum.values[i] += 3;
        spectrum.frameId = frameId;
        return spectrum;
    };
    Spectrum ray = numbered(4);
    ray.values[7] += 5000;
    for (quint64 id = 1; id <= 3; ++id)
        corrections.Apply(numbered(id));
    const std::vector<double> shown = corrections.Apply(ray).values;
    QCOMPARE(shown[1], 103.0); // of 102, 103 and 104
    QVERIFY(shown[7] < 105);
    corrections.Apply(numbered(5));
    corrections.Apply(numbered(6));
    for (int i = 0; i < 3; ++i) {
        corrections.TakeBack(4);
        QCOMPARE(corrections.Apply(ray).values, shown);
    }
}

/// A mixture would pass as a dark of the new one.
void SpectrumCorrectionsTest::anotherExposureBeginsAnotherAverage()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 3;
    corrections.SetSettings(settings);
    const auto exposed = [](double value, double exposureUs) {
        Spectrum spectrum = Of({value, 0});
        spectrum.exposureUs = exposureUs;
        return spectrum;
    };
    corrections.Apply(exposed(100, 20000));
    QCOMPARE(corrections.Apply(exposed(110, 20003)).values[0], 105.0); // as the camera rounds it
    QCOMPARE(corrections.Apply(exposed(200, 40000)).values[0], 200.0);
    QCOMPARE(corrections.Applied().Sentence(), QString("Corrections: average of fewer than 3 so far."));
    QCOMPARE(corrections.Averaged().values[0], 200.0);
    QCOMPARE(corrections.Apply(exposed(220, 40000)).values[0], 210.0);
}

void SpectrumCorrectionsTest::saturationStaysInTheAverage()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 2;
    corrections.SetSettings(settings);
    Spectrum cutOff = Of({100, 5});
    cutOff.saturated[0] = 1;
    corrections.Apply(cutOff);
    QCOMPARE(corrections.Apply(Of({90, 5})).saturated, std::vector<quint8>({1, 0}));
    QCOMPARE(corrections.Apply(Of({90, 5})).saturated, std::vector<quint8>({0, 0}));
}

void SpectrumCorrectionsTest::darkAndReference_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("reference");
    QTest::addColumn<int>("quantity");
    QTest::addColumn<double>("value");
    const auto counts = int(SpectrumQuantity::Counts);
    QTest::newRow("dark") << true << false << counts << 400.0;
    QTest::newRow("reference") << false << true << counts << -600.0;
    QTest::newRow("both") << true << true << counts << -600.0;
    QTest::newRow("transmission") << true << false << int(SpectrumQuantity::Transmission) << 0.4;
    QTest::newRow("transmission without dark") << false << false << int(SpectrumQuantity::Transmission) << 500.0 / 1100;
    QTest::newRow("absorbance") << true << false << int(SpectrumQuantity::Absorbance) << 0.39794000867;
}

/// Sample 500, dark 100, reference 1100.
void SpectrumCorrectionsTest::darkAndReference()
{
    QFETCH(bool, dark);
    QFETCH(bool, reference);
    QFETCH(int, quantity);
    QFETCH(double, value);
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.subtractsDark = dark;
    settings.subtractsReference = reference;
    settings.quantity = SpectrumQuantity(quantity);
    corrections.SetSettings(settings);
    corrections.SetDark(Of({100, 100}));
    corrections.SetReference(Of({1100, 100}));
    const Spectrum result = corrections.Apply(Of({500, 500}));
    QVERIFY2(std::abs(result.values[0] - value) < 1e-9, qPrintable(QString::number(result.values[0])));
    QVERIFY(std::isfinite(result.values[1])); // no light in the reference
}

void SpectrumCorrectionsTest::aDarkOfAnotherWidthIsLeftOutAndTold()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.subtractsDark = true;
    corrections.SetSettings(settings);
    corrections.SetDark(Of({100, 100, 100}));
    QVERIFY(corrections.Apply(Of({500, 500})).values == std::vector<double>({500, 500}));
    QCOMPARE(corrections.Applied().Sentence(),
             QString("Corrections: no dark spectrum of this part of the picture to subtract."));
    corrections.Apply(Of({500, 500, 500}));
    QCOMPARE(corrections.Applied().Sentence(), QString("Corrections: dark subtracted."));
}

void SpectrumCorrectionsTest::spectraOfAnotherPlaceAreNotMixed_data()
{
    QTest::addColumn<SpectrumPlace>("place");
    SpectrumPlace place = somewhere;
    place.first = 20;
    QTest::newRow("another row") << place;
    place = somewhere;
    place.end = 30;
    QTest::newRow("more rows") << place;
    place = somewhere;
    place.isHorizontal = false;
    QTest::newRow("the other direction") << place;
    place = somewhere;
    place.sensor.orientation = Orientation(true, 0);
    QTest::newRow("mirrored") << place;
    place = somewhere;
    place.sensor.region.moveTopLeft(QPoint(100, 240));
    QTest::newRow("another region of the same size") << place;
    place = somewhere;
    place.sensor = {QRect(100, 200, 4, 80), 2, Orientation()};
    QTest::newRow("binned on the sensor") << place;
    place = somewhere;
    place.camera = "two";
    QTest::newRow("another camera") << place;
    place = somewhere;
    place.bitDepth = 8;
    QTest::newRow("other samples") << place;
    place = somewhere;
    place.isColour = true;
    QTest::newRow("colours") << place;
    place = somewhere;
    place.frame = QSize(2, 50);
    QTest::newRow("frames of another height") << place;
}

void SpectrumCorrectionsTest::spectraOfAnotherPlaceAreNotMixed()
{
    QFETCH(SpectrumPlace, place);
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 4;
    settings.subtractsDark = true;
    settings.subtractsReference = true;
    settings.removesCosmicRays = true;
    corrections.SetSettings(settings);
    Spectrum bright = Of({1100, 1100});
    bright.place = somewhere;
    Spectrum dark = Of({100, 100});
    dark.place = somewhere;
    corrections.SetDark(dark);
    corrections.SetReference(dark);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(corrections.Apply(bright).values[0], 1000.0);
    QCOMPARE(corrections.Applied().Sentence(),
             QString("Corrections: cosmic rays removed, average of 4, dark subtracted, reference subtracted."));
    Spectrum elsewhere = Of({150, 150});
    elsewhere.place = place;
    QCOMPARE(corrections.Apply(elsewhere).values[0], 150.0);
    QCOMPARE(corrections.Applied().Sentence(),
             QString("Corrections: cosmic rays removed, average of fewer than 4 so far, "
                     "no dark spectrum of this part of the picture to subtract, no reference spectrum of this part of the picture."));
    QCOMPARE(corrections.Applied().Record(), QString("cosmic rays removed, average of 1 spectra"));
}

void SpectrumCorrectionsTest::withoutReferenceCountsStayCounts()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.quantity = SpectrumQuantity::Transmission;
    corrections.SetSettings(settings);
    QCOMPARE(corrections.Apply(Of({6000, 6000})).values[0], 6000.0);
    QVERIFY(corrections.Applied().Quantity() == SpectrumQuantity::Counts);
    corrections.SetReference(Of({12000, 12000}));
    QCOMPARE(corrections.Apply(Of({6000, 6000})).values[0], 0.5);
    QVERIFY(corrections.Applied().Quantity() == SpectrumQuantity::Transmission);
}

void SpectrumCorrectionsTest::saturationSpreadsAsFarAsItReaches()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.smoothing = 5;
    settings.subtractsDark = true;
    settings.quantity = SpectrumQuantity::Transmission;
    corrections.SetSettings(settings);
    Spectrum sample = Of(std::vector<double>(20, 500));
    sample.saturated[10] = 1;
    QCOMPARE(corrections.Apply(sample).saturated, std::vector<quint8>({0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0}));
    Spectrum dark = Of(std::vector<double>(20, 100));
    dark.saturated[0] = 1;
    corrections.SetDark(dark);
    Spectrum reference = Of(std::vector<double>(20, 900));
    reference.saturated[19] = 1;
    corrections.SetReference(reference);
    QCOMPARE(corrections.Apply(sample).saturated, std::vector<quint8>({1, 1, 1, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 0, 0, 0, 0, 1, 1, 1}));
    settings.subtractsDark = false;
    settings.quantity = SpectrumQuantity::Counts;
    settings.smoothing = 0;
    corrections.SetSettings(settings);
    QCOMPARE(corrections.Apply(sample).saturated, sample.saturated);
}

void SpectrumCorrectionsTest::whatWasAveragedCanBecomeTheDark()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.averaged = 2;
    settings.subtractsDark = true;
    settings.smoothing = 5;
    corrections.SetSettings(settings);
    corrections.Apply(Of({10, 20, 10, 20, 10}));
    corrections.Apply(Of({20, 40, 20, 40, 20}));
    QVERIFY(corrections.Averaged().values == std::vector<double>({15, 30, 15, 30, 15}));
    corrections.SetDark(corrections.Averaged());
    QVERIFY(corrections.Averaged().values == std::vector<double>({15, 30, 15, 30, 15})); // not less itself
}

void SpectrumCorrectionsTest::theBaselineGoesAndTheLineStays()
{
    std::vector<double> samples(1024);
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = 1000 + 300 * std::sin(double(i) / 400);
    AddLine(&samples, 500, 5000, 3);
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.removesBaseline = true;
    corrections.SetSettings(settings);
    const std::vector<double> values = corrections.Apply(Of(samples)).values;
    QVERIFY2(std::abs(values[500] - 5000) < 50, qPrintable(QString::number(values[500])));
    QVERIFY2(std::abs(values[200]) < 20, qPrintable(QString::number(values[200])));
}

void SpectrumCorrectionsTest::aDarkOfAnotherExposureIsSaid_data()
{
    QTest::addColumn<double>("ofDark");
    QTest::addColumn<double>("ofSpectrum");
    QTest::addColumn<bool>("isOther");
    QTest::newRow("the same") << 20000.0 << 20000.0 << false;
    QTest::newRow("as the camera rounds it") << 20000.0 << 20003.0 << false;
    QTest::newRow("longer") << 20000.0 << 40000.0 << true;
    QTest::newRow("a little shorter") << 20000.0 << 19000.0 << true;
    QTest::newRow("of an unknown one") << 0.0 << 20000.0 << false;
    QTest::newRow("now unknown") << 20000.0 << 0.0 << false;
}

void SpectrumCorrectionsTest::aDarkOfAnotherExposureIsSaid()
{
    QFETCH(double, ofDark);
    QFETCH(double, ofSpectrum);
    QFETCH(bool, isOther);
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.subtractsDark = true;
    corrections.SetSettings(settings);
    Spectrum dark = Of({1, 2});
    dark.exposureUs = ofDark;
    corrections.SetDark(dark);
    Spectrum raw = Of({10, 20});
    raw.exposureUs = ofSpectrum;
    QVERIFY(corrections.Apply(raw).values == std::vector<double>({9, 18})); // as it was wanted
    QCOMPARE(corrections.Applied().Sentence(), isOther ? QString("Corrections: dark of another exposure subtracted: take it anew.")
                                                       : QString("Corrections: dark subtracted."));
    QCOMPARE(corrections.Applied().Record(), isOther ? QString("dark of another exposure subtracted") : QString("dark subtracted"));
}

void SpectrumCorrectionsTest::theSentenceSaysAll()
{
    SpectrumCorrections corrections;
    CorrectionSettings settings;
    settings.removesCosmicRays = true;
    settings.averaged = 2;
    settings.subtractsDark = true;
    settings.quantity = SpectrumQuantity::Transmission;
    settings.removesBaseline = true;
    settings.smoothing = 6;
    corrections.SetSettings(settings);
    corrections.SetDark(Of({1, 1, 1, 1, 1, 1, 1, 1}));
    corrections.SetReference(Of({2, 2, 2, 2, 2, 2, 2, 2}));
    corrections.Apply(Of({1, 2, 1, 2, 1, 2, 1, 2}));
    QCOMPARE(corrections.Applied().Sentence(),
             QString("Corrections: cosmic rays removed, average of fewer than 2 so far, dark subtracted, "
                     "transmission in 1/100 %, baseline removed, smoothed over 7 samples."));
    corrections.Apply(Of({1, 2, 1, 2, 1, 2, 1, 2}));
    QCOMPARE(corrections.Applied().Sentence(), QString("Corrections: cosmic rays removed, average of 2, dark subtracted, "
                                                       "transmission in 1/100 %, baseline removed, smoothed over 7 samples."));
    QCOMPARE(corrections.Applied().Record(), QString("cosmic rays removed, average of 2 spectra, dark subtracted, "
                                                     "divided by reference, baseline removed, smoothed over 7 samples"));
}

GUARDED_TEST_MAIN(SpectrumCorrectionsTest)
#include "spectrumcorrectionstest.moc"
