// SPDX-License-Identifier: GPL-3.0-or-later
#include "processing.h"
#include "guardedtest.h"
#include "processedpicture.h"
#include "randompicture.h"

#include <algorithm>
#include <cmath>

using namespace ProcessedPicture;
using namespace RandomPicture;

/// Flat fields, binning and merging against the same calculated sample by sample, and what holds for every step.
class ProcessingTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void anUnevenFieldIsDividedAway_data() { AddShapes(); }
    void anUnevenFieldIsDividedAway()
    {
        const Picture picture = RowPicture(3);
        Picture reference = Make(picture.Size(), 1, SampleType::U16, 77);
        Set(reference, 0, 0, 0, 0); // a dead pixel
        double sum = 0;
        int lit = 0;
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                sum += At(reference, x, y, 0);
                lit += At(reference, x, y, 0) > 0;
            }
        }
        FlatFieldSettings settings;
        settings.reference = "even.tif";
        const Picture result = Done(picture, settings, nullptr, [&](const QString &path, Picture &frame, QString &) {
            frame = reference;
            return path == "even.tif";
        });
        const auto expected = [&](int x, int y, int channel) {
            const double even = At(reference, x, y, 0);
            const double value = At(picture, x, y, channel);
            return OrGap(picture, x, y, channel,
                         Stored(even > 0 ? value * (sum / lit) / even : value, picture.Type()));
        };
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                for (int channel = 0; channel < picture.Channels(); ++channel) {
                    const double is = At(result, x, y, channel);
                    const double wanted = expected(x, y, channel);
                    if (std::isnan(wanted)) {
                        QVERIFY(std::isnan(is));
                        continue;
                    }
                    const double room = IsFloat(picture.Type()) ? std::abs(wanted) * 1e-6 : 1;
                    QVERIFY2(std::abs(is - wanted) <= room, qPrintable(QString("%1 not %2").arg(is).arg(wanted)));
                }
            }
        }
    }

    void aReferenceThatDoesNotFitIsRefused()
    {
        QString error;
        FlatFieldSettings settings;
        settings.reference = "small.tif";
        const ReferenceReader small = [](const QString &, Picture &frame, QString &) {
            frame = Make(QSize(3, 2), 1, SampleType::U8, 1);
            return true;
        };
        QVERIFY(Done(Make(QSize(4, 4), 1, SampleType::U8, 1), settings, &error, small).IsNull());
        QCOMPARE(error, QString("The reference is 3x2 pixels and the picture 4x4. Choose a reference of the same size, "
                                "and correct the picture before it is cropped, turned or binned."));
        QVERIFY(Done(Make(QSize(4, 4), 1, SampleType::U8, 1), settings, &error).IsNull());
        QCOMPARE(error, QString("no reference"));
        QVERIFY(Done(Make(QSize(4, 4), 1, SampleType::U8, 1), FlatFieldSettings(), &error).IsNull());
        QCOMPARE(error, QString("Choose a reference: a picture of an evenly lit field."));
    }

    void binningGivesMeansAndSums_data() { AddShapes(); }
    void binningGivesMeansAndSums()
    {
        const Picture picture = RowPicture(3);
        for (const bool sums : { false, true }) {
            BinningSettings settings;
            settings.size = 3;
            settings.sums = sums;
            QString error;
            const Picture result = Done(picture, settings, &error);
            const QSize size(picture.Width() / 3, picture.Height() / 3);
            if (size.isEmpty()) {
                QVERIFY(result.IsNull());
                QCOMPARE(error, QString("The picture, %1x%2 pixels, is smaller than 3x3.")
                                    .arg(picture.Width())
                                    .arg(picture.Height()));
                continue;
            }
            QCOMPARE(result.Size(), size);
            QCOMPARE(ProcessedSize(picture.Size(), settings), size);
            const auto expected = [&](int x, int y, int channel) {
                double sum = 0;
                for (int i = 0; i < 9; ++i)
                    sum += At(picture, 3 * x + i % 3, 3 * y + i / 3, channel);
                // Infinite samples make an infinite sum, or none.
                return sums || IsFloat(picture.Type()) ? (sums ? sum : sum / 9) : std::round(sum / 9);
            };
            QCOMPARE(Difference(result, expected, Digits(picture.Type())), QString());
        }
    }

    void sumsGetATypeThatHoldsThem()
    {
        const QVector<QPair<SampleType, SampleType>> types = {
            { SampleType::U8, SampleType::U16 },  { SampleType::S8, SampleType::S16 },
            { SampleType::U16, SampleType::U32 }, { SampleType::S16, SampleType::S32 },
            { SampleType::U32, SampleType::F64 }, { SampleType::S32, SampleType::F64 },
            { SampleType::F32, SampleType::F32 }, { SampleType::F64, SampleType::F64 }
        };
        for (const auto &type : types) {
            BinningSettings settings;
            settings.sums = true;
            QCOMPARE(int(Done(Make(QSize(4, 4), 1, type.first, 3), settings).Type()), int(type.second));
        }
        Picture brightest(16, 16, 1, SampleType::U8);
        std::fill_n(brightest.Data(), 256, uchar(255));
        BinningSettings all;
        all.size = 16;
        all.sums = true;
        QCOMPARE(At(Done(brightest, all), 0, 0, 0), 256 * 255.0);
    }

    void picturesOfOtherFilesAreMerged()
    {
        const QVector<Picture> pictures = { Make(QSize(6, 5), 3, SampleType::U16, 1),
                                            Make(QSize(6, 5), 3, SampleType::U16, 2),
                                            Make(QSize(6, 5), 3, SampleType::U16, 3) };
        const ReferenceReader read = [&](const QString &path, Picture &frame, QString &error) {
            frame = pictures.at(path == "b.tif" ? 1 : 2);
            error = path == "gone.tif" ? "gone.tif is gone" : "";
            return error.isEmpty();
        };
        MergeSettings settings;
        settings.projection.method = ProjectionSettings::Method::Minimum;
        settings.others = QStringList{ "b.tif", "c.tif" };
        QString error;
        const Picture merged = Done(pictures.first(), settings, &error, read);
        QCOMPARE(error, QString());
        QCOMPARE(Difference(merged,
                            [&](int x, int y, int channel) {
                                return std::min({ At(pictures.at(0), x, y, channel), At(pictures.at(1), x, y, channel),
                                                  At(pictures.at(2), x, y, channel) });
                            }),
                 QString());
        settings.others << "gone.tif";
        QVERIFY(Done(pictures.first(), settings, &error, read).IsNull());
        QCOMPARE(error, QString("gone.tif is gone"));
        QVERIFY(Done(pictures.first(), MergeSettings(), &error, read).IsNull());
        QCOMPARE(error, QString("Check the other pictures to merge in the list of opened pictures."));
    }

    void nothingIsDoneWithoutASetting()
    {
        const Picture picture = Make(QSize(5, 4), 3, SampleType::S16, 8);
        QVERIFY(Done(picture, ProcessSettings()) == picture);
        QVERIFY(!IsProjection(ProcessSettings()));
        QVERIFY(IsProjection(ProjectionSettings()));
    }

    void anEmptyPictureIsRefused()
    {
        QString error;
        QVERIFY(Done(Picture(), DenoiseSettings(), &error).IsNull());
        QCOMPARE(error, QString("There is no picture that could be processed."));
    }

    /// Nothing but gaps: they stay.
    void aPictureWithoutNumbersStaysOne()
    {
        Picture picture(5, 4, 1, SampleType::F32);
        std::fill_n(picture.Samples<float>(0), 20, std::numeric_limits<float>::quiet_NaN());
        const ProcessSettings steps[] = { BackgroundSettings(), DenoiseSettings(), SharpenSettings(),
                                          MorphologySettings(), BandPassSettings(), BinningSettings() };
        for (const ProcessSettings &step : steps)
            QCOMPARE(Difference(Done(picture, step), [](int, int, int) { return double(NAN); }), QString());
    }

    void whatNeedsMoreMemoryThanThereIsIsSaid()
    {
        QCOMPARE(MemoryFault(3 << 20, 1 << 20),
                 QString("This needs 3.00 MiB of memory, and 1.00 MiB is free. Close other pictures or programs."));
        QCOMPARE(MemoryFault(1 << 20, 1 << 20), QString());
        QCOMPARE(MemoryFault(1 << 20, -1), QString()); // nobody knows
        const Picture picture(1000, 500, 1, SampleType::U8);
        // Two planes at the least; the transform works on one four times as large.
        QVERIFY(WorkingBytes(picture, DenoiseSettings()) >= 2 * 4 * 500000);
        QVERIFY(WorkingBytes(picture, BandPassSettings()) >= 2 * 4 * 4 * 500000);
    }

    /// Numbers outside their limits do what the nearest limit does.
    void settingsOutsideTheirLimitsAreMoved()
    {
        const Picture picture = Make(QSize(12, 10), 1, SampleType::U16, 4);
        BackgroundSettings wide;
        wide.radius = 1 << 30;
        BackgroundSettings widest;
        widest.radius = BackgroundSettings::MostRadius;
        QVERIFY(Done(picture, wide) == Done(picture, widest));
        BinningSettings none;
        none.size = -7;
        QVERIFY(Done(picture, none) == Done(picture, BinningSettings()));
        DenoiseSettings strong;
        strong.sigma = 1e9;
        DenoiseSettings strongest;
        strongest.sigma = DenoiseSettings::MostSigma;
        QVERIFY(Done(picture, strong) == Done(picture, strongest));
    }
};

GUARDED_TEST_MAIN(ProcessingTest)
#include "processingtest.moc"
