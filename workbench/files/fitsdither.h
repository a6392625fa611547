// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The fixed random sequence by which compressed floating point samples were dithered, from the FITS
/// standard: each tile begins at a place of its own.
class FitsDither
{
public:
    /// `tile` counts from 0, `seed` is ZDITHER0.
    FitsDither(int tile, int seed);

    /// The number, 0 to 1, that was added to the next sample before it was rounded.
    double Next();

private:
    void Restart();

    int m_start;
    int m_place = 0;
};
