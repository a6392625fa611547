// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "palette.h"
#include "samplerange.h"

#include <QImage>
#include <QVector>

class Picture;

/// Showing samples whose type says nothing of the values to expect: signed, 32 bit and floating point. What
/// is no number has no part in a range; a picture of one single value gets a range around it.
namespace ScaledSamples {

/// From the smallest finite sample to the largest in every `rowStep`th row.
SampleRange FullRange(const Picture &picture, int rowStep = 1);
/// Without the smallest and the largest thousandth, so that a few hot pixels don't make the picture dark.
SampleRange TypicalRange(const Picture &picture);
/// Grayscale8 or RGB888: black up to the left of the range and for what is no number, white from the right
/// on, and of mono samples the palette's colours for these greys. Null without memory for it.
QImage Image(const Picture &picture, const SampleRange &range, double gamma, const Palette &palette = Palette());

/// The picture that was made of these samples, RGB888, with pure red where a pixel of signed or 32 bit integers has
/// reached full scale. As it is for floating point, which has none.
QImage WithSaturationMarks(const Picture &samples, const QImage &image);

/// How many samples of every `rowStep`th row lie in each of `columns` equal parts of a range.
QVector<qint64> Histogram(const Picture &picture, const SampleRange &range, int columns, int rowStep);

} // namespace ScaledSamples
