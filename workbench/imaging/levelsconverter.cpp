// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsconverter.h"

#include "levelskernel.h"
#include "sampleview.h"

#include <cmath>
#include <cstring>

namespace {

void PreparePicture(const SampleView &samples, QImage *picture)
{
    const QImage::Format format = samples.isColour ? QImage::Format_RGB888 : QImage::Format_Grayscale8;
    const QSize size(samples.width, samples.height);
    if (picture->format() != format || picture->size() != size || !picture->isDetached())
        *picture = QImage(size, format);
}

/// Calls convertRow(y, grey) for every row; a row of the picture may be longer than its samples.
template <typename ConvertRow>
void ForEachRow(const SampleView &samples, QImage *picture, ConvertRow convertRow)
{
    uchar *grey = picture->bits();
    for (int y = 0; y < samples.height; ++y, grey += picture->bytesPerLine())
        convertRow(y, grey);
}

template <typename Sample>
void LookUp(const Sample *samples, int count, const uchar *table, uchar *grey)
{
    for (int i = 0; i < count; ++i)
        grey[i] = table[samples[i]];
}

bool ShowsSamplesAsTheyAre(const SampleView &samples, const DisplayLevels &levels)
{
    return samples.bitDepth == 8 && levels.left == 0 && levels.right == 255;
}

} // namespace

void LevelsConverter::Convert(const SampleView &samples, const DisplayLevels &levels, QImage *picture)
{
    if (samples.IsEmpty()) {
        *picture = QImage();
        return;
    }
    PreparePicture(samples, picture);
    if (picture->isNull())
        return; // no memory for a picture of that size

    const int count = samples.SamplesPerRow();
    const DisplayLevels guarded = levels.Guarded(samples.bitDepth);
    if (guarded.gamma != 1.0) {
        PrepareTable(guarded, samples.Has16BitSamples() ? 65536 : 256);
        ForEachRow(samples, picture, [&](int y, uchar *grey) {
            if (samples.Has16BitSamples())
                LookUp(samples.Row16(y), count, m_table.data(), grey);
            else
                LookUp(samples.Row8(y), count, m_table.data(), grey);
        });
    } else if (ShowsSamplesAsTheyAre(samples, guarded)) {
        ForEachRow(samples, picture,
                   [&](int y, uchar *grey) { std::memcpy(grey, samples.Row8(y), size_t(count)); });
    } else {
        ForEachRow(samples, picture, [&](int y, uchar *grey) {
            if (samples.Has16BitSamples())
                LevelsKernel::MapLinear(samples.Row16(y), count, guarded.left, guarded.right, grey);
            else
                LevelsKernel::MapLinear(samples.Row8(y), count, guarded.left, guarded.right, grey);
        });
    }
}

void LevelsConverter::PrepareTable(const DisplayLevels &levels, size_t size)
{
    const bool isUpToDate = m_table.size() == size && m_tableLevels.left == levels.left
                            && m_tableLevels.right == levels.right && m_tableLevels.gamma == levels.gamma;
    if (isUpToDate)
        return;
    m_tableLevels = levels;
    m_table.assign(size, 255);
    const double range = levels.right - levels.left;
    for (int value = 0; value < levels.right; ++value) {
        const double part = value > levels.left ? (value - levels.left) / range : 0.0;
        m_table[size_t(value)] = uchar(255.0 * std::pow(part, 1.0 / levels.gamma) + 0.5);
    }
}
