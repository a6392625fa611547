// SPDX-License-Identifier: GPL-3.0-or-later
#include "correctionsline.h"

#include "spectrumproduct.h"
#include "spectrumsettings.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CorrectionsLine)
};

} // namespace

QString CorrectionsLine(const SpectrumSettings &settings, const SpectrumProduct &live)
{
    if (settings.IsImageShown())
        return Text::tr("None: an opened file is shown as it was saved.");
    return live.HasSpectrum() ? live.corrections.Sentence() : Text::tr("There is no spectrum yet.");
}
