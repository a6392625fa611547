// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsconverter.h"

#include "bothhalves.h"
#include "levelskernel.h"
#include "sampleview.h"
#include "saturationmark.h"

#include <cstring>

namespace {

/// Pixels of a picture that two threads convert sooner than one.
constexpr qint64 ConvertByTwo = 1 << 20;

void PreparePicture(const SampleView &samples, bool isPainted, QImage *picture)
{
    const QImage::Format format = samples.isColour || isPainted ? QImage::Format_RGB888 : QImage::Format_Grayscale8;
    const QSize size(samples.width, samples.height);
    if (picture->format() != format || picture->size() != size || !picture->isDetached())
        *picture = QImage(size, format);
}

bool ShowsSamplesAsTheyAre(const SampleView &samples, const DisplayLevels &levels)
{
    return samples.bitDepth == 8 && levels.left == 0 && levels.right == 255;
}

} // namespace

void LevelsConverter::Convert(const SampleView &samples, const DisplayLevels &levels, QImage *picture,
                              bool marksSaturated, const Palette &palette)
{
    if (samples.IsEmpty()) {
        *picture = QImage();
        return;
    }
    m_marksSaturated = marksSaturated;
    m_palette = palette;
    const bool isPainted = !samples.isColour && (marksSaturated || !palette.IsGrey());
    PreparePicture(samples, isPainted, picture);
    if (picture->isNull())
        return; // no memory for a picture of that size

    const DisplayLevels guarded = levels.Guarded(samples.bitDepth);
    if (guarded.gamma != 1.0)
        m_gammaTable.Prepare(guarded, samples.Has16BitSamples() ? 65536 : 256);
    uchar *rows = picture->bits();
    const qptrdiff stride = picture->bytesPerLine();
    const auto convertRows = [&](int from, int to) {
        std::vector<uchar> greyRow(isPainted ? size_t(samples.width) : 0);
        for (int y = from; y < to; ++y) {
            if (isPainted)
                PaintMonoRow(samples, guarded, y, greyRow.data(), rows + y * stride);
            else if (marksSaturated)
                MarkColourRow(samples, guarded, y, rows + y * stride);
            else
                ConvertRow(samples, guarded, y, rows + y * stride);
        }
    };
    const bool isWorthwhile = qint64(samples.width) * samples.height >= ConvertByTwo;
    ForBothHalves(samples.height, isWorthwhile ? 0 : samples.height + 1, convertRows);
}

void LevelsConverter::ConvertRow(const SampleView &samples, const DisplayLevels &levels, int y, uchar *grey) const
{
    const int count = samples.SamplesPerRow();
    if (levels.gamma != 1.0) {
        if (samples.Has16BitSamples())
            m_gammaTable.LookUp(samples.Row16(y), count, grey);
        else
            m_gammaTable.LookUp(samples.Row8(y), count, grey);
    } else if (ShowsSamplesAsTheyAre(samples, levels)) {
        std::memcpy(grey, samples.Row8(y), size_t(count));
    } else if (samples.Has16BitSamples()) {
        LevelsKernel::MapLinear(samples.Row16(y), count, levels.left, levels.right, grey);
    } else {
        LevelsKernel::MapLinear(samples.Row8(y), count, levels.left, levels.right, grey);
    }
}

void LevelsConverter::MarkColourRow(const SampleView &samples, const DisplayLevels &levels, int y, uchar *rgb) const
{
    const int fullScale = DisplayLevels::FullRange(samples.bitDepth).right;
    ConvertRow(samples, levels, y, rgb);
    if (samples.Has16BitSamples())
        SaturationMark::MarkColour(samples.Row16(y), samples.width, fullScale, rgb);
    else
        SaturationMark::MarkColour(samples.Row8(y), samples.width, fullScale, rgb);
}

void LevelsConverter::PaintMonoRow(const SampleView &samples, const DisplayLevels &levels, int y, uchar *greyRow,
                                   uchar *rgb) const
{
    const int fullScale = DisplayLevels::FullRange(samples.bitDepth).right;
    ConvertRow(samples, levels, y, greyRow);
    if (!m_palette.IsGrey())
        m_palette.Paint(greyRow, samples.width, rgb);
    if (!m_marksSaturated)
        return;
    const auto mark = [&](const auto *row) {
        if (m_palette.IsGrey())
            SaturationMark::MarkGrey(row, greyRow, samples.width, fullScale, rgb);
        else
            SaturationMark::MarkPainted(row, samples.width, fullScale, rgb);
    };
    if (samples.Has16BitSamples())
        mark(samples.Row16(y));
    else
        mark(samples.Row8(y));
}
