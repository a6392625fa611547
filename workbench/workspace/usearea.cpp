// SPDX-License-Identifier: GPL-3.0-or-later
#include "usearea.h"

#include <QSettings>

UseArea::UseArea(QSettings *settings, QObject *parent)
    : UseAreaManager(parent)
    , m_settings(settings)
{
}

int UseArea::GetUseAreaType() const
{
    return m_settings->value("useArea/type", 0).toInt();
}

bool UseArea::IsSpectrumHidden() const
{
    return Stored("useArea/spectrumHidden", false);
}

bool UseArea::IsAxisVisible() const
{
    return Stored("useArea/axis", true);
}

bool UseArea::IsCurveVisible() const
{
    return Stored("useArea/curve", true);
}

bool UseArea::IsColorCardVisible() const
{
    return Stored("useArea/colorCard", true);
}

bool UseArea::IsToolBarVisible() const
{
    return Stored("useArea/toolBar", true);
}

bool UseArea::IsInfoBarVisible() const
{
    return Stored("useArea/infoBar", true);
}

bool UseArea::Stored(const char *key, bool standard) const
{
    return m_settings->value(key, standard).toBool();
}
