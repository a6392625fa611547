// SPDX-License-Identifier: GPL-3.0-or-later
#include "saturationmark.h"

namespace {

constexpr int Channels = 3;

template <typename Sample>
void Mark(const Sample *samples, const uchar *grey, int count, int fullScale, uchar *rgb)
{
    for (int i = 0; i < count; ++i, rgb += Channels) {
        const bool isSaturated = samples[i] >= fullScale;
        const uchar other = isSaturated ? 0 : grey[i];
        rgb[0] = isSaturated ? 255 : grey[i];
        rgb[1] = other;
        rgb[2] = other;
    }
}

template <typename Sample>
void MarkPixels(const Sample *samples, int pixelCount, int fullScale, uchar *rgb)
{
    for (int i = 0; i < pixelCount; ++i, samples += Channels, rgb += Channels) {
        if (samples[0] < fullScale && samples[1] < fullScale && samples[2] < fullScale)
            continue;
        rgb[0] = 255;
        rgb[1] = 0;
        rgb[2] = 0;
    }
}

} // namespace

namespace SaturationMark {

void MarkGrey(const quint8 *samples, const uchar *grey, int count, int fullScale, uchar *rgb)
{
    Mark(samples, grey, count, fullScale, rgb);
}

void MarkGrey(const quint16 *samples, const uchar *grey, int count, int fullScale, uchar *rgb)
{
    Mark(samples, grey, count, fullScale, rgb);
}

void MarkColour(const quint8 *samples, int pixelCount, int fullScale, uchar *rgb)
{
    MarkPixels(samples, pixelCount, fullScale, rgb);
}

void MarkColour(const quint16 *samples, int pixelCount, int fullScale, uchar *rgb)
{
    MarkPixels(samples, pixelCount, fullScale, rgb);
}

} // namespace SaturationMark
