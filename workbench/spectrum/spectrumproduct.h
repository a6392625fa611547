// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linetilt.h"
#include "spectrumcorrections.h"
#include "trackfinder.h"

#include <QSize>

#include <vector>

/// What was made of one frame.
struct SpectrumProduct
{
    quint64 frameId = 0;
    qint64 takenMs = 0; ///< the frame's arrival, since 1970; 0 when that is not known
    QSize frameSize;    ///< as shown
    SensorFrame sensor; ///< how it came to be that
    QString camera;     ///< its name; empty when it is not known
    Spectrum raw;       ///< of full vertical binning; empty when that is off
    Spectrum averaged;  ///< before dark and reference
    Spectrum corrected;
    std::vector<Spectrum> tracks; ///< corrected
    std::vector<RowBand> trackBands; ///< their rows
    RowBand band; ///< the rows that were binned, or columns
    bool isBandNew = false;
    std::vector<LineFocus> lines;
    bool areLinesNew = false;
    AppliedCorrections corrections; ///< of the corrected one, or of the tracks

    bool HasSpectrum() const { return corrected.Count() > 0 || !tracks.empty(); }
    /// Of some value, binned or of a track, a pixel was at the end of its range.
    bool IsSaturated() const;
    void ForgetBinned() { raw = averaged = corrected = Spectrum(); }
    void ForgetTracks()
    {
        tracks.clear();
        trackBands.clear();
    }
};
