// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "guardedtest.h"
#include "loaderanswers.h"
#include "openpicture.h"
#include "picturebench.h"
#include "viewcodes.h"

#include <QFile>

namespace {

PictureRequest Request(const QString &path, int frame, int place = 0)
{
    PictureRequest request;
    request.place = place;
    request.file = { 1, path };
    request.frame = frame;
    return request;
}

} // namespace

/// Files are read and written beside the GUI, in an order that serves the eye.
class PictureLoaderTest : public GuardedTest
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

    void aFrameComesWithAllThatIsKnown()
    {
        MadePictures::Write(Path("stack.tif"), QSize(6, 4), 3);
        const LoaderAnswers answers(m_loader.get());
        PictureRequest request = Request(Path("stack.tif"), 2);
        request.edit = PictureEdit().Turned(0);
        const quint64 ticket = m_loader->Load(request);
        QTRY_COMPARE(answers.loaded.size(), 1);
        const LoadedPicture &picture = answers.loaded.first();
        QCOMPARE(picture.error, QString());
        QCOMPARE(picture.request.ticket, ticket);
        QCOMPARE(picture.info.frames, 3);
        QCOMPARE(picture.fileSize, QSize(6, 4));
        QCOMPARE(picture.samples.Size(), QSize(4, 6));
        QCOMPARE(int(picture.samples.Samples<quint16>(0)[0]), MadePictures::Value(0, 3, 2));
        QCOMPARE(picture.image.size(), QSize(4, 6));
        QVERIFY(picture.range.IsKnown());
    }

    void theNewestRequestOfAPlaceWinsAndEveryPlaceIsServed()
    {
        MadePictures::Write(Path("stack.tif"), QSize(20, 20), 60);
        const LoaderAnswers answers(m_loader.get());
        for (int frame = 0; frame < 60; ++frame)
            m_loader->Load(Request(Path("stack.tif"), frame, 0));
        const quint64 other = m_loader->Load(Request(Path("stack.tif"), 7, 1));
        QTRY_VERIFY(!answers.loaded.isEmpty() && answers.loaded.last().request.ticket == other);
        int last = -1;
        for (int i = 0; i < answers.loaded.size() - 1; ++i) {
            QVERIFY(answers.loaded.at(i).request.frame > last);
            last = answers.loaded.at(i).request.frame;
        }
        QCOMPARE(last, 59);
    }

    void theNeighbourIsReadBeforeItIsAskedFor_data()
    {
        QTest::addColumn<QVector<int>>("shown");
        QTest::addColumn<int>("ahead");
        QTest::newRow("just opened") << QVector<int>{ 0 } << 1;
        QTest::newRow("forwards") << QVector<int>{ 1, 2 } << 3;
        QTest::newRow("backwards") << QVector<int>{ 3, 2 } << 1;
        QTest::newRow("a jump") << QVector<int>{ 0, 2 } << 3;
        QTest::newRow("the same again") << QVector<int>{ 3, 2, 2 } << 1;
    }

    void theNeighbourIsReadBeforeItIsAskedFor()
    {
        QFETCH(QVector<int>, shown);
        QFETCH(int, ahead);
        MadePictures::Write(Path("stack.tif"), QSize(6, 4), 5);
        const LoaderAnswers answers(m_loader.get());
        for (int i = 0; i < shown.size(); ++i) {
            m_loader->Load(Request(Path("stack.tif"), shown.at(i)));
            QTRY_COMPARE(answers.readAhead.size(), i + 1);
        }
        QCOMPARE(answers.readAhead.last(), ahead);
        QVERIFY(QFile::resize(Path("stack.tif"), 0));
        m_loader->Load(Request(Path("stack.tif"), ahead));
        QTRY_COMPARE(answers.loaded.size(), shown.size() + 1);
        QCOMPARE(answers.loaded.last().error, QString());
        QCOMPARE(int(answers.loaded.last().samples.Samples<quint16>(0)[0]), MadePictures::Value(0, 0, ahead));
    }

    void readingAheadIsTheLastThingToDo()
    {
        MadePictures::Write(Path("large.tif"), QSize(2000, 2000)); // keeps the worker busy while the others come
        MadePictures::Write(Path("stack.tif"), QSize(20, 20), 40);
        const LoaderAnswers answers(m_loader.get());
        PictureRequest large = Request(Path("large.tif"), 0, 2);
        large.file.id = 2;
        m_loader->Load(large);
        m_loader->MakeThumbnail({ 1, Path("stack.tif") });
        m_loader->Load(Request(Path("stack.tif"), 7));
        m_loader->Load(Request(Path("stack.tif"), 30, 1));
        QTRY_COMPARE(answers.readAhead.size(), 2);
        QCOMPARE(answers.order,
                 QStringList({ "frame 0", "frame 7", "frame 30", "thumbnail", "ahead 8", "ahead 31" }));
    }

    void aWholeStackIsSavedAsItIsSeen()
    {
        MadePictures::Write(Path("stack.tif"), QSize(6, 4), 3);
        SaveRequest request;
        request.file = { 1, Path("stack.tif") };
        request.frameCount = 3;
        request.edit = PictureEdit().Cropped(QRect(1, 1, 4, 2), QSize(6, 4)).Turned(1);
        request.target = Path("saved.tif");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(MadePictures::Frames(Path("saved.tif")), 3);
        const Picture saved = MadePictures::Read(Path("saved.tif"), 2);
        QCOMPARE(saved.Size(), QSize(4, 2));
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 4; ++x)
                QCOMPARE(int(saved.Samples<quint16>(y)[x]), MadePictures::Value(4 - x, 1 + y, 2));
        }
    }

    void deepSamplesBecomeTheScreensInJpegAndStayInPng()
    {
        MadePictures::Write(Path("deep.tif"), QSize(20, 20));
        SaveRequest request;
        request.file = { 1, Path("deep.tif") };
        request.ranges = { { 0, 510 } };
        request.target = Path("saved.png");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(int(MadePictures::Read(Path("saved.png")).Samples<quint16>(19)[19]),
                 MadePictures::Value(19, 19, 0));
        request.target = Path("saved.jpg");
        QCOMPARE(SaveError(request), QString());
        const Picture jpeg = MadePictures::Read(Path("saved.jpg"));
        QCOMPARE(jpeg.Type(), SampleType::U8);
        QVERIFY(qAbs(jpeg.Samples<quint8>(19)[19] - MadePictures::Value(19, 19, 0) / 2) <= 6);
    }

    void marksAndPaletteStayOutOfTheFile()
    {
        Picture deep(16, 16, 1, SampleType::U16);
        std::fill_n(deep.Samples<quint16>(0), 16 * 16, quint16(65535));
        QString error;
        QVERIFY2(SavePicture(Path("deep.tif"), deep, SaveOptions(), error), qPrintable(error));
        m_levels->slotSetMarksSaturated(true);
        m_levels->SetPalette(Palette("inverted"));
        SaveRequest request;
        request.file = { 1, Path("deep.tif") };
        request.ranges = { { 0, 65535 } };
        request.target = Path("saved.jpg");
        QCOMPARE(SaveError(request), QString());
        const Picture jpeg = MadePictures::Read(Path("saved.jpg"));
        QCOMPARE(jpeg.Channels(), 1);
        QVERIFY2(jpeg.Samples<quint8>(8)[8] >= 250, qPrintable(QString::number(jpeg.Samples<quint8>(8)[8])));
    }

    /// Other programs find a place of the sky at the same sample.
    void coordinatesFollowTheCropAndGoWithATurn()
    {
        SaveOptions options;
        options.metadata = { { "CRPIX1", "10.5", "", false }, { "CRPIX2", "8.0", "", false }, { "OBJECT", "M 1", "", true } };
        QString error;
        QVERIFY2(SavePicture(Path("sky.fits"), MadePictures::Numbered(QSize(20, 16)), options, error), qPrintable(error));
        SaveRequest request;
        request.file = { 1, Path("sky.fits") };
        request.edit = PictureEdit().Cropped(QRect(4, 3, 10, 11), QSize(20, 16)); // 2 rows go below
        request.target = Path("cropped.fits");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(CardValue("cropped.fits", "CRPIX1").toDouble(), 6.5);
        QCOMPARE(CardValue("cropped.fits", "CRPIX2").toDouble(), 6.0);
        request.edit = PictureEdit().Turned(0);
        request.target = Path("turned.fits");
        QCOMPARE(SaveError(request), QString());
        QCOMPARE(CardValue("turned.fits", "CRPIX1"), QString());
        QCOMPARE(CardValue("turned.fits", "OBJECT"), QString("M 1"));
    }

    void aFailedSaveSaysWhyAndLeavesTheOldFile()
    {
        MadePictures::Write(Path("good.tif"), QSize(6, 4));
        MadePictures::WriteBytes(Path("old.tif"), "the old file");
        MadePictures::WriteBytes(Path("bad.tif"), QByteArray("II*\0\x08\0\0\0", 8));
        SaveRequest request;
        request.file = { 2, Path("bad.tif") };
        request.target = Path("old.tif");
        QVERIFY(SaveError(request).startsWith("\u201cbad.tif\u201d cannot be read:"));
        QCOMPARE(Bytes(Path("old.tif")), QByteArray("the old file"));
        request.file = { 3, Path("good.tif") };
        request.target = Path("no such folder/x.tif");
        QVERIFY(SaveError(request).startsWith("\u201cx.tif\u201d was not saved:"));
        request.target = Path("x.xyz");
        QVERIFY(SaveError(request).contains("its name ends in no format that can be written"));
    }

    void aSaveThatWasBegunIsEndedWhenTheProgramEnds()
    {
        MadePictures::Write(Path("stack.tif"), QSize(20, 20), 60);
        SaveRequest request;
        request.file = { 1, Path("stack.tif") };
        request.frameCount = 60;
        request.target = Path("saved.tif");
        m_loader->Save(request);
        m_loader.reset();
        QCOMPARE(MadePictures::Frames(Path("saved.tif")), 60);
    }

    void aPictureOfTheScreenIsSaved()
    {
        SaveRequest request;
        request.image = QImage(5, 3, QImage::Format_RGB888);
        request.image.fill(QColor(1, 2, 3));
        request.target = Path("screen.png");
        QCOMPARE(SaveError(request), QString());
        const Picture saved = MadePictures::Read(Path("screen.png"));
        QCOMPARE(saved.Size(), QSize(5, 3));
        QCOMPARE(int(saved.Samples<quint8>(2)[14]), 3);
    }

    void thumbnailsAreSmallAndKeepTheShape()
    {
        MadePictures::Write(Path("wide.tif"), QSize(20, 2));
        const LoaderAnswers answers(m_loader.get());
        m_loader->MakeThumbnail({ 5, Path("wide.tif") });
        m_loader->MakeThumbnail({ 6, Path("missing.tif") });
        QTRY_COMPARE(answers.thumbnails.size(), 2);
        const PictureThumbnail &thumbnail = answers.thumbnails.first();
        QCOMPARE(thumbnail.id, quint64(5));
        QCOMPARE(thumbnail.image.width(), 128);
        QVERIFY(thumbnail.image.height() == 12 || thumbnail.image.height() == 13);
        QCOMPARE(thumbnail.info.size, QSize(20, 2));
        QVERIFY(answers.thumbnails.last().error.startsWith("\u201cmissing.tif\u201d cannot be read:"));
    }

    void whatIsLostIsSaidBefore_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("channels");
        const auto row = [](const char *name, PictureFormat format, SampleType type, const QString &text,
                            int channels = 1) {
            QTest::newRow(name) << int(format) << int(type) << text << channels;
        };
        row("float as TIFF", PictureFormat::Tiff, SampleType::F32, "");
        row("float as FITS", PictureFormat::Fits, SampleType::F64, "");
        row("16 bits as PNG", PictureFormat::Png, SampleType::U16, "");
        row("signed as PNG", PictureFormat::Png, SampleType::S16,
            "The 16-bit signed integer samples become 8 bits, with the levels of the screen.");
        row("8 bits as JPEG", PictureFormat::Jpeg, SampleType::U8, "JPEG changes every sample a little.");
        row("16 bits as JPEG", PictureFormat::Jpeg, SampleType::U16,
            "JPEG changes every sample a little. The 16-bit unsigned integer samples become 8 bits, with the levels "
            "of the screen.");
        row("colour as FITS", PictureFormat::Fits, SampleType::U8,
            "FITS has no colour: red, green and blue become three frames.", 3);
        row("colour as PNG", PictureFormat::Png, SampleType::U16, "", 3);
    }

    void whatIsLostIsSaidBefore()
    {
        QFETCH(int, format);
        QFETCH(int, type);
        QFETCH(QString, text);
        QFETCH(int, channels);
        QCOMPARE(SavingLossText(PictureFormat(format), SampleType(type), channels), text);
    }

private:
    QString Path(const QString &name) const { return m_folder->filePath(name); }
    QString CardValue(const QString &name, const QString &key) const
    {
        QString error;
        const auto file = OpenPicture(Path(name), error);
        for (const MetadataEntry &entry : file ? file->Info().metadata : QVector<MetadataEntry>()) {
            if (entry.key == key)
                return entry.value;
        }
        return QString();
    }
    static QByteArray Bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

GUARDED_TEST_MAIN(PictureLoaderTest)
#include "pictureloadertest.moc"
