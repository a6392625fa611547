// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <atomic>

/// What became of the frames that spectra were wanted of, since Reset(). Any thread.
struct SpectrumLedger
{
    std::atomic<quint64> taken{0};    ///< frames that came
    std::atomic<quint64> computed{0}; ///< spectra made of them
    std::atomic<quint64> missed{0};   ///< frames that came while the queue was full
    std::atomic<quint64> dropped{0};  ///< frames that waited when spectra were no longer wanted

    void Reset()
    {
        taken = 0;
        computed = 0;
        missed = 0;
        dropped = 0;
    }
};
