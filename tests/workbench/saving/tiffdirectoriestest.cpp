// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffdirectories.h"
#include "guardedtest.h"
#include "openpicture.h"
#include "runsample.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstring>

/// From 4 GiB on, a recording is a BigTIFF file. The files here are sparse: their frames are holes.
class TiffDirectoriesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void becomesBigTiffByItself_data()
    {
        QTest::addColumn<int>("frames");
        QTest::addColumn<bool>("isBig");
        // Frames of 8 MiB: 511 are 4 GiB less 8 MiB, 512 are 4 GiB.
        QTest::newRow("one") << 1 << false;
        QTest::newRow("just below 4 GiB") << 511 << false;
        QTest::newRow("4 GiB") << 512 << true;
        QTest::newRow("above") << 600 << true;
    }

    void becomesBigTiffByItself()
    {
        QFETCH(int, frames);
        QFETCH(bool, isBig);
        const RunFacts facts = RunSample::Facts(QSize(2048, 2048), PixelLayout::Mono16);
        TiffDirectories directories(facts, frames);
        directories.SetFirstDescription("what it is");
        QCOMPARE(directories.IsBigTiff(), isBig);

        const QTemporaryDir folder;
        const QString path = folder.filePath("run.tif");
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const qint64 dataEnd = TiffDirectories::HeaderBytes + frames * facts.FrameBytes();
        QVERIFY(file.resize(dataEnd) && file.write(directories.Header()) == TiffDirectories::HeaderBytes);
        // The last row of the last frame is written.
        const QByteArray row(2048 * 2, 'x');
        QVERIFY(file.seek(dataEnd - row.size()) && file.write(row) == row.size());
        QVERIFY(directories.Write([&](const QByteArray &bytes) { return file.write(bytes) == bytes.size(); }));
        file.close();

        QString error;
        const auto picture = OpenPicture(path, error);
        QVERIFY2(picture, qPrintable(error));
        QCOMPARE(picture->Info().frames, frames);
        QCOMPARE(picture->Info().formatDetail.contains("BigTIFF"), isBig);
        QCOMPARE(picture->Info().warning, QString());
        Picture frame;
        QVERIFY2(picture->ReadFrame(frames - 1, frame, error), qPrintable(error));
        const Picture &samples = frame;
        QVERIFY(std::memcmp(samples.Row(2047), row.constData(), size_t(row.size())) == 0);
        QVERIFY(picture->ReadFrame(0, frame, error));
    }

    void manyFramesAreToldInPieces_data()
    {
        QTest::addColumn<int>("frames");
        QTest::addColumn<QByteArray>("description");
        QTest::newRow("odd data, odd text") << 20001 << QByteArray("what it is"); // the text has a zero at its end
        QTest::newRow("odd data, even text") << 20001 << QByteArray("what it was");
        QTest::newRow("even data, short text") << 20000 << QByteArray("it");
        QTest::newRow("no text") << 20000 << QByteArray();
    }

    void manyFramesAreToldInPieces()
    {
        QFETCH(int, frames);
        QFETCH(QByteArray, description);
        TiffDirectories directories(RunSample::Facts(QSize(1, 1), PixelLayout::Mono8), frames);
        if (!description.isEmpty())
            directories.SetFirstDescription(description);
        const QTemporaryDir folder;
        QFile file(folder.filePath("run.tif"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(directories.Header() + QByteArray(frames, 'x'));
        int pieces = 0;
        QVERIFY(directories.Write([&](const QByteArray &bytes) {
            ++pieces;
            return file.write(bytes) == bytes.size();
        }));
        QVERIFY(pieces > 3);
        file.close();
        QString error;
        const auto picture = OpenPicture(file.fileName(), error);
        QVERIFY2(picture, qPrintable(error));
        QCOMPARE(picture->Info().frames, frames);
        QCOMPARE(picture->Info().warning, QString());
        Picture frame;
        for (const int index : { 0, frames / 2, frames - 1 }) {
            QVERIFY2(picture->ReadFrame(index, frame, error), qPrintable(error));
            const Picture &samples = frame;
            QCOMPARE(char(samples.Row(0)[0]), 'x');
        }
        bool isTold = description.isEmpty();
        for (const MetadataEntry &entry : picture->Info().metadata)
            isTold = isTold || entry.value == QString::fromUtf8(description);
        QVERIFY(isTold);
    }

    void aDiskThatTakesNoMoreEndsTheWriting()
    {
        const TiffDirectories directories(RunSample::Facts(QSize(1, 1), PixelLayout::Mono8), 20000);
        int pieces = 0;
        QVERIFY(!directories.Write([&](const QByteArray &) { return ++pieces < 2; }));
        QCOMPARE(pieces, 2);
    }

    void tellsAPixelSizeOnlyWhereItIsKnown()
    {
        RunFacts facts = RunSample::Facts(QSize(4, 4), PixelLayout::Mono8);
        QCOMPARE(Dpi(facts), 0.0);
        facts.pixelSizeUm = 0.5; // 20000 pixels a centimetre
        QCOMPARE(Dpi(facts), 50800.0);
    }

private:
    double Dpi(const RunFacts &facts)
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath("run.tif"));
        const TiffDirectories directories(facts, 1);
        if (!file.open(QIODevice::WriteOnly))
            return -1;
        file.write(directories.Header() + QByteArray(16, '\0'));
        directories.Write([&](const QByteArray &bytes) { return file.write(bytes) == bytes.size(); });
        file.close();
        QString error;
        const auto picture = OpenPicture(file.fileName(), error);
        return picture ? picture->Info().dpiX : -1;
    }
};

GUARDED_TEST_MAIN(TiffDirectoriesTest)
#include "tiffdirectoriestest.moc"
