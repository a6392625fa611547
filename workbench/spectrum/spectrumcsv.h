// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibratedaxis.h"
#include "spectrumproduct.h"

#include <QByteArray>
#include <QDateTime>

/// A spectrum that leaves the program, with all that is known of it.
struct ExportedSpectrum
{
    SpectrumProduct product; ///< a binned spectrum or tracks
    CalibratedAxis axis;
    /// What our own calibration was made of, and how well it fits; not used for that of a file.
    QVector<CalibrationPoint> points;
    double residualPixels = 0; ///< root mean square
    QString source;            ///< a camera or a file
    QDateTime when;            ///< it leaves
};

/// As other programs read it: comment lines that begin with "# " and say all that is known (what was binned,
/// corrections, calibration with its coefficients and lines, and each peak between the samples), one line of column names, then pixel, value on the axis,
/// and of the binned spectrum or of each track the values, with 1 where a pixel was saturated, 0 where none was, and nothing
/// where that is not known. Numbers have a decimal
/// point, whatever the language. Looks for the peaks: not in the GUI thread.
QByteArray SpectrumCsv(const ExportedSpectrum &spectrum);
