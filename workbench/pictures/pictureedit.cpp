// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureedit.h"

#include "picturegeometry.h"
#include "processing.h"

#include <algorithm>
#include <numeric>

namespace {

/// Laid in one way and then in another.
Orientation Then(const Orientation &first, const Orientation &second)
{
    const Orientation flipped = second.IsFlipped() ? first.FlippedHorizontally() : first;
    return Orientation(flipped.IsFlipped(), flipped.QuarterTurns() + second.QuarterTurns());
}

} // namespace

Orientation PictureEdit::GetOrientation() const
{
    Orientation orientation;
    for (const ProcessStep &step : m_steps)
        orientation = Then(orientation, step.before.orientation);
    return Then(orientation, m_last.orientation);
}

bool PictureEdit::IsCropped() const
{
    return !m_last.region.isNull()
           || std::any_of(m_steps.begin(), m_steps.end(),
                          [](const ProcessStep &step) { return !step.before.region.isNull(); });
}

PictureEdit PictureEdit::Turned(int rotateType) const
{
    PictureEdit edit = *this;
    edit.m_last.orientation = m_last.orientation.After(rotateType);
    return edit;
}

PictureEdit PictureEdit::Cropped(const QRect &seen, const QSize &fileSize) const
{
    const QSize seenSize = SeenSize(fileSize);
    const QRect left = seen & QRect(QPoint(0, 0), seenSize);
    if (left.isEmpty() || left.size() == seenSize)
        return *this;
    PictureEdit edit = *this;
    edit.m_last.region = m_last.orientation.Inverse().Map(left, seenSize)
                             .translated(m_last.RegionOf(SizeAfterSteps(fileSize)).topLeft());
    return edit;
}

PictureEdit PictureEdit::Processed(const ProcessSettings &settings) const
{
    if (::IsNone(settings))
        return *this;
    PictureEdit edit = *this;
    edit.m_steps << ProcessStep{ m_last, settings };
    edit.m_last = Geometry();
    return edit;
}

PictureEdit PictureEdit::FirstSteps(int count) const
{
    PictureEdit edit;
    edit.m_steps = m_steps.mid(0, count);
    return edit;
}

QRect PictureEdit::Geometry::RegionOf(const QSize &size) const
{
    const QRect whole(QPoint(0, 0), size);
    return region.isNull() ? whole : region & whole;
}

QSize PictureEdit::SizeAfterSteps(const QSize &fileSize) const
{
    QSize size = fileSize;
    for (const ProcessStep &step : m_steps)
        size = ProcessedSize(step.before.orientation.Map(step.before.RegionOf(size).size()), step.process);
    return size;
}

QSize PictureEdit::SeenSize(const QSize &fileSize) const
{
    return m_last.orientation.Map(m_last.RegionOf(SizeAfterSteps(fileSize)).size());
}

int PictureEdit::PixelsJoined() const
{
    return std::accumulate(m_steps.begin(), m_steps.end(), 1, [](int pixels, const ProcessStep &step) {
        return pixels * ::PixelsJoined(step.process);
    });
}

std::optional<PictureEdit::Source> PictureEdit::SourceOf(const QSize &fileSize) const
{
    Source source{QRect(QPoint(0, 0), fileSize), Orientation()};
    const auto lay = [&source](const Geometry &geometry) {
        const QSize seenSize = source.orientation.Map(source.region.size());
        const QRect inRegion = source.orientation.Inverse().Map(geometry.RegionOf(seenSize), seenSize);
        source.region = inRegion.translated(source.region.topLeft());
        source.orientation = Then(source.orientation, geometry.orientation);
    };
    for (const ProcessStep &step : m_steps) {
        if (::PixelsJoined(step.process) != 1)
            return std::nullopt;
        lay(step.before);
    }
    lay(m_last);
    return source;
}

std::optional<QRect> PictureEdit::FileRegion(const QSize &fileSize) const
{
    const std::optional<Source> source = SourceOf(fileSize);
    if (!source || source->orientation != Orientation())
        return std::nullopt;
    return source->region;
}

SpectralAxis PictureEdit::SeenAxis(const SpectralAxis &ofFile, const QSize &fileSize) const
{
    const std::optional<Source> source = SourceOf(fileSize);
    if (!source || ofFile.values.size() != PixelsOf(ofFile.side, fileSize))
        return SpectralAxis();
    const QRect &region = source->region;
    const bool isOfColumns = ofFile.side == SpectralSide::Columns;
    SpectralAxis seen = ofFile;
    seen.values =
        ofFile.values.mid(isOfColumns ? region.left() : region.top(), PixelsOf(ofFile.side, region.size()));
    const bool isOfSeenColumns = isOfColumns != source->orientation.SwapsSides();
    seen.side = isOfSeenColumns ? SpectralSide::Columns : SpectralSide::Rows;
    const QPoint corner = source->orientation.Map(QPoint(0, 0), region.size());
    if ((isOfSeenColumns ? corner.x() : corner.y()) != 0)
        std::reverse(seen.values.begin(), seen.values.end());
    return seen;
}

int PictureEdit::SeenFrames(int fileFrames) const
{
    const bool isOne = std::any_of(m_steps.begin(), m_steps.end(),
                                   [](const ProcessStep &step) { return IsProjection(step.process); });
    return isOne ? qMin(1, fileFrames) : fileFrames;
}

Picture PictureEdit::Applied(const Picture &processed, int step) const
{
    const Geometry &geometry = step < m_steps.size() ? m_steps.at(step).before : m_last;
    return Oriented(::Cropped(processed, geometry.RegionOf(processed.Size())), geometry.orientation);
}
