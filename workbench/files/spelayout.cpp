// SPDX-License-Identifier: GPL-3.0-or-later
#include "spelayout.h"

#include "filefault.h"
#include "spefooter.h"
#include "speheader.h"

#include <QCoreApplication>
#include <QIODevice>

#include <limits>
#include <utility>

namespace {

/// Real ones take 30 kB to some MB; the rest of a file that says otherwise is not read into memory.
constexpr qint64 mostFooterBytes = 64 * 1024 * 1024;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SpeLayout)
};

bool TypeOfCode(int code, SampleType &type, FileFault &fault)
{
    switch (code) {
    case 0: type = SampleType::F32; return true;
    case 1: type = SampleType::S32; return true;
    case 2: type = SampleType::S16; return true;
    case 3: type = SampleType::U16; return true;
    case 5: type = SampleType::F64; return true;
    case 6: type = SampleType::U8; return true;
    case 8: type = SampleType::U32; return true;
    default: return fault.Set(Text::tr("its samples are of an unknown kind (code %1)").arg(code), UnsupportedAdvice());
    }
}

void AddFact(SpeLayout &layout, const QString &key, const QString &value, const char *unit, bool isText)
{
    if (!value.isEmpty())
        layout.metadata.append({ key, value, unit, isText });
}

void AddRegionFacts(const QVector<SpeSensorRegion> &regions, SpeLayout &layout)
{
    for (int i = 0; i < regions.size(); ++i)
        AddFact(layout, SpeRegionKey(i, regions.size()),
                regions[i].pixels.isEmpty() ? QString() : regions[i].Text(), "", true);
}

SpeRegion PartOf(const SpeRegion &whole, const QRect &place, const SpeLayout &layout)
{
    SpeRegion part;
    part.width = place.width();
    part.height = place.height();
    part.offset = (qint64(place.y()) * whole.width + place.x()) * BytesPerSample(layout.type);
    part.skipped = whole.width - place.width();
    part.axis = whole.axis;
    const bool isOfColumns = whole.axis.side == SpectralSide::Columns;
    part.axis.values =
        whole.axis.values.mid(isOfColumns ? place.x() : place.y(), PixelsOf(whole.axis.side, place.size()));
    return part;
}

/// Takes the rectangle that a frame of version 2 is apart where its regions are known. A file of one region often tells
/// nothing of it, or of another one.
void FindRegions(const SpeHeader &header, SpeLayout &layout)
{
    const SpeRegion whole = layout.regions.first();
    const QSize rectangle(whole.width, whole.height);
    const int count = header.Regions();
    QVector<SpeSensorRegion> regions;
    for (int i = 0; i < qMin(count, SpeHeader::mostRegionsTold); ++i)
        regions << header.Region(i);
    if (count == 1) {
        if (regions.first().Size() != rectangle)
            return;
        layout.regions.first().onSensor = regions.first();
        AddRegionFacts(regions, layout);
        return;
    }
    AddRegionFacts(regions, layout);
    QVector<QRect> places;
    if (count > SpeHeader::mostRegionsTold)
        layout.mergedReason = Text::tr("its header has room for %1 of them").arg(SpeHeader::mostRegionsTold);
    else if (header.IsTurned())
        layout.mergedReason = Text::tr("its frames were turned or mirrored after they had been read out");
    else
        places = PlaceSpeRegions(regions, rectangle, &layout.mergedReason);
    layout.mergedRegions = places.isEmpty() ? count : 1;
    if (places.isEmpty())
        return;
    layout.regions.clear();
    for (int i = 0; i < places.size(); ++i) {
        layout.regions << PartOf(whole, places[i], layout);
        layout.regions.last().onSensor = regions[i];
    }
}

/// Of the columns, or where those have none, of the rows. One in pixels is none.
SpectralAxis AxisOf(const SpeHeader &header, SpeLayout &layout)
{
    QString fault;
    SpectralAxis axis = header.OfColumns().Axis(header.Width(), &fault);
    if (axis.IsEmpty() && fault.isEmpty()) {
        axis = header.OfRows().Axis(header.Height(), &fault);
        if (!axis.IsEmpty())
            axis.side = SpectralSide::Rows;
    }
    if (!fault.isEmpty())
        layout.Warn(fault);
    return axis;
}

bool LayoutOfHeader(const SpeHeader &header, SpeLayout &layout, FileFault &fault)
{
    if (!TypeOfCode(header.TypeCode(), layout.type, fault))
        return false;
    if (header.Width() == 0 || header.Height() == 0)
        return fault.Set(Text::tr("its header gives a size of %1 x %2 pixels").arg(header.Width()).arg(header.Height()),
                         DamagedAdvice());
    SpeRegion whole;
    whole.width = header.Width();
    whole.height = header.Height();
    whole.axis = AxisOf(header, layout);
    layout.regions = { whole };
    layout.frameStride = layout.RegionBytes(whole);
    layout.frames = header.Frames();
    FindRegions(header, layout);
    return true;
}

void ReadFacts(const SpeHeader &header, SpeLayout &layout)
{
    const auto number = [](double value) { return value == 0 ? QString() : QString::number(value); };
    AddFact(layout, "Date", header.Date(), "", true);
    AddFact(layout, "Time", header.LocalTime(), "", true);
    AddFact(layout, "ExposureTime", number(header.ExposureSeconds()), "s", false);
    AddFact(layout, "DetectorTemperature", number(header.TemperatureCelsius()), "°C", false);
    AddFact(layout, "Accumulations", number(header.Accumulations()), "", false);
    for (int line = 0; line < 5; ++line)
        AddFact(layout, "Comment", header.Comment(line), "", true);
}

/// Behind the header and within the file.
bool IsFooterThere(const QIODevice &file, const SpeHeader &header)
{
    const quint64 offset = header.FooterOffset();
    return offset >= quint64(SpeLayout::headerBytes) && offset < quint64(file.size());
}

/// Regions of version 2 lie side by side or below each other in one rectangle, those of version 3 follow each other.
bool CheckRegions(const SpeLayout &layout, qint64 dataBytes, bool doFollow, FileFault &fault)
{
    qint64 end = 0; // of the regions before
    for (int i = 0; i < layout.regions.size(); ++i) {
        const SpeRegion &region = layout.regions[i];
        const QString name = Text::tr("region %1 of %2").arg(i + 1).arg(layout.regions.size());
        if (region.width <= 0 || region.height <= 0)
            return fault.Set(Text::tr("%1 has a size of %2 x %3 pixels").arg(name).arg(region.width).arg(region.height), DamagedAdvice());
        const qint64 samples = qint64(region.width) * region.height;
        if (samples > std::numeric_limits<qint64>::max() / 8 || region.offset < end
            || layout.RegionBytes(region) > layout.frameStride - region.offset)
            return fault.Set(Text::tr("%1 does not fit into its frame").arg(name), DamagedAdvice());
        if (region.offset > dataBytes || layout.RegionBytes(region) > dataBytes - region.offset)
            return fault.Set(Text::tr("not even its first frame of %1 x %2 pixels is whole").arg(region.width).arg(region.height),
                             DamagedAdvice());
        if (doFollow)
            end = region.offset + layout.RegionBytes(region);
    }
    return true;
}

/// The description of an SPE 3 file.
bool LayoutOfFooter(QIODevice &file, qint64 offset, SpeLayout &layout, FileFault &fault)
{
    if (file.size() - offset > mostFooterBytes)
        return fault.Set(Text::tr("its description (XML at the end) is larger than any such file needs"), DamagedAdvice());
    file.seek(offset);
    SpeCalibrations calibrations;
    if (!ReadSpeFooter(file.read(mostFooterBytes), layout, calibrations, fault)
        || !CheckRegions(layout, offset - SpeLayout::headerBytes, true, fault))
        return false;
    CalibrateRegions(calibrations, layout);
    QVector<SpeSensorRegion> regions;
    for (const SpeRegion &region : qAsConst(layout.regions))
        regions << region.onSensor;
    AddRegionFacts(regions, layout);
    return true;
}

/// An SPE 3 file whose description is gone is still readable by its header when that gives a size.
bool CheckLostFooter(const SpeHeader &header, SpeLayout &layout, FileFault &fault)
{
    if (header.Width() == 0 || header.Height() == 0)
        return fault.Set(Text::tr("its description (XML at the end) is missing"), DamagedAdvice());
    layout.Warn(Text::tr("its description (XML at the end) is missing, and with it the wavelengths"));
    return true;
}

/// Some writers give a wrong number of frames: those that are there count.
void CountFrames(SpeLayout &layout, qint64 dataBytes)
{
    qint64 lastBytes = 0;
    for (const SpeRegion &region : qAsConst(layout.regions))
        lastBytes = qMax(lastBytes, region.offset + layout.RegionBytes(region));
    const qint64 whole = 1 + (dataBytes - lastBytes) / layout.frameStride;
    const qint64 most = std::numeric_limits<int>::max() / layout.regions.size();
    const qint64 promised = layout.frames;
    layout.frames = int(qMin(most, promised > 0 ? qMin(promised, whole) : whole));
    layout.missingFrames = promised > whole ? promised - whole : 0;
}

/// An axis that turns around has several places for one wavelength. Of several the first is told.
void LeaveOutAxesThatTurn(SpeLayout &layout)
{
    bool isTold = false;
    for (SpeRegion &region : layout.regions) {
        int turn = 0;
        if (IsSteady(region.axis.values, &turn))
            continue;
        region.axis = SpectralAxis();
        if (!std::exchange(isTold, true))
            layout.Warn(Text::tr("its calibration does not rise or fall steadily (it turns at pixel %1) and is left out").arg(turn));
    }
}

} // namespace

/// Regions often share a calibration, and what is wrong with it.
void SpeLayout::Warn(const QString &warning)
{
    if (!warnings.contains(warning))
        warnings << warning;
}

bool ReadSpeLayout(QIODevice &file, SpeLayout &layout, FileFault &fault)
{
    file.seek(0);
    const QByteArray bytes = file.read(SpeLayout::headerBytes);
    if (bytes.size() < SpeLayout::headerBytes)
        return fault.Set(Text::tr("its header is cut short"), DamagedAdvice());
    const SpeHeader header(bytes);
    layout = SpeLayout();
    layout.version = header.Version();
    const bool hasFooter = layout.version >= 3.0 && header.FooterOffset() != 0;
    const bool footerIsThere = hasFooter && IsFooterThere(file, header);
    const qint64 dataEnd = footerIsThere ? qint64(header.FooterOffset()) : file.size();
    ReadFacts(header, layout);
    if (footerIsThere) {
        if (!LayoutOfFooter(file, dataEnd, layout, fault))
            return false;
    } else if ((hasFooter && !CheckLostFooter(header, layout, fault)) || !LayoutOfHeader(header, layout, fault)
               || !CheckRegions(layout, dataEnd - SpeLayout::headerBytes, false, fault)) {
        return false;
    }
    CountFrames(layout, dataEnd - SpeLayout::headerBytes);
    LeaveOutAxesThatTurn(layout);
    return true;
}
