// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "guardedtest.h"
#include "loaderanswers.h"
#include "openpicture.h"
#include "picturebench.h"
#include "spebytes.h"
#include "spectralmetadata.h"
#include "tiffbytes.h"
#include "viewcodes.h"

#include <QRegularExpression>

/// What the columns, or the rows, of a picture mean goes with it into the file it is saved as, and where it lies on the
/// sensor.
class SavedCalibrationTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_levels = std::make_unique<LevelsModel>();
        m_loader = std::make_unique<PictureLoader>(m_levels.get());
    }

    void cleanup() override
    {
        m_loader.reset();
        EndGuard();
    }

    /// A part of it has a part of its columns.
    void thatOfTheColumns()
    {
        const QSize size(20, 6);
        MadePictures::Write(Path("plain.tif"), size);
        SpectralRecord record;
        record.coefficients = { 400, 2 };
        record.width = size.width();
        SaveRequest request;
        request.file = { 1, Path("plain.tif") };
        request.calibration = SpectralMetadata(record);
        request.target = Path("whole.tif");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(AxisOf("whole.tif").values.value(3), 406.0);

        request.file = { 2, Path("whole.tif") };
        request.calibration.clear();
        request.target = Path("again.fits");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(AxisOf("again.fits").values.value(3), 406.0);
        record.coefficients = { 600, 5 };
        request.calibration = SpectralMetadata(record); // what it is shown with
        request.target = Path("other.tif");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(AxisOf("other.tif").values.value(3), 615.0);
        request.calibration.clear();

        request.edit = PictureEdit().Cropped(QRect(5, 1, 10, 4), size);
        request.target = Path("part.tif");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(AxisOf("part.tif").values.size(), 10);
        QCOMPARE(AxisOf("part.tif").values.value(0), 410.0);
        request.edit = PictureEdit().Turned(FlipHorizontal);
        request.target = Path("mirrored.tif");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(AxisOf("mirrored.tif").values.value(3), 432.0);
    }

    /// That of a file's first page means nothing on a page of another size.
    void thatOfAnotherPageIsLeftOut()
    {
        TiffBytes tiff;
        const quint32 samples = tiff.Append(QByteArray(20 * 4, '\0'));
        tiff.AppendPage(TiffBytes::GreyPage(10, 4, 8, samples),
                        "SPECUNIT=nm\nSPECWID=10\nSPECDEG=1\nSPECC0=400\nSPECC1=2\n");
        tiff.AppendPage(TiffBytes::GreyPage(20, 4, 8, samples));
        MadePictures::WriteBytes(Path("pages.tif"), tiff.Bytes());
        SaveRequest request;
        request.file = { 1, Path("pages.tif") };
        for (const QString suffix : { "tif", "fits" }) {
            request.firstFrame = 0;
            request.edit = PictureEdit().Cropped(QRect(2, 0, 6, 4), QSize(10, 4));
            request.target = Path("first." + suffix);
            QCOMPARE(SaveError(request), QString());
            QCOMPARE(AxisOf("first." + suffix).values, QVector<double>({ 404, 406, 408, 410, 412, 414 }));
            request.firstFrame = 1;
            request.edit = PictureEdit().Cropped(QRect(2, 0, 6, 4), QSize(20, 4));
            request.target = Path("second." + suffix);
            QCOMPARE(SaveError(request), QString());
            QCOMPARE(MadePictures::Read(request.target).Width(), 6);
            QVERIFY(AxisOf("second." + suffix).IsEmpty());
        }
    }

    /// Where its region lies on the sensor goes with a whole frame, not with a part or a turned one.
    void thePlaceOnTheSensor()
    {
        SpeBytes spe(0, 0, 3, 1, 3.0F);
        spe.AppendRamp(6).AppendFooter(
            "<SpeFormat><DataBlock type=\"Frame\" count=\"1\" pixelFormat=\"MonochromeUnsigned16\" stride=\"12\">"
            "<DataBlock type=\"Region\" width=\"3\" height=\"1\" stride=\"6\" calibrations=\"1\"/>"
            "<DataBlock type=\"Region\" width=\"3\" height=\"1\" stride=\"6\" calibrations=\"2\"/></DataBlock>"
            "<SensorMapping id=\"1\" x=\"1\" y=\"0\" width=\"3\" height=\"1\"/>"
            "<SensorMapping id=\"2\" x=\"2\" y=\"5\" width=\"3\" height=\"1\"/></SpeFormat>");
        MadePictures::WriteBytes(Path("regions.spe"), spe.Bytes());
        SaveRequest request;
        request.file = { 1, Path("regions.spe") };
        request.target = Path("saved.tif");
        request.frameCount = 2;
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(RegionsOf("saved.tif"), QStringList({ "Region1=columns 1 to 3, rows 0 to 0", "Region2=columns 2 to 4, rows 5 to 5" }));
        request.frameCount = 1;
        request.firstFrame = 1;
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(RegionsOf("saved.tif"), QStringList("Region2=columns 2 to 4, rows 5 to 5"));
        request.edit = PictureEdit().Cropped(QRect(1, 0, 2, 1), QSize(3, 1));
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(RegionsOf("saved.tif"), QStringList());
        request.edit = PictureEdit().Turned(FlipHorizontal);
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(RegionsOf("saved.tif"), QStringList());
    }

    void thatOfTheRows_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("target");
        QTest::newRow("TIFF") << int(SampleType::U16) << "saved.tif";
        QTest::newRow("FITS") << int(SampleType::F32) << "saved.fits";
        QTest::newRow("PNG") << int(SampleType::U16) << "saved.png";
        QTest::newRow("PNG of other samples") << int(SampleType::F32) << "saved.png";
        QTest::newRow("JPEG") << int(SampleType::U16) << "saved.jpg";
    }

    /// Turned it is that of the columns.
    void thatOfTheRows()
    {
        QFETCH(int, type);
        QFETCH(QString, target);
        const QSize size(6, 20);
        Picture picture(size.width(), size.height(), 1, SampleType(type));
        std::fill_n(picture.Data(), picture.ByteCount(), uchar(0));
        SpectralRecord record;
        record.side = SpectralSide::Rows;
        record.coefficients = { 400, 2 };
        record.width = size.height();
        SaveOptions options;
        options.metadata = SpectralMetadata(record);
        QString error;
        QVERIFY2(SavePicture(Path("opened.fits"), picture, options, error), qPrintable(error));

        SaveRequest request;
        request.file = { 1, Path("opened.fits") };
        request.target = Path(target);
        QCOMPARE(SaveError(request), QString());
        SpectralAxis axis = AxisOf(target);
        QCOMPARE(int(axis.side), int(SpectralSide::Rows));
        QCOMPARE(axis.values.size(), 20);
        QCOMPARE(axis.values.value(3), 406.0);

        request.edit =
            PictureEdit().Turned(RotateBy90).Cropped(QRect(1, 0, 15, 6), size); // the last row is at the left
        request.target = Path("turned" + target);
        QCOMPARE(SaveError(request), QString());
        axis = AxisOf("turned" + target);
        QCOMPARE(int(axis.side), int(SpectralSide::Columns));
        QCOMPARE(axis.values.size(), 15);
        QCOMPARE(axis.values.value(0), 436.0);
        QCOMPARE(axis.values.value(14), 408.0);

        record.coefficients = { 700, -1 };
        request.edit = PictureEdit();
        request.calibration = SpectralMetadata(record); // what it is shown with
        request.target = Path("other" + target);
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(AxisOf("other" + target).values.value(3), 697.0);
    }

private:
    QString Path(const QString &name) const { return m_folder->filePath(name); }
    SpectralAxis AxisOf(const QString &name) const
    {
        QString error;
        const auto file = OpenPicture(Path(name), error);
        if (!file)
            qFatal("%s", qPrintable(error));
        return file->AxisOf(0);
    }

    /// What a saved file says of regions.
    QStringList RegionsOf(const QString &name) const
    {
        QString error;
        const auto file = OpenPicture(Path(name), error);
        if (!file)
            qFatal("%s", qPrintable(error));
        const QRegularExpression fact("Region[0-9]*=columns [0-9]+ to [0-9]+, rows [0-9]+ to [0-9]+");
        QStringList found;
        for (const MetadataEntry &entry : file->Info().metadata) {
            for (auto matches = fact.globalMatch(entry.value); matches.hasNext();)
                found << matches.next().captured();
        }
        return found;
    }

    QString SaveError(const SaveRequest &request) const
    {
        const LoaderAnswers answers(m_loader.get());
        m_loader->Save(request);
        return QTest::qWaitFor([&] { return !answers.saveErrors.isEmpty(); }) ? answers.saveErrors.first()
                                                                              : "no answer";
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LevelsModel> m_levels;
    std::unique_ptr<PictureLoader> m_loader;
};

GUARDED_TEST_MAIN(SavedCalibrationTest)
#include "savedcalibrationtest.moc"
