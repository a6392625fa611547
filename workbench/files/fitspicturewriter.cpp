// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitspicturewriter.h"

#include "fitscardwriter.h"
#include "fitssession.h"

#include <QCoreApplication>
#include <QFile>

#include <vector>

namespace {

struct LibraryCodes
{
    int image; ///< of the file; unsigned samples are stored with an offset
    int sample;
};

LibraryCodes CodesOf(SampleType type)
{
    switch (type) {
    case SampleType::U8: return {BYTE_IMG, TBYTE};
    case SampleType::S8: return {SBYTE_IMG, TSBYTE};
    case SampleType::U16: return {USHORT_IMG, TUSHORT};
    case SampleType::S16: return {SHORT_IMG, TSHORT};
    case SampleType::U32: return {ULONG_IMG, TUINT};
    case SampleType::S32: return {LONG_IMG, TINT};
    case SampleType::F32: return {FLOAT_IMG, TFLOAT};
    case SampleType::F64: break;
    }
    return {DOUBLE_IMG, TDOUBLE};
}

} // namespace

FitsPictureWriter::FitsPictureWriter(const QString &path, const SaveOptions &options)
    : PictureWriter(path, options)
{
}

FitsPictureWriter::~FitsPictureWriter()
{
    if (!m_fits)
        return;
    FitsSession session;
    int status = 0;
    fits_close_file(m_fits, &status);
}

bool FitsPictureWriter::Write(const Picture &frame, FileFault &fault)
{
    FitsSession session;
    int status = 0;
    if (!m_fits)
        Open(frame, &status);
    for (int channel = 0; channel < frame.Channels(); ++channel)
        WritePlane(frame, channel, &status);
    if (status == 0)
        return true;
    return fault.Set(QCoreApplication::translate("FitsPictureWriter", "frame %1 could not be written").arg(FramesWritten() + 1), DiskAdvice(),
                     session.TakeMessages(status));
}

bool FitsPictureWriter::Finish(FileFault &fault)
{
    FitsSession session;
    int status = 0;
    fits_close_file(m_fits, &status);
    m_fits = nullptr;
    if (status == 0)
        return true;
    return fault.Set(QCoreApplication::translate("FitsPictureWriter", "the end of the file could not be written"), DiskAdvice(),
                     session.TakeMessages(status));
}

void FitsPictureWriter::Open(const Picture &frame, int *status)
{
    // The library makes the file itself and does not take one that is there.
    QFile::remove(TemporaryPath());
    fits_create_diskfile(&m_fits, QFile::encodeName(TemporaryPath()).constData(), status);
    const int planes = Options().frameCount * frame.Channels();
    LONGLONG axes[] = {frame.Width(), frame.Height(), planes};
    fits_create_imgll(m_fits, CodesOf(frame.Type()).image, planes > 1 ? 3 : 2, axes, status);
    for (const MetadataEntry &entry : Options().metadata)
        WriteFitsCard(m_fits, entry, status);
}

void FitsPictureWriter::WritePlane(const Picture &frame, int channel, int *status)
{
    const qint64 plane = qint64(FramesWritten()) * frame.Channels() + channel;
    LONGLONG first = 1 + plane * frame.Width() * frame.Height();
    const int sampleBytes = BytesPerSample(frame.Type());
    std::vector<uchar> samples(size_t(frame.Width()) * size_t(sampleBytes));
    for (int y = frame.Height() - 1; y >= 0 && *status == 0; --y) {
        const uchar *source = frame.Row(y) + channel * sampleBytes;
        for (int x = 0; x < frame.Width(); ++x, source += frame.BytesPerPixel())
            std::copy_n(source, sampleBytes, &samples[size_t(x) * size_t(sampleBytes)]);
        fits_write_img(m_fits, CodesOf(frame.Type()).sample, first, frame.Width(), samples.data(), status);
        first += frame.Width();
    }
}
