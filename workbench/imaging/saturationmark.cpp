// SPDX-License-Identifier: GPL-3.0-or-later
#include "saturationmark.h"

#include <algorithm>
#include <limits>

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

void PaintRed(uchar *rgb)
{
    rgb[0] = 255;
    rgb[1] = 0;
    rgb[2] = 0;
}

template <typename Sample>
void MarkSamples(const Sample *samples, int count, int fullScale, uchar *rgb)
{
    for (int i = 0; i < count; ++i, rgb += Channels) {
        if (samples[i] >= fullScale)
            PaintRed(rgb);
    }
}

template <typename Sample>
void MarkPixels(const Sample *samples, int pixelCount, int fullScale, uchar *rgb)
{
    for (int i = 0; i < pixelCount; ++i, samples += Channels, rgb += Channels) {
        if (samples[0] < fullScale && samples[1] < fullScale && samples[2] < fullScale)
            continue;
        PaintRed(rgb);
    }
}

template <typename Sample>
void MarkTop(const Sample *samples, int pixelCount, int channels, uchar *rgb)
{
    for (int i = 0; i < pixelCount; ++i, samples += channels, rgb += Channels) {
        if (*std::max_element(samples, samples + channels) == std::numeric_limits<Sample>::max())
            PaintRed(rgb);
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

void MarkPainted(const quint8 *samples, int count, int fullScale, uchar *rgb)
{
    MarkSamples(samples, count, fullScale, rgb);
}

void MarkPainted(const quint16 *samples, int count, int fullScale, uchar *rgb)
{
    MarkSamples(samples, count, fullScale, rgb);
}

void MarkColour(const quint8 *samples, int pixelCount, int fullScale, uchar *rgb)
{
    MarkPixels(samples, pixelCount, fullScale, rgb);
}

void MarkColour(const quint16 *samples, int pixelCount, int fullScale, uchar *rgb)
{
    MarkPixels(samples, pixelCount, fullScale, rgb);
}

void MarkLargest(const qint8 *samples, int pixelCount, int channels, uchar *rgb)
{
    MarkTop(samples, pixelCount, channels, rgb);
}

void MarkLargest(const qint16 *samples, int pixelCount, int channels, uchar *rgb)
{
    MarkTop(samples, pixelCount, channels, rgb);
}

void MarkLargest(const qint32 *samples, int pixelCount, int channels, uchar *rgb)
{
    MarkTop(samples, pixelCount, channels, rgb);
}

void MarkLargest(const quint32 *samples, int pixelCount, int channels, uchar *rgb)
{
    MarkTop(samples, pixelCount, channels, rgb);
}

} // namespace SaturationMark
