// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// The inner loops that draw saturated samples pure red.
namespace SaturationMark {

/// Grey to red, green and blue, but red where the sample has reached `fullScale`.
void MarkGrey(const quint8 *samples, const uchar *grey, int count, int fullScale, uchar *rgb);
void MarkGrey(const quint16 *samples, const uchar *grey, int count, int fullScale, uchar *rgb);
/// Red where the sample has reached `fullScale`; other pixels of `rgb` stay.
void MarkPainted(const quint8 *samples, int count, int fullScale, uchar *rgb);
void MarkPainted(const quint16 *samples, int count, int fullScale, uchar *rgb);
/// Red where any channel of the pixel has reached `fullScale`; other pixels of `rgb` stay.
void MarkColour(const quint8 *samples, int pixelCount, int fullScale, uchar *rgb);
void MarkColour(const quint16 *samples, int pixelCount, int fullScale, uchar *rgb);
/// Red where any channel of the pixel has the largest value of its type; other pixels of `rgb` stay.
void MarkLargest(const qint8 *samples, int pixelCount, int channels, uchar *rgb);
void MarkLargest(const qint16 *samples, int pixelCount, int channels, uchar *rgb);
void MarkLargest(const qint32 *samples, int pixelCount, int channels, uchar *rgb);
void MarkLargest(const quint32 *samples, int pixelCount, int channels, uchar *rgb);

} // namespace SaturationMark
