// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffpicturefile.h"

#include "sampleswap.h"
#include "spectralmetadata.h"
#include "tiffdecode.h"
#include "tiffmetadata.h"

#include <QCoreApplication>
#include <QFile>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TiffPictureFile)
};

} // namespace

TiffPictureFile::TiffPictureFile(const QString &path)
    : PictureFile(path)
{
}

bool TiffPictureFile::Open(int fd, qint64 fileSize, FileFault &fault)
{
    m_fileSize = fileSize;
    m_chain = ReadTiffChain(fd, fileSize);
    const bool opened = m_tiff.OpenForReading(fd, QFile::encodeName(Path()), fileSize);
    if (m_chain.pages.isEmpty())
        return fault.Set(m_chain.fault, DamagedAdvice());
    if (!opened)
        return fault.Set(Text::tr("its header makes no sense"), DamagedAdvice(), m_tiff.TakeMessages());
    TiffPage page;
    if (!SelectPage(0, page, fault))
        return false;
    FillInfo(page);
    return true;
}

QString TiffPictureFile::FrameDescription(int index) const
{
    return m_order.Describe(index);
}

bool TiffPictureFile::SelectPage(int index, TiffPage &page, FileFault &fault)
{
    const bool selected = TIFFSetSubDirectory(m_tiff.Get(), m_chain.pages[index]) == 1;
    const QString messages = m_tiff.TakeMessages();
    bool usable = false;
    if (!selected)
        fault.Set(Text::tr("its description cannot be read"), DamagedAdvice(), messages);
    else
        usable = ReadTiffPage(m_tiff, page, fault) && CheckTiffBlocks(m_tiff, page, m_fileSize, fault);
    if (!usable)
        fault.what = Text::tr("page %1 of %2: %3").arg(index + 1).arg(m_chain.pages.size()).arg(fault.what);
    return usable;
}

void TiffPictureFile::FillInfo(const TiffPage &page)
{
    PictureInfo &info = MutableInfo();
    info.format = PictureFormat::Tiff;
    info.frames = m_chain.pages.size();
    info.size = QSize(page.width, page.height);
    info.channels = page.isPalette ? 3 : page.channels;
    info.isStored = page.IsPlain();
    info.sampleType = page.isPalette ? SampleType::U8 : page.type;
    info.metadata = ReadTiffTexts(m_tiff.Get());
    QStringList details{m_chain.isBigTiff ? "BigTIFF" : QString(), TiffCompressionName(page.compression)};
    details.removeAll(QString());
    info.formatDetail = details.join(", ");

    const QString description = DescriptionOf(info.metadata);
    ReadTiffResolution(m_tiff.Get(), description, info.dpiX, info.dpiY);
    m_axis = AxisOfFirst(SpectralMetadataOfText(description));
    if (!m_chain.fault.isEmpty()) {
        AddWarning(ReadFaultText(Path(), {Text::tr("only its first %1 pages are there: %2").arg(info.frames).arg(m_chain.fault),
                                          DamagedAdvice(), QString()}));
    }
    if (page.channels == 1 && page.samplesPerPixel > 2)
        AddWarning(Text::tr("Only the first of the %1 samples of each pixel is shown.").arg(page.samplesPerPixel));
    if (IsImageJDescription(description)) {
        FindContiguousFrames(page);
        m_order = StackOrder::FromImageJ(description, info.frames);
    } else if (IsOmeDescription(description)) {
        m_order = StackOrder::FromOme(description, info.frames);
    }
}

void TiffPictureFile::FindContiguousFrames(const TiffPage &page)
{
    PictureInfo &info = MutableInfo();
    const int claimed = ImageJValue(DescriptionOf(info.metadata), "images").toInt();
    if (m_chain.pages.size() != 1 || claimed < 2)
        return;
    const quint64 first = TIFFGetStrileOffset(m_tiff.Get(), 0);
    const qint64 frameBytes = page.BlockRowBytes() * page.height;
    const quint64 description = m_chain.pages.first(); // usually before the frames; behind them it ends them
    const qint64 end = description > first ? qint64(description) : m_fileSize;
    const qint64 present = page.samples.Count() == 1 ? (end - qint64(first)) / frameBytes : 1;
    info.frames = int(qMin(qint64(claimed), qMax(qint64(1), present)));
    if (info.frames < claimed) {
        AddWarning(ReadFaultText(Path(), {Text::tr("only the first %1 of its %2 frames are there").arg(info.frames).arg(claimed),
                                          DamagedAdvice(), QString()}));
    }
    if (info.frames > 1) {
        m_contiguousOffset = first;
        m_contiguousBytes = frameBytes;
    }
}

bool TiffPictureFile::Decode(int index, Picture &frame, FrameRows *rows, FileFault &fault)
{
    m_tiff.TakeMessages();
    if (m_contiguousOffset != 0) {
        const PictureInfo &info = Info();
        FileRuns samples;
        samples.Add(m_contiguousOffset + quint64(index) * quint64(m_contiguousBytes), m_contiguousBytes);
        frame.Reshape(info.size.width(), info.size.height(), info.channels, info.sampleType, samples.FirstOffset());
        if (ReadSamples(samples, frame, rows))
            return true;
        return fault.Set(Text::tr("frame %1 of %2 is not whole").arg(index + 1).arg(info.frames), DamagedAdvice());
    }
    TiffPage page;
    if (!SelectPage(index, page, fault))
        return false;
    if (DecodePage(page, frame, rows, fault))
        return true;
    fault.what = Text::tr("page %1 of %2: %3").arg(index + 1).arg(m_chain.pages.size()).arg(fault.what);
    return false;
}

bool TiffPictureFile::DecodePage(const TiffPage &page, Picture &frame, FrameRows *rows, FileFault &fault)
{
    if (!page.IsPlain())
        return DecodeTiffPage(m_tiff, page, frame, fault);
    frame.Reshape(page.width, page.height, page.channels, page.type, page.samples.FirstOffset());
    return ReadSamples(page.samples, frame, rows) || fault.Set(Text::tr("its samples are not whole"), DamagedAdvice());
}

bool TiffPictureFile::ReadSamples(const FileRuns &samples, Picture &frame, FrameRows *rows)
{
    const int fd = TIFFFileno(m_tiff.Get());
    const bool isSwapped = TIFFIsByteSwapped(m_tiff.Get());
    if (rows && !isSwapped) {
        rows->Begin(frame);
        const qint64 rowBytes = frame.BytesPerRow();
        return samples.ReadInParts(fd, frame.Data(), rowBytes, [&](qint64 from, qint64 to) {
            rows->Take(int(from / rowBytes), int(to / rowBytes));
        });
    }
    if (!samples.Read(fd, frame.Data()))
        return false;
    if (isSwapped)
        SwapSampleBytes(frame);
    return true;
}
