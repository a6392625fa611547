// SPDX-License-Identifier: GPL-3.0-or-later
// Which rows are binned.
#include "spectrumsettings.h"

int SpectrumSettings::GetFVBOnFlag() const { return m_recipe.isBinning ? 1 : 0; }

/// The plot shows either a binned spectrum or tracks.
void SpectrumSettings::SetFVBOnFlag(int on)
{
    if (m_recipe.isBinning == (on != 0))
        return;
    m_recipe.isBinning = on != 0;
    if (m_recipe.isBinning)
        SetMultiTrackOnFlag(false);
    KeepBandInPicture();
    emit SignalFVBOnFlagChanged(m_recipe.isBinning);
    if (!m_recipe.isBinning)
        emit SignalFVBClose();
    emit signalRecipeChanged();
}

bool SpectrumSettings::IsFVBModeAll() const { return m_recipe.rows == BinnedRows::All; }

bool SpectrumSettings::IsFVBModeAuto() const { return m_recipe.rows == BinnedRows::Auto; }

bool SpectrumSettings::GetManualFlag() const { return m_recipe.rows == BinnedRows::Manual; }

void SpectrumSettings::SetBinnedRows(BinnedRows rows)
{
    if (m_recipe.rows == rows)
        return;
    const bool wasManual = GetManualFlag();
    m_recipe.rows = rows;
    if (rows == BinnedRows::Manual && m_recipe.bottom <= m_recipe.top)
        m_recipe.bottom = qMax(0, LinesAcross() - 1); // the whole picture, to begin with
    KeepBandInPicture();
    if (rows == BinnedRows::All)
        emit SignalFVBModeAll();
    if (wasManual != GetManualFlag())
        emit SignalFVBManualFlagChanged(GetManualFlag());
    emit signalRecipeChanged();
}

int SpectrumSettings::GetTop() const { return m_recipe.top; }

void SpectrumSettings::SetTop(int row)
{
    if (m_recipe.top == row)
        return;
    m_recipe.top = row;
    AnnounceBand();
    emit signalRecipeChanged();
}

int SpectrumSettings::GetBottom() const { return m_recipe.bottom; }

void SpectrumSettings::SetBottom(int row)
{
    if (m_recipe.bottom == row)
        return;
    m_recipe.bottom = row;
    AnnounceBand();
    emit signalRecipeChanged();
}

/// Its mark on the picture follows.
void SpectrumSettings::AnnounceBand()
{
    emit SignalTopBottomChanged(QPointF(0, m_recipe.top), QPointF(0, m_recipe.bottom));
}

int SpectrumSettings::LinesAcross() const { return m_recipe.isHorizontal ? m_frameSize.height() : m_frameSize.width(); }

/// Of rows that are not there nothing can be made.
bool SpectrumSettings::KeepBandInPicture()
{
    const int size = LinesAcross();
    if (!m_recipe.isBinning || !GetManualFlag() || size <= 0 || qMax(m_recipe.top, m_recipe.bottom) < size)
        return false;
    const bool isOutside = qMin(m_recipe.top, m_recipe.bottom) >= size;
    m_recipe.top = isOutside ? 0 : qMin(m_recipe.top, m_recipe.bottom);
    m_recipe.bottom = size - 1;
    AnnounceBand();
    emit signalMessage(isOutside ? tr("The band set by hand lay outside of the picture, which has %1 lines now: all of them are binned. "
                                      "Set the band again.").arg(size)
                                 : tr("The band set by hand went beyond the picture, which has %1 lines now, and was cut.").arg(size));
    return true;
}
