// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumnotes.h"

#include "spectrumuimanager.h"

#include <QLocale>

PanelFields SpectrumNotes::Of()
{
    const SpectrumUIManager *spectrum = SpectrumUIManager::GetInstance();
    const QString shown = tr("Display");
    const QString made = tr("Spectrum");
    return {
        PanelField::MakeNote(shown, "mode", tr("Mode"), ModeText()),
        PanelField::MakeNote(shown, "direction", tr("Direction"),
                             spectrum->IsDirectionHorinzontal() ? tr("horizontal") : tr("vertical")),
        PanelField::MakeNote(made, "binning", tr("Full vertical binning"), BinningText()),
        PanelField::MakeNote(made, "tracks", tr("Tracks"),
                             spectrum->GetMultiTrackOnFlag()
                                 ? QString::number(spectrum->GetMultiTrackList().size())
                                 : tr("off")),
        PanelField::MakeNote(made, "calibration", tr("Calibration"), CalibrationText()),
    };
}

QString SpectrumNotes::CalibrationText()
{
    const SpectrumUIManager *spectrum = SpectrumUIManager::GetInstance();
    double first = 0;
    if (spectrum->Calculate(0, first))
        return tr("%1, from %2").arg(spectrum->GetTitleName(), QLocale().toString(first, 'f', 2));
    return tr("Not calibrated: positions are in pixels.");
}

QString SpectrumNotes::ModeText()
{
    const SpectrumUIManager *spectrum = SpectrumUIManager::GetInstance();
    if (spectrum->IsDisplayMode2DPeak())
        return tr("2D with peaks");
    if (spectrum->IsDisplayMode2D())
        return tr("2D");
    if (spectrum->IsDisplayMode3D())
        return tr("3D");
    if (spectrum->IsDisplayModePhysics())
        return tr("Physics");
    return tr("General");
}

QString SpectrumNotes::BinningText()
{
    const SpectrumUIManager *spectrum = SpectrumUIManager::GetInstance();
    if (!spectrum->GetFVBOnFlag())
        return tr("off");
    if (spectrum->IsFVBModeAll())
        return tr("all rows");
    const QString band = tr("rows %1 to %2").arg(spectrum->GetTop()).arg(spectrum->GetBottom());
    return spectrum->IsFVBModeAuto() ? tr("automatic, %1").arg(band) : band;
}
