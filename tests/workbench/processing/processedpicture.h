// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "processing.h"

/// A step of processing that is done, and what the same is when it is calculated sample by sample.
namespace ProcessedPicture {

/// There is no other picture.
bool NoReference(const QString &path, Picture &frame, QString &error);
Picture Done(const Picture &picture, const ProcessSettings &settings, QString *error = nullptr,
             const ReferenceReader &read = NoReference);

/// A picture of the row, see RandomPicture::AddShapes(); of floating point with gaps, when they have a part in the test.
Picture RowPicture(int gaps = 0);
/// NaN where the picture has gaps, else the value.
double OrGap(const Picture &picture, int x, int y, int channel, double value);
/// The picture with each gap filled as it is said: by the number before it in its row, else by the first one after it; a
/// row without any by the row above, or by the first row with one.
Picture Filled(Picture picture);
/// Sample beyond the edge: that of the last row and column.
double Repeated(const Picture &picture, int x, int y, int channel);
/// Of each place the extreme of the samples of a square or a disc that are in the picture.
Picture Extremes(const Picture &picture, int radius, bool isDisc, bool largest);

/// Room for a last digit of the type that is calculated in.
double Digits(SampleType type);
/// Integers may come out one apart where the value before rounding is halfway.
double RoundedDigits(SampleType type);

} // namespace ProcessedPicture
