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
    QSize frameSize; ///< as shown
    Spectrum raw;       ///< of full vertical binning; empty when that is off
    Spectrum corrected;
    SpectrumQuantity quantity = SpectrumQuantity::Counts; ///< of the corrected one
    std::vector<Spectrum> tracks; ///< corrected
    std::vector<RowBand> trackBands; ///< their rows
    RowBand band; ///< the rows that were binned
    bool isBandNew = false;
    std::vector<LineFocus> lines;
    bool areLinesNew = false;
    QString corrections; ///< the sentence that says which are on
};
