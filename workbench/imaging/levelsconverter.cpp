// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsconverter.h"

#include "bothhalves.h"
#include "levelskernel.h"
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
    if (!Begin(samples, levels, picture, marksSaturated, palette))
        return;
    const bool isWorthwhile = qint64(samples.width) * samples.height >= ConvertByTwo;
    ForBothHalves(samples.height, isWorthwhile ? 0 : samples.height + 1, [this](int from, int to) { ConvertRows(from, to); });
}

bool LevelsConverter::Begin(const SampleView &samples, const DisplayLevels &levels, QImage *picture,
                            bool marksSaturated, const Palette &palette)
{
    if (samples.IsEmpty()) {
        *picture = QImage();
        return false;
    }
    m_samples = samples;
    m_levels = levels.Guarded(samples.bitDepth);
    m_marksSaturated = marksSaturated;
    m_palette = palette;
    m_isPainted = !samples.isColour && (marksSaturated || !palette.IsGrey());
    PreparePicture(samples, m_isPainted, picture);
    if (picture->isNull())
        return false; // no memory for a picture of that size

    if (m_levels.gamma != 1.0)
        m_gammaTable.Prepare(m_levels, samples.Has16BitSamples() ? 65536 : 256);
    m_rows = picture->bits();
    m_stride = picture->bytesPerLine();
    return true;
}

void LevelsConverter::ConvertRows(int from, int to) const
{
    std::vector<uchar> greyRow(m_isPainted ? size_t(m_samples.width) : 0);
    for (int y = from; y < to; ++y) {
        uchar *row = m_rows + y * m_stride;
        if (m_isPainted)
            PaintMonoRow(y, greyRow.data(), row);
        else if (m_marksSaturated)
            MarkColourRow(y, row);
        else
            ConvertRow(y, row);
    }
}

void LevelsConverter::ConvertRow(int y, uchar *grey) const
{
    const int count = m_samples.SamplesPerRow();
    if (m_levels.gamma != 1.0) {
        if (m_samples.Has16BitSamples())
            m_gammaTable.LookUp(m_samples.Row16(y), count, grey);
        else
            m_gammaTable.LookUp(m_samples.Row8(y), count, grey);
    } else if (ShowsSamplesAsTheyAre(m_samples, m_levels)) {
        std::memcpy(grey, m_samples.Row8(y), size_t(count));
    } else if (m_samples.Has16BitSamples()) {
        LevelsKernel::MapLinear(m_samples.Row16(y), count, m_levels.left, m_levels.right, grey);
    } else {
        LevelsKernel::MapLinear(m_samples.Row8(y), count, m_levels.left, m_levels.right, grey);
    }
}

void LevelsConverter::MarkColourRow(int y, uchar *rgb) const
{
    const int fullScale = DisplayLevels::FullRange(m_samples.bitDepth).right;
    ConvertRow(y, rgb);
    if (m_samples.Has16BitSamples())
        SaturationMark::MarkColour(m_samples.Row16(y), m_samples.width, fullScale, rgb);
    else
        SaturationMark::MarkColour(m_samples.Row8(y), m_samples.width, fullScale, rgb);
}

void LevelsConverter::PaintMonoRow(int y, uchar *greyRow, uchar *rgb) const
{
    const int fullScale = DisplayLevels::FullRange(m_samples.bitDepth).right;
    ConvertRow(y, greyRow);
    if (!m_palette.IsGrey())
        m_palette.Paint(greyRow, m_samples.width, rgb);
    if (!m_marksSaturated)
        return;
    const auto mark = [&](const auto *row) {
        if (m_palette.IsGrey())
            SaturationMark::MarkGrey(row, greyRow, m_samples.width, fullScale, rgb);
        else
            SaturationMark::MarkPainted(row, m_samples.width, fullScale, rgb);
    };
    if (m_samples.Has16BitSamples())
        mark(m_samples.Row16(y));
    else
        mark(m_samples.Row8(y));
}
