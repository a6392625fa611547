// SPDX-License-Identifier: GPL-3.0-or-later
#include "appliedcorrections.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(AppliedCorrections)
};

QString AverageText(const AppliedCorrections &applied)
{
    return applied.averaged < applied.wanted.averaged ? Text::tr("average of fewer than %1 so far").arg(applied.wanted.averaged)
                                                      : Text::tr("average of %1").arg(applied.wanted.averaged);
}

/// Empty when none is wanted.
QString DarkText(const AppliedCorrections &applied)
{
    if (!applied.wanted.subtractsDark)
        return QString();
    if (!applied.hasDark)
        return Text::tr("no dark spectrum of this part of the picture to subtract");
    return applied.isDarkOfOtherExposure ? Text::tr("dark of another exposure subtracted: take it anew") : Text::tr("dark subtracted");
}

/// Empty when neither is wanted.
QString ReferenceText(const AppliedCorrections &applied)
{
    if (!applied.IsReferenceWanted())
        return QString();
    if (!applied.hasReference)
        return Text::tr("no reference spectrum of this part of the picture");
    switch (applied.Quantity()) {
    case SpectrumQuantity::Transmission: return Text::tr("transmission in 1/100 %");
    case SpectrumQuantity::Absorbance: return Text::tr("absorbance in 1/10000");
    case SpectrumQuantity::Counts: break;
    }
    return Text::tr("reference subtracted");
}

QStringList DarkAndReference(const AppliedCorrections &applied)
{
    QStringList parts;
    if (applied.isTrack && (applied.wanted.subtractsDark || applied.IsReferenceWanted()))
        return {Text::tr("dark and reference not of tracks")};
    parts << DarkText(applied) << ReferenceText(applied);
    parts.removeAll(QString());
    return parts;
}

} // namespace

bool CorrectionSettings::operator==(const CorrectionSettings &other) const
{
    return removesCosmicRays == other.removesCosmicRays && averaged == other.averaged && subtractsDark == other.subtractsDark
        && subtractsReference == other.subtractsReference && quantity == other.quantity && removesBaseline == other.removesBaseline
        && smoothing == other.smoothing;
}

bool AppliedCorrections::GoesBelowZero() const
{
    return wanted.removesBaseline || (!isTrack && (IsDarkSubtracted() || (hasReference && IsReferenceWanted())));
}

QString AppliedCorrections::Sentence() const
{
    QStringList parts;
    if (wanted.removesCosmicRays)
        parts << Text::tr("cosmic rays removed");
    if (wanted.averaged > 1)
        parts << AverageText(*this);
    parts << DarkAndReference(*this);
    if (wanted.removesBaseline)
        parts << Text::tr("baseline removed");
    if (wanted.smoothing >= 3)
        parts << Text::tr("smoothed over %1 samples").arg(SmoothingWindow());
    return parts.isEmpty() ? Text::tr("No correction is on.") : Text::tr("Corrections: %1.").arg(parts.join(Text::tr(", ")));
}

QString AppliedCorrections::Record() const
{
    QStringList parts;
    if (wanted.removesCosmicRays)
        parts << "cosmic rays removed";
    if (wanted.averaged > 1)
        parts << QString("average of %1 spectra").arg(averaged);
    if (IsDarkSubtracted())
        parts << (isDarkOfOtherExposure ? "dark of another exposure subtracted" : "dark subtracted");
    if (Quantity() != SpectrumQuantity::Counts)
        parts << "divided by reference";
    else if (hasReference && wanted.subtractsReference)
        parts << "reference subtracted";
    if (wanted.removesBaseline)
        parts << "baseline removed";
    if (wanted.smoothing >= 3)
        parts << QString("smoothed over %1 samples").arg(SmoothingWindow());
    return parts.isEmpty() ? QString("none") : parts.join(", ");
}
