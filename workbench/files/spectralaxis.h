// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QVector>

enum class SpectralUnit
{
    Pixel,
    Nanometre,
    Wavenumber, ///< 1/cm
    RamanShift  ///< 1/cm, from the laser's line
};

/// The pixels of a picture that have a value each.
enum class SpectralSide
{
    Columns, ///< from the left: the spectrum lies along the rows
    Rows     ///< from the top: it lies along the columns
};
/// How many of them a picture of `size` has.
inline int PixelsOf(SpectralSide side, const QSize &size)
{
    return side == SpectralSide::Columns ? size.width() : size.height();
}

/// What the columns, or the rows, of a picture mean by the calibration in its file: one value for each, as the file's maker
/// took them (a list made for Raman work may be in vacuum wavelengths). Empty without a calibration.
struct SpectralAxis
{
    SpectralUnit unit = SpectralUnit::Pixel;
    SpectralSide side = SpectralSide::Columns;
    QVector<double> values;
    double laserNm = 0; ///< of Raman work; 0 when the file does not say

    bool IsEmpty() const { return values.isEmpty(); }
    bool operator==(const SpectralAxis &other) const
    {
        return unit == other.unit && side == other.side && values == other.values && laserNm == other.laserNm;
    }
};

/// They rise, or they fall, from each to the next, and all are numbers; `turn` says which one is the first that does not.
bool IsSteady(const QVector<double> &values, int *turn);
