// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsconverter.h"

#include "levelskernel.h"
#include "sampleview.h"
#include "saturationmark.h"

#include <cstring>

namespace {

void PreparePicture(const SampleView &samples, bool marksSaturated, QImage *picture)
{
    const bool isColour = samples.isColour || marksSaturated;
    const QImage::Format format = isColour ? QImage::Format_RGB888 : QImage::Format_Grayscale8;
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
                              bool marksSaturated)
{
    if (samples.IsEmpty()) {
        *picture = QImage();
        return;
    }
    PreparePicture(samples, marksSaturated, picture);
    if (picture->isNull())
        return; // no memory for a picture of that size

    const DisplayLevels guarded = levels.Guarded(samples.bitDepth);
    if (guarded.gamma != 1.0)
        m_gammaTable.Prepare(guarded, samples.Has16BitSamples() ? 65536 : 256);
    uchar *row = picture->bits();
    for (int y = 0; y < samples.height; ++y, row += picture->bytesPerLine()) {
        if (marksSaturated)
            MarkRow(samples, guarded, y, row);
        else
            ConvertRow(samples, guarded, y, row);
    }
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

void LevelsConverter::MarkRow(const SampleView &samples, const DisplayLevels &levels, int y, uchar *rgb)
{
    const int fullScale = DisplayLevels::FullRange(samples.bitDepth).right;
    if (samples.isColour) {
        ConvertRow(samples, levels, y, rgb);
        if (samples.Has16BitSamples())
            SaturationMark::MarkColour(samples.Row16(y), samples.width, fullScale, rgb);
        else
            SaturationMark::MarkColour(samples.Row8(y), samples.width, fullScale, rgb);
        return;
    }
    m_greyRow.resize(size_t(samples.width));
    ConvertRow(samples, levels, y, m_greyRow.data());
    if (samples.Has16BitSamples())
        SaturationMark::MarkGrey(samples.Row16(y), m_greyRow.data(), samples.width, fullScale, rgb);
    else
        SaturationMark::MarkGrey(samples.Row8(y), m_greyRow.data(), samples.width, fullScale, rgb);
}
