// SPDX-License-Identifier: GPL-3.0-or-later
#include "palette.h"
#include "guardedtest.h"
#include "levelsconverter.h"
#include "levelsmodel.h"
#include "sampleview.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>

namespace {

/// CIE 1976 lightness, 0 to 100, of an sRGB colour under D65.
double Lightness(QRgb colour)
{
    const auto linear = [](int value) {
        const double part = value / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const double y = 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
    return y > 216.0 / 24389 ? 116 * std::cbrt(y) - 16 : y * 24389 / 27;
}

SampleView ViewOf(const std::vector<quint16> &samples, int width)
{
    SampleView view;
    view.samples = reinterpret_cast<const uchar *>(samples.data());
    view.width = width;
    view.height = int(samples.size()) / width;
    view.strideBytes = width * 2;
    view.bitDepth = 16;
    return view;
}

} // namespace

class PaletteTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void namesAreThoseThatPeopleExpect();
    void knownColours_data();
    void knownColours();
    void lightnessRises_data();
    void lightnessRises();
    void turboRisesAndFalls();
    void otherNamesAreGrey();
    void paintsEveryPixelAndNothingBeyond_data();
    void paintsEveryPixelAndNothingBeyond();
    void picturesAreColoured_data();
    void picturesAreColoured();
    void saturatedSamplesStayRed();
    void colourPicturesKeepTheirColours();
    void modelKeepsThePalette();
    void nonsenseInTheSettingsIsGrey();
};

void PaletteTest::namesAreThoseThatPeopleExpect()
{
    QCOMPARE(Palette::Names(),
             QStringList({"grey", "inverted", "viridis", "inferno", "magma", "cividis", "turbo"}));
    for (const QString &name : Palette::Names())
        QCOMPARE(Palette(name).Name(), name);
    QVERIFY(Palette().IsGrey() && Palette("grey").IsGrey());
    QVERIFY(!Palette("inverted").IsGrey());
}

/// Ends and middle as the authors and the handbooks of plotting programs name them.
void PaletteTest::knownColours_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("grey");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("grey, dark") << "grey" << 0 << QColor("#000000");
    QTest::newRow("grey, middle") << "grey" << 128 << QColor("#808080");
    QTest::newRow("inverted, dark") << "inverted" << 0 << QColor("#ffffff");
    QTest::newRow("inverted, bright") << "inverted" << 255 << QColor("#000000");
    QTest::newRow("viridis, dark") << "viridis" << 0 << QColor("#440154");
    QTest::newRow("viridis, middle") << "viridis" << 128 << QColor("#21918c");
    QTest::newRow("viridis, bright") << "viridis" << 255 << QColor("#fde725");
    QTest::newRow("inferno, dark") << "inferno" << 0 << QColor("#000004");
    QTest::newRow("inferno, middle") << "inferno" << 128 << QColor("#bc3754");
    QTest::newRow("inferno, bright") << "inferno" << 255 << QColor("#fcffa4");
    QTest::newRow("magma, dark") << "magma" << 0 << QColor("#000004");
    QTest::newRow("magma, middle") << "magma" << 128 << QColor("#b73779");
    QTest::newRow("magma, bright") << "magma" << 255 << QColor("#fcfdbf");
    QTest::newRow("cividis, dark") << "cividis" << 0 << QColor("#00224e");
    QTest::newRow("cividis, middle") << "cividis" << 128 << QColor("#7d7c78");
    QTest::newRow("cividis, bright") << "cividis" << 255 << QColor("#fee838");
    QTest::newRow("turbo, dark") << "turbo" << 0 << QColor("#30123b");
    QTest::newRow("turbo, bright") << "turbo" << 255 << QColor("#7a0403");
}

void PaletteTest::knownColours()
{
    QFETCH(QString, name);
    QFETCH(int, grey);
    QFETCH(QColor, colour);
    // Tables are rounded one way or another.
    const QColor found = Palette(name).Colours().at(grey);
    QCOMPARE(found, QColor(Palette(name).Colour(grey)));
    const int apart = std::max({std::abs(found.red() - colour.red()), std::abs(found.green() - colour.green()),
                                std::abs(found.blue() - colour.blue())});
    QVERIFY2(apart <= 1, qPrintable(found.name()));
}

void PaletteTest::lightnessRises_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"grey", "viridis", "inferno", "magma", "cividis"})
        QTest::newRow(name) << name;
}

/// What makes them perceptually uniform: equal steps of grey are about equal steps of lightness. (In the dark end, where
/// the colour has a share in what is seen, a little less.)
void PaletteTest::lightnessRises()
{
    QFETCH(QString, name);
    const Palette palette(name);
    const double whole = Lightness(palette.Colour(255)) - Lightness(palette.Colour(0));
    QVERIFY(whole > 70);
    for (int grey = 16; grey < Palette::Size; ++grey) {
        const double step = Lightness(palette.Colour(grey)) - Lightness(palette.Colour(grey - 16));
        QVERIFY2(step > 0.4 * whole / 16 && step < 1.6 * whole / 16,
                 qPrintable(QString("%1 to %2: %3 of %4").arg(grey - 16).arg(grey).arg(step).arg(whole / 16)));
    }
}

void PaletteTest::turboRisesAndFalls()
{
    const Palette turbo("turbo");
    QVERIFY(Lightness(turbo.Colour(120)) > 75);
    for (int grey = 16; grey <= 100; ++grey)
        QVERIFY(Lightness(turbo.Colour(grey)) > Lightness(turbo.Colour(grey - 16)));
    for (int grey = 180; grey < Palette::Size; ++grey)
        QVERIFY(Lightness(turbo.Colour(grey)) < Lightness(turbo.Colour(grey - 16)));
}

void PaletteTest::otherNamesAreGrey()
{
    QVERIFY(Palette("rainbow").IsGrey());
    QVERIFY(Palette(QString()).IsGrey());
    QVERIFY(Palette("Viridis").IsGrey());
    QCOMPARE(Palette("turbo").Colour(-5), Palette("turbo").Colour(0));
    QCOMPARE(Palette("turbo").Colour(300), Palette("turbo").Colour(255));
}

void PaletteTest::paintsEveryPixelAndNothingBeyond_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 2, 3, 255, 256, 1001})
        QTest::newRow(qPrintable(QString::number(count))) << count;
}

void PaletteTest::paintsEveryPixelAndNothingBeyond()
{
    QFETCH(int, count);
    const Palette palette("magma");
    std::vector<uchar> greys(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i)
        greys[size_t(i)] = uchar(i * 7);
    std::vector<uchar> rgb(greys.size() * 3 + 4, 0x5A);
    palette.Paint(greys.data(), count, rgb.data());
    for (int i = 0; i < count; ++i) {
        const uchar *pixel = rgb.data() + 3 * i;
        QCOMPARE(qRgb(pixel[0], pixel[1], pixel[2]), palette.Colour(uchar(i * 7)));
    }
    for (size_t i = size_t(count) * 3; i < rgb.size(); ++i)
        QCOMPARE(int(rgb[i]), 0x5A);
}

void PaletteTest::picturesAreColoured_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : Palette::Names())
        QTest::newRow(qPrintable(name)) << name;
}

/// In a palette each pixel has the colour of the grey that it has without.
void PaletteTest::picturesAreColoured()
{
    QFETCH(QString, name);
    std::vector<quint16> samples(1024 * 9);
    for (size_t i = 0; i < samples.size(); ++i)
        samples[i] = quint16(i * 31);
    for (const double gamma : {1.0, 2.2}) {
        const DisplayLevels levels{1000, 60000, gamma};
        LevelsConverter converter;
        QImage grey;
        QImage coloured;
        converter.Convert(ViewOf(samples, 1024), levels, &grey);
        converter.Convert(ViewOf(samples, 1024), levels, &coloured, false, Palette(name));
        QCOMPARE(coloured.format(), name == "grey" ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
        for (int y = 0; y < grey.height(); ++y) {
            for (int x = 0; x < grey.width(); ++x)
                QCOMPARE(coloured.pixel(x, y), Palette(name).Colour(qGray(grey.pixel(x, y))));
        }
    }
}

void PaletteTest::saturatedSamplesStayRed()
{
    const std::vector<quint16> samples = {0, 65534, 65535, 30000};
    QImage picture;
    LevelsConverter().Convert(ViewOf(samples, 4), DisplayLevels::FullRange(16), &picture, true, Palette("viridis"));
    QCOMPARE(picture.pixel(0, 0), Palette("viridis").Colour(0));
    QCOMPARE(picture.pixel(1, 0), Palette("viridis").Colour(255));
    QCOMPARE(picture.pixel(2, 0), qRgb(255, 0, 0));
    QCOMPARE(picture.pixel(3, 0), Palette("viridis").Colour(117));
}

void PaletteTest::colourPicturesKeepTheirColours()
{
    const std::vector<uchar> samples = {10, 20, 30, 255, 0, 7};
    SampleView view;
    view.samples = samples.data();
    view.width = 2;
    view.height = 1;
    view.strideBytes = 6;
    view.isColour = true;
    QImage picture;
    LevelsConverter().Convert(view, DisplayLevels::FullRange(8), &picture, false, Palette("viridis"));
    QCOMPARE(picture.pixel(0, 0), qRgb(10, 20, 30));
    QCOMPARE(picture.pixel(1, 0), qRgb(255, 0, 7));
    LevelsConverter().Convert(view, DisplayLevels::FullRange(8), &picture, true, Palette("viridis"));
    QCOMPARE(picture.pixel(1, 0), qRgb(255, 0, 0));
}

void PaletteTest::modelKeepsThePalette()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    LevelsModel model(&settings);
    QVERIFY(model.GetPalette().IsGrey());
    const QSignalSpy palettes(&model, &LevelsModel::signalPaletteChanged);
    const QSignalSpy changes(&model, &LevelsModel::signalChanged);
    model.SetPalette(Palette("cividis"));
    model.SetPalette(Palette("cividis"));
    QCOMPARE(palettes.count(), 1);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(LevelsModel(&settings).GetPalette().Name(), QString("cividis"));
}

void PaletteTest::nonsenseInTheSettingsIsGrey()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath("settings.ini"), QSettings::IniFormat);
    settings.setValue("levels/palette", QVariantList{1, 2});
    QVERIFY(LevelsModel(&settings).GetPalette().IsGrey());
}

GUARDED_TEST_MAIN(PaletteTest)
#include "palettetest.moc"
