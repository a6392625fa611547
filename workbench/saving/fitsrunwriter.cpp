// SPDX-License-Identifier: GPL-3.0-or-later
#include "fitsrunwriter.h"

#include "fitscardwriter.h"
#include "fitssession.h"
#include "fitstext.h"
#include "runsummary.h"

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

#include <cerrno>
#include <cstring>

namespace {

constexpr int BlockBytes = 2880;
constexpr int CardBytes = 80;
/// Room for what is known only at the end: 8 blocks hold 288 cards.
constexpr int HeaderBytes = 8 * BlockBytes;
constexpr quint16 SignBit = 0x8000; ///< what BZERO 32768 does to the samples

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FitsRunWriter)
};

QByteArray Card(const char *keyword, const QByteArray &value)
{
    return (QByteArray(keyword).leftJustified(8) + "= " + value.rightJustified(20)).leftJustified(CardBytes);
}

/// Samples of the file are signed: the sign bit is turned and the bytes are swapped.
void CopyRow16(const uchar *from, int count, uchar *to)
{
    for (int i = 0; i < count; ++i) {
        quint16 sample = 0;
        std::memcpy(&sample, from + 2 * i, 2);
        sample = qToBigEndian(quint16(sample ^ SignBit));
        std::memcpy(to + 2 * i, &sample, 2);
    }
}

void ReadRow16(const uchar *from, int count, uchar *to)
{
    for (int i = 0; i < count; ++i) {
        quint16 sample = 0;
        std::memcpy(&sample, from + 2 * i, 2);
        sample = qFromBigEndian(sample) ^ SignBit;
        std::memcpy(to + 2 * i, &sample, 2);
    }
}

} // namespace

FitsRunWriter::FitsRunWriter(const QString &path)
    : RunWriter(path, RunFormat::Fits)
{
}

QByteArray FitsRunWriter::Header(int frames) const
{
    QByteArray header = Card("SIMPLE", "T") + Card("BITPIX", QByteArray::number(Facts().BitsPerSample()))
                        + Card("NAXIS", "3") + Card("NAXIS1", QByteArray::number(Facts().frameSize.width()))
                        + Card("NAXIS2", QByteArray::number(Facts().frameSize.height()))
                        + Card("NAXIS3", QByteArray::number(frames)) + Card("EXTEND", "T");
    if (Facts().BitsPerSample() == 16)
        header += Card("BSCALE", "1") + Card("BZERO", "32768");
    header = header.leftJustified(HeaderBytes - CardBytes);
    return header + QByteArray("END").leftJustified(CardBytes);
}

bool FitsRunWriter::CreateData(FileFault &fault)
{
    if (Facts().Channels() != 1)
        return fault.Set(Text::tr("a FITS cube holds frames of one channel, not colour"),
                         Text::tr("Record colour as TIFF or PNG."));
    m_rows.resize(size_t(Facts().FrameBytes()));
    return m_cube.Create(UnfinishedPath(), Header(0), Facts().FrameBytes(), fault);
}

bool FitsRunWriter::ReopenData(int *frames, FileFault &fault)
{
    return m_cube.Reopen(UnfinishedPath(), HeaderBytes, Facts().FrameBytes(), frames, fault);
}

void FitsRunWriter::FillRows(const uchar *samples)
{
    const int width = Facts().frameSize.width();
    const int height = Facts().frameSize.height();
    const size_t rowBytes = size_t(width) * size_t(BytesPerPixel(Facts().layout));
    for (int y = 0; y < height; ++y) {
        const uchar *from = samples + size_t(height - 1 - y) * rowBytes;
        uchar *to = m_rows.data() + size_t(y) * rowBytes;
        if (Facts().BitsPerSample() == 16)
            CopyRow16(from, width, to);
        else
            std::memcpy(to, from, rowBytes);
    }
}

bool FitsRunWriter::AppendFrame(const uchar *samples, const FrameStamp &, FileFault &fault)
{
    FillRows(samples);
    return m_cube.Append(m_rows.data(), fault);
}

bool FitsRunWriter::CutTo(int frames, FileFault &fault) { return m_cube.CutTo(frames, fault); }

bool FitsRunWriter::ReadBack(int frame, uchar *samples)
{
    m_rows.resize(size_t(Facts().FrameBytes()));
    if (!m_cube.ReadFrame(frame, m_rows.data()))
        return false;
    const int height = Facts().frameSize.height();
    const size_t rowBytes = m_rows.size() / size_t(height);
    for (int y = 0; y < height; ++y) {
        const uchar *from = m_rows.data() + size_t(height - 1 - y) * rowBytes;
        uchar *to = samples + size_t(y) * rowBytes;
        if (Facts().BitsPerSample() == 16)
            ReadRow16(from, Facts().frameSize.width(), to);
        else
            std::memcpy(to, from, rowBytes);
    }
    return true;
}

bool FitsRunWriter::MoveFrame(int from, int to, FileFault &fault)
{
    m_rows.resize(size_t(Facts().FrameBytes()));
    return m_cube.ReadFrame(from, m_rows.data()) ? m_cube.WriteFrame(to, m_rows.data(), fault)
                                                 : RunDisk::SetSystemFault(fault, EIO);
}

bool FitsRunWriter::Complete(const RunOutcome &outcome, FileFault &fault)
{
    const qint64 rest = m_cube.OffsetOf(FramesWritten()) % BlockBytes;
    const QByteArray padding(rest > 0 ? int(BlockBytes - rest) : 0, '\0');
    return m_cube.WriteEnd(padding, fault) && m_cube.WriteHeader(Header(FramesWritten()), fault)
           && AddFactsAndTable(outcome, fault) && m_cube.Synchronise(fault);
}

/// One number can tell only what held for all frames; what changed stands in the comments.
void FitsRunWriter::WriteExposure(fitsfile *fits, int *status) const
{
    double exposure = Facts().exposureUs / 1e6;
    double gain = Facts().gain;
    if (!Facts().isAutoExposure && Facts().changes.isEmpty())
        fits_update_key(fits, TDOUBLE, "EXPTIME", &exposure, "[s] exposure of each frame", status);
    if (!Facts().isAutoGain && Facts().changes.isEmpty())
        fits_update_key(fits, TDOUBLE, "GAIN", &gain, "in the camera's unit", status);
}

bool FitsRunWriter::AddFactsAndTable(const RunOutcome &outcome, FileFault &fault)
{
    FitsSession session;
    int status = 0;
    fitsfile *fits = nullptr;
    fits_open_diskfile(&fits, QFile::encodeName(UnfinishedPath()).constData(), READWRITE, &status);
    for (const auto &lines : { Facts().Lines(), OutcomeLines(Facts(), outcome, Stamps()) }) {
        for (const auto &line : lines) {
            const QByteArray text = FitsText(line.first + ": " + line.second);
            fits_write_comment(fits, text.constData(), &status);
        }
    }
    for (const MetadataEntry &entry : Facts().calibration)
        WriteFitsCard(fits, entry, &status);
    WriteExposure(fits, &status);
    int depth = Facts().BitDepth();
    fits_update_key(fits, TINT, "BITDEPTH", &depth, "bits of a sample that carry light", &status);
    fits_update_key_str(fits, "INSTRUME", FitsText(Facts().vendor + ' ' + Facts().model).constData(),
                        "camera", &status);
    fits_update_key_str(fits, "SERIALNO", FitsText(Facts().serial).constData(), "of the camera", &status);
    fits_update_key_str(fits, "DATE-OBS",
                        Facts().start.toUTC().toString("yyyy-MM-ddTHH:mm:ss.zzz").toLatin1().constData(),
                        "start of the recording (UTC)", &status);

    const char *names[] = { "FRAMEID", "CAMTIME", "HOSTTIME" };
    const char *formats[] = { "1K", "1K", "1K" };
    const char *units[] = { "", "ns", "ns" };
    fits_create_tbl(fits, BINARY_TBL, Stamps().size(), 3, const_cast<char **>(names),
                    const_cast<char **>(formats), const_cast<char **>(units), "FRAMES", &status);
    std::vector<LONGLONG> columns[3];
    for (const FrameStamp &stamp : Stamps()) {
        columns[0].push_back(LONGLONG(stamp.frameId));
        columns[1].push_back(stamp.cameraTimeNs);
        columns[2].push_back(stamp.hostTimeNs);
    }
    for (int column = 0; column < 3; ++column)
        fits_write_col(fits, TLONGLONG, column + 1, 1, 1, LONGLONG(columns[column].size()),
                       columns[column].data(), &status);
    int closeStatus = 0;
    if (fits)
        fits_close_file(fits, &closeStatus);
    if (status == 0 && closeStatus == 0)
        return true;
    const int failed = status != 0 ? status : closeStatus;
    fault.Set(Text::tr("its header or its table of frames could not be written"), DiskAdvice(),
              session.TakeMessages(failed));
    fault.isDiskFull = failed == WRITE_ERROR;
    return false;
}

bool FitsRunWriter::Place(FileFault &fault)
{
    m_cube.Close();
    return RunDisk::Rename(UnfinishedPath(), Path(), fault);
}

void FitsRunWriter::RemoveData()
{
    m_cube.Close();
    QFile::remove(UnfinishedPath());
}
