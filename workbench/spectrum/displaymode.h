// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What the centre shows of the live or opened picture.
enum class DisplayMode {
    General,  ///< the picture page
    Physics,  ///< the picture among rulers, intensity curves and colour bar
    Plot,     ///< one spectrum as a curve
    PlotPeak, ///< with its peaks marked
    Tracks3D  ///< the spectra of several tracks
};
