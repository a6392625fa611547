// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelstexts.h"

#include "samplekind.h"

QStringList LevelsTexts::Modes()
{
    return {tr("Automatic (0.1 % to 99.9 %)"), tr("Minimum and maximum"), tr("Manual"), tr("Full range")};
}

QString LevelsTexts::Kind(const SampleKind &kind)
{
    if (!kind.IsWhole())
        return tr("%1 bit floating point samples").arg(kind.Bits());
    return tr("%1 bit samples, %2 to %3").arg(kind.Bits()).arg(kind.Least(), 0, 'f', 0).arg(kind.Most(), 0, 'f', 0);
}

QString LevelsTexts::PaletteTitle(const QString &name)
{
    if (name == "grey")
        return tr("&Grey");
    if (name == "inverted")
        return tr("&Inverted");
    return name.left(1).toUpper() + name.mid(1);
}
