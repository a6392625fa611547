// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// The inner loops of the live picture, in the widest vectors that this processor has.
namespace LevelsKernel {

/// 0 up to `left`, 255 from `right` on, in between 255 * (sample - left) / (right - left) rounded to the nearest.
/// Fixed-point: exact for right - left up to 2896; beyond, a value within 1/250 under a half may round up.
void MapLinear(const quint8 *samples, int count, int left, int right, quint8 *grey);
void MapLinear(const quint16 *samples, int count, int left, int right, quint8 *grey);

/// Lowers `least` and raises `most` to the samples' range.
void FindRange(const quint8 *samples, int count, int *least, int *most);
void FindRange(const quint16 *samples, int count, int *least, int *most);

} // namespace LevelsKernel
