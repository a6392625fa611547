// SPDX-License-Identifier: GPL-3.0-or-later
#include "usearea.h"

#include <QSettings>

namespace {
constexpr char TypeKey[] = "useArea/type";
constexpr char AxisKey[] = "useArea/axis";
constexpr char CurveKey[] = "useArea/curve";
constexpr char ColorCardKey[] = "useArea/colorCard";
constexpr int PictureUseArea = 0;
} // namespace

UseArea::UseArea(QSettings *settings, QObject *parent)
    : UseAreaManager(parent)
    , m_settings(settings)
{
}

int UseArea::GetUseAreaType() const
{
    return m_settings->value(TypeKey, PictureUseArea).toInt();
}

bool UseArea::IsSpectrumHidden() const
{
    return Stored("useArea/spectrumHidden", false);
}

bool UseArea::IsAxisVisible() const
{
    return Stored(AxisKey, true);
}

bool UseArea::IsCurveVisible() const
{
    return Stored(CurveKey, true);
}

bool UseArea::IsColorCardVisible() const
{
    return Stored(ColorCardKey, true);
}

bool UseArea::IsToolBarVisible() const
{
    return Stored("useArea/toolBar", true);
}

bool UseArea::IsInfoBarVisible() const
{
    return Stored("useArea/infoBar", true);
}

void UseArea::slotSetSpectrum(bool spectrum)
{
    const int type = spectrum ? SpectrumUseArea : PictureUseArea;
    if (type == GetUseAreaType())
        return;
    m_settings->setValue(TypeKey, type);
    emit signalUpdateUseArea();
}

void UseArea::slotSetAxisVisible(bool visible)
{
    SetAid(AxisKey, visible);
}

void UseArea::slotSetCurveVisible(bool visible)
{
    SetAid(CurveKey, visible);
}

void UseArea::slotSetColorCardVisible(bool visible)
{
    SetAid(ColorCardKey, visible);
}

void UseArea::SetAid(const char *key, bool visible)
{
    if (Stored(key, true) == visible)
        return;
    m_settings->setValue(key, visible);
    emit signalSpectrumUIUpdate();
}

bool UseArea::Stored(const char *key, bool standard) const
{
    return m_settings->value(key, standard).toBool();
}
