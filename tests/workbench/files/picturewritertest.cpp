// SPDX-License-Identifier: GPL-3.0-or-later
#include "createpicture.h"
#include "guardedtest.h"
#include "picturefolder.h"

#include <atomic>
#include <cmath>
#include <csignal>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <vector>

/// What is saved comes back as it was, and what could not be saved has done no harm.
class PictureWriterTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void samplesComeBackAsTheyWere_data();
    void samplesComeBackAsTheyWere();
    void jpegComesBackNearly();
    void textsAndResolutionAreCarriedOver();
    void imageJAndOmeDescriptionsAreMadeTrue_data();
    void imageJAndOmeDescriptionsAreMadeTrue();
    void whatAFormatCannotHoldIsTold_data();
    void whatAFormatCannotHoldIsTold();
    void framesOfOneFileAreAlike();
    void aFileWithoutAllItsFramesIsNotMade();
    void aFullDiskLeavesTheOldFileWhole_data();
    void aFullDiskLeavesTheOldFileWhole();
    void aFolderWithoutRightsIsToldAtOnce();
    void aLinkStaysALinkAndRightsStay();
    void threadsWriteAndReadAtOnce();
};

namespace {

/// Different samples everywhere, both ends of the type among them.
Picture Patterned(int width, int height, int channels, SampleType type, int seed = 0)
{
    Picture picture(width, height, channels, type);
    VisitSampleType(type, [&](auto sample) {
        using Sample = decltype(sample);
        Sample *samples = picture.Samples<Sample>(0);
        const qint64 count = picture.ByteCount() / qint64(sizeof(Sample));
        for (qint64 i = 0; i < count; ++i)
            samples[i] = Sample((quint64(i) + quint64(seed)) * 2654435761u % 0xffffffffu);
        samples[0] = std::numeric_limits<Sample>::max();
        samples[1] = std::numeric_limits<Sample>::lowest();
        if (std::is_floating_point_v<Sample>)
            samples[2] = std::numeric_limits<Sample>::quiet_NaN();
    });
    return picture;
}

/// While it lives no file can grow beyond `bytes`, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }

private:
    rlimit m_before = {};
    void (*m_handlerBefore)(int) = nullptr;
};

} // namespace

void PictureWriterTest::samplesComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("ending");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("frames");
    QTest::addColumn<bool>("compress");
    for (int type = 0; type <= int(SampleType::F64); ++type) {
        for (const int channels : {1, 3}) {
            for (const int frames : {1, 4}) {
                const QByteArray row = QString("%1, %2 channels, %3 frames").arg(SampleTypeName(SampleType(type))).arg(channels).arg(frames).toLatin1();
                QTest::newRow("TIFF " + row) << "tif" << type << channels << frames << false;
                QTest::newRow("deflate TIFF " + row) << "tiff" << type << channels << frames << true;
                if (channels == 1)
                    QTest::newRow("FITS " + row) << "fits" << type << channels << frames << false;
                if (frames == 1 && (type == int(SampleType::U8) || type == int(SampleType::U16)))
                    QTest::newRow("PNG " + row) << "png" << type << channels << frames << false;
            }
        }
    }
}

void PictureWriterTest::samplesComeBackAsTheyWere()
{
    QFETCH(QString, ending);
    QFETCH(int, type);
    QFETCH(int, channels);
    QFETCH(int, frames);
    QFETCH(bool, compress);
    PictureFolder folder;
    const QString path = folder.Path("saved." + ending);
    SaveOptions options;
    options.frameCount = frames;
    options.compress = compress;
    QString error;
    const auto writer = CreatePicture(path, options, error);
    QVERIFY2(writer, qPrintable(error));
    // Odd sizes, and more rows than a strip takes.
    const auto frameAt = [&](int index) { return Patterned(419, 333, channels, SampleType(type), index); };
    for (int i = 0; i < frames; ++i)
        QVERIFY2(writer->Append(frameAt(i), error), qPrintable(error));
    QVERIFY2(writer->Commit(error), qPrintable(error));
    QCOMPARE(folder.Names(), QStringList{"saved." + ending});

    const auto file = OpenPicture(path, error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().frames, frames);
    QCOMPARE(file->Info().warning, QString());
    Picture picture;
    for (const int i : {frames - 1, 0}) {
        QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
        QVERIFY(picture == frameAt(i));
    }
}

void PictureWriterTest::jpegComesBackNearly()
{
    Picture picture(64, 48, 1, SampleType::U8);
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 64; ++x)
            picture.Row(y)[x] = uchar(x * 2 + y * 2);
    }
    PictureFolder folder;
    QString error;
    QVERIFY2(SavePicture(folder.Path("saved.jpg"), picture, SaveOptions(), error), qPrintable(error));
    const auto file = OpenPicture(folder.Path("saved.jpg"), error);
    Picture read;
    QVERIFY2(file && file->ReadFrame(0, read, error), qPrintable(error));
    QCOMPARE(read.Channels(), 1);
    for (int i = 0; i < 64 * 48; ++i)
        QVERIFY(std::abs(read.Data()[i] - picture.Data()[i]) <= 6);
}

void PictureWriterTest::textsAndResolutionAreCarriedOver()
{
    SaveOptions options;
    options.dpiX = 300;
    options.dpiY = 150;
    options.metadata = {{"ImageDescription", "cells, day 3", QString(), true}, {"DateTime", "2024:02:29 12:34:56", QString(), true},
                        {"EXPTIME", "12.5", "seconds", false}};
    PictureFolder folder;
    for (const QString &name : QStringList{"a.tif", "a.png", "a.fits"}) {
        QString error;
        QVERIFY2(SavePicture(folder.Path(name), Patterned(9, 7, 1, SampleType::U16), options, error), qPrintable(error));
        const auto file = OpenPicture(folder.Path(name), error);
        QVERIFY2(file, qPrintable(error));
        QStringList texts;
        for (const MetadataEntry &entry : file->Info().metadata)
            texts << entry.key + '=' + entry.value + '/' + entry.comment;
        texts.sort();
        if (name == "a.tif") {
            QCOMPARE(texts, QStringList({"DateTime=2024:02:29 12:34:56/", "ImageDescription=cells, day 3\nEXPTIME=12.5 / seconds/"}));
        } else if (name == "a.png") {
            QCOMPARE(texts, QStringList({"DateTime=2024:02:29 12:34:56/", "EXPTIME=12.5/", "ImageDescription=cells, day 3/"}));
        } else {
            QCOMPARE(texts, QStringList({"COMMENT=DateTime: 2024:02:29 12:34:56/", "COMMENT=ImageDescription: cells, day 3/", "EXPTIME=12.5/seconds"}));
            continue; // FITS has no place for a resolution
        }
        QCOMPARE(qRound(file->Info().dpiX), 300);
        QCOMPARE(qRound(file->Info().dpiY), 150);
    }
}

void PictureWriterTest::imageJAndOmeDescriptionsAreMadeTrue_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("frames");
    QTest::addColumn<QString>("after");
    const QString ome = "<OME xmlns=\"http://www.openmicroscopy.org/Schemas/OME/2016-06\"><Image><Pixels DimensionOrder=\"XYZCT\""
                        " SizeX=\"%1\" SizeY=\"%2\" SizeC=\"2\" SizeZ=\"1\" SizeT=\"1\" Type=\"%3\" PhysicalSizeX=\"0.5\"/></Image></OME>";
    QTest::newRow("ImageJ, all frames") << "ImageJ=1.53t\nimages=2\nchannels=2\nunit=micron" << 2 << "ImageJ=1.53t\nimages=2\nchannels=2\nunit=micron";
    QTest::newRow("ImageJ, one frame of two") << "ImageJ=1.53t\nimages=2\nchannels=2\nunit=micron" << 1 << "ImageJ=1.53t\nunit=micron";
    QTest::newRow("ImageJ, another number") << "ImageJ=1.53t\nimages=6\nslices=6\nloop=false" << 2 << "ImageJ=1.53t\nimages=2\nslices=2\nloop=false";
    QTest::newRow("OME, cropped") << ome.arg("512", "256", "uint8") << 2 << ome.arg("9", "7", "uint16");
    QTest::newRow("OME, one frame of two") << ome.arg("512", "256", "uint8") << 1 << QString();
}

void PictureWriterTest::imageJAndOmeDescriptionsAreMadeTrue()
{
    QFETCH(QString, before);
    QFETCH(int, frames);
    QFETCH(QString, after);
    PictureFolder folder;
    SaveOptions options;
    options.frameCount = frames;
    options.dpiX = options.dpiY = 50800;
    options.metadata = {{"ImageDescription", before, QString(), true}};
    QString error;
    const auto writer = CreatePicture(folder.Path("a.tif"), options, error);
    QVERIFY2(writer, qPrintable(error));
    for (int i = 0; i < frames; ++i)
        QVERIFY2(writer->Append(Patterned(9, 7, 1, SampleType::U16), error), qPrintable(error));
    QVERIFY2(writer->Commit(error), qPrintable(error));
    const auto file = OpenPicture(folder.Path("a.tif"), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().frames, frames);
    QCOMPARE(file->Info().warning, QString());
    QCOMPARE(file->Info().metadata.value(0).value, after);
    if (!before.contains("OME"))
        QCOMPARE(qRound(file->Info().dpiX), 50800); // two pixels a micrometre
}

void PictureWriterTest::whatAFormatCannotHoldIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("frames");
    QTest::newRow("float PNG") << "a.png" << int(SampleType::F32) << 1;
    QTest::newRow("signed PNG") << "a.png" << int(SampleType::S16) << 1;
    QTest::newRow("PNG of two frames") << "a.png" << int(SampleType::U8) << 2;
    QTest::newRow("16-bit JPEG") << "a.jpg" << int(SampleType::U16) << 1;
    QTest::newRow("BMP") << "a.bmp" << int(SampleType::U8) << 1;
    QTest::newRow("no ending") << "picture" << int(SampleType::U8) << 1;
}

void PictureWriterTest::whatAFormatCannotHoldIsTold()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(int, frames);
    PictureFolder folder;
    SaveOptions options;
    options.frameCount = frames;
    QString error;
    {
        const auto writer = CreatePicture(folder.Path(name), options, error);
        QVERIFY(!writer || !writer->Append(Patterned(9, 7, 1, SampleType(type)), error));
    }
    QVERIFY2(error.startsWith("\u201c" + name + "\u201d was not saved: "), qPrintable(error));
    QCOMPARE(folder.Names(), QStringList());
}

void PictureWriterTest::framesOfOneFileAreAlike()
{
    PictureFolder folder;
    SaveOptions options;
    options.frameCount = 2;
    QString error;
    const auto writer = CreatePicture(folder.Path("a.tif"), options, error);
    QVERIFY(writer->Append(Patterned(9, 7, 1, SampleType::U8), error));
    QVERIFY(!writer->Append(Patterned(9, 8, 1, SampleType::U8), error));
    QVERIFY2(error.contains("frame 2 has another size or sample type"), qPrintable(error));
    QVERIFY(writer->Append(Patterned(9, 7, 1, SampleType::U8), error));
    QVERIFY(!writer->Append(Patterned(9, 7, 1, SampleType::U8), error));
    QVERIFY2(writer->Commit(error), qPrintable(error));
}

void PictureWriterTest::aFileWithoutAllItsFramesIsNotMade()
{
    PictureFolder folder;
    folder.Write("a.tif", "the old file");
    SaveOptions options;
    options.frameCount = 2;
    QString error;
    {
        const auto writer = CreatePicture(folder.Path("a.tif"), options, error);
        QVERIFY(writer->Append(Patterned(9, 7, 1, SampleType::U8), error));
        QVERIFY(!writer->Commit(error));
        QVERIFY2(error.contains("only 1 of its 2 frames"), qPrintable(error));
    }
    QCOMPARE(folder.Names(), QStringList{"a.tif"});
    QCOMPARE(PictureFolder::Read(folder.Path("a.tif")), QByteArray("the old file"));
}

void PictureWriterTest::aFullDiskLeavesTheOldFileWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("room");
    for (const char *name : {"a.tif", "a.fits", "a.png", "a.jpg"}) {
        for (const int room : {0, 100, 3000})
            QTest::addRow("%s, room for %d bytes", name, room) << name << room;
    }
}

void PictureWriterTest::aFullDiskLeavesTheOldFileWhole()
{
    QFETCH(QString, name);
    QFETCH(int, room);
    PictureFolder folder;
    folder.Write(name, "the old file");
    const Picture picture = Patterned(640, 480, 1, SampleType::U8);
    QString error;
    bool saved = false;
    {
        const FullDisk disk(static_cast<rlim_t>(room));
        saved = SavePicture(folder.Path(name), picture, SaveOptions(), error);
    }
    QVERIFY(!saved);
    QVERIFY2(error.startsWith("\u201c" + name + "\u201d was not saved: "), qPrintable(error));
    QVERIFY2(error.contains("free space"), qPrintable(error));
    QCOMPARE(folder.Names(), QStringList{name});
    QCOMPARE(PictureFolder::Read(folder.Path(name)), QByteArray("the old file"));
    QVERIFY2(SavePicture(folder.Path(name), picture, SaveOptions(), error), qPrintable(error)); // with room again
}

void PictureWriterTest::aFolderWithoutRightsIsToldAtOnce()
{
    PictureFolder folder;
    const QString path = folder.Write("a.tif", "the old file");
    const QString parent = QFileInfo(path).path();
    QVERIFY(QFile::setPermissions(parent, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    constexpr uid_t nobody = 65534;
    const int before = ::geteuid() == 0 ? ::setfsuid(nobody) : -1; // the administrator may write everywhere
    QString error;
    const bool created = CreatePicture(path, SaveOptions(), error) != nullptr;
    if (before >= 0)
        ::setfsuid(uid_t(before));
    QFile::setPermissions(parent, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(!created);
    QVERIFY2(error.contains("\u201ca.tif\u201d was not saved: Permission denied"), qPrintable(error));
    QCOMPARE(PictureFolder::Read(path), QByteArray("the old file"));
    QCOMPARE(folder.Names(), QStringList{"a.tif"});
}

void PictureWriterTest::aLinkStaysALinkAndRightsStay()
{
    PictureFolder folder;
    const QString path = folder.Write("true.tif", "the old file");
    const QFile::Permissions rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(path, rights));
    QVERIFY(QFile::link("true.tif", folder.Path("link.tif")));
    QString error;
    const Picture picture = Patterned(9, 7, 1, SampleType::U8);
    QVERIFY2(SavePicture(folder.Path("link.tif"), picture, SaveOptions(), error), qPrintable(error));
    QVERIFY(QFileInfo(folder.Path("link.tif")).isSymLink());
    const auto file = OpenPicture(path, error);
    Picture read;
    QVERIFY2(file && file->ReadFrame(0, read, error), qPrintable(error));
    QVERIFY(read == picture);
    const QFile::Permissions ofThisUser = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser; // whoever runs the test
    QCOMPARE(QFile::permissions(path) & ~ofThisUser, rights);
}

void PictureWriterTest::threadsWriteAndReadAtOnce()
{
    PictureFolder folder;
    std::atomic<int> wrong{0};
    std::vector<std::thread> workers;
    for (int i = 0; i < 4; ++i) {
        workers.emplace_back([&folder, &wrong, i] {
            for (const char *ending : {"fits", "tif", "png"}) {
                for (int round = 0; round < 5; ++round) {
                    const QString path = folder.Path(QString("thread%1.%2").arg(i).arg(ending));
                    const Picture picture = Patterned(200, 100, 1, SampleType::U16, 100 * i + round);
                    QString error;
                    Picture read;
                    const bool saved = SavePicture(path, picture, SaveOptions(), error);
                    const auto file = OpenPicture(path, error);
                    if (!saved || !file || !file->ReadFrame(0, read, error) || read != picture)
                        ++wrong;
                }
            }
        });
    }
    for (std::thread &worker : workers)
        worker.join();
    QCOMPARE(wrong.load(), 0);
}

GUARDED_TEST_MAIN(PictureWriterTest)
#include "picturewritertest.moc"
