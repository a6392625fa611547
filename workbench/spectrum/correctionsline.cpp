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
    if (!live.HasSpectrum())
        return Text::tr("There is no spectrum yet.");
    const QString sentence = live.corrections.Sentence();
    // The plots take whole numbers without a sign.
    return live.corrections.GoesBelowZero() ? Text::tr("%1 Values below zero are drawn at zero.").arg(sentence) : sentence;
}
