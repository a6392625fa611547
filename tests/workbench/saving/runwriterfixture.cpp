// SPDX-License-Identifier: GPL-3.0-or-later
#include "runwriterfixture.h"

#include "openpicture.h"

#include <QDir>

#include <cstring>

void RunWriterFixture::init()
{
    StartGuard();
    m_folder = std::make_unique<QTemporaryDir>();
}

void RunWriterFixture::cleanup()
{
    m_folder.reset();
    EndGuard();
}

void RunWriterFixture::AddFormats()
{
    QTest::addColumn<RunFormat>("format");
    QTest::newRow("TIFF") << RunFormat::Tiff;
    QTest::newRow("FITS") << RunFormat::Fits;
    QTest::newRow("PNG") << RunFormat::Png;
}

void RunWriterFixture::AddCubes()
{
    QTest::addColumn<RunFormat>("format");
    QTest::newRow("TIFF") << RunFormat::Tiff;
    QTest::newRow("FITS") << RunFormat::Fits;
}

QStringList RunWriterFixture::LeftOvers() const
{
    return QDir(m_folder->path()).entryList({ "*.part", "*.journal" }, QDir::Files);
}

std::unique_ptr<RunWriter> RunWriterFixture::Begin(RunFormat format, PixelLayout layout)
{
    QString error;
    std::unique_ptr<RunWriter> writer = CreateRunWriter(format, Path(format));
    if (!writer->Begin(RunSample::Facts(Size, layout), &error))
        qFatal("%s", qPrintable(error));
    return writer;
}

bool RunWriterFixture::Finish(RunWriter *writer, int frames, QString *error)
{
    QString text;
    m_outcome = RunOutcome();
    m_outcome.counts.captured = quint64(frames);
    m_outcome.counts.saved = quint64(frames);
    const bool done = writer->Finish(&m_outcome, &text);
    if (error)
        *error = text;
    return done;
}

std::unique_ptr<RunWriter> RunWriterFixture::Record(RunFormat format, PixelLayout layout, int frames, int padding)
{
    std::unique_ptr<RunWriter> writer = Begin(format, layout);
    QString error;
    for (int frame = 0; frame < frames; ++frame) {
        if (!writer->Write(RunSample::Frame(Size, layout, frame, padding), &error))
            qFatal("%s", qPrintable(error));
    }
    if (!Finish(writer.get(), frames, &error))
        qFatal("%s", qPrintable(error));
    return writer;
}

void RunWriterFixture::CompareFrames(const QStringList &files, PixelLayout layout, int frames)
{
    int seen = 0;
    for (const QString &path : files) {
        if (path.endsWith(".txt"))
            continue;
        QString error;
        const auto file = OpenPicture(path, error);
        QVERIFY2(file, qPrintable(error));
        QVERIFY2(file->Info().warning.isEmpty(), qPrintable(file->Info().warning));
        for (int i = 0; i < file->Info().frames; ++i, ++seen) {
            Picture picture;
            QVERIFY2(file->ReadFrame(i, picture, error), qPrintable(error));
            QCOMPARE(picture.Size(), Size);
            const QByteArray expected = RunSample::Samples(Size, layout, seen);
            QCOMPARE(picture.ByteCount(), qint64(expected.size()));
            const Picture &samples = picture;
            QVERIFY(std::memcmp(samples.Data(), expected.constData(), size_t(expected.size())) == 0);
        }
    }
    QCOMPARE(seen, frames);
}
