// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumpanel.h"

SpectrumPanel::SpectrumPanel()
    : SourcePanel(FieldSource::SpectrumName, "SpectrumPanel", tr("This program shows no spectra."))
{
}
