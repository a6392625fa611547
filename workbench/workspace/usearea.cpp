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
    , m_type(settings->value(TypeKey, PictureUseArea).toInt())
    , m_isSpectrumHidden(Stored("useArea/spectrumHidden", false))
    , m_isAxisVisible(Stored(AxisKey, true))
    , m_isCurveVisible(Stored(CurveKey, true))
    , m_isColorCardVisible(Stored(ColorCardKey, true))
    , m_isToolBarVisible(Stored("useArea/toolBar", true))
    , m_isInfoBarVisible(Stored("useArea/infoBar", true))
{
}

void UseArea::slotSetSpectrum(bool spectrum)
{
    const int type = spectrum ? SpectrumUseArea : PictureUseArea;
    if (type == m_type)
        return;
    m_type = type;
    m_settings->setValue(TypeKey, type);
    emit signalUpdateUseArea();
}

void UseArea::slotSetAxisVisible(bool visible) { SetAid(&m_isAxisVisible, AxisKey, visible); }

void UseArea::slotSetCurveVisible(bool visible) { SetAid(&m_isCurveVisible, CurveKey, visible); }

void UseArea::slotSetColorCardVisible(bool visible) { SetAid(&m_isColorCardVisible, ColorCardKey, visible); }

void UseArea::SetAid(bool *aid, const char *key, bool visible)
{
    if (*aid == visible)
        return;
    *aid = visible;
    m_settings->setValue(key, visible);
    emit signalSpectrumUIUpdate();
}

bool UseArea::Stored(const char *key, bool standard) const
{
    return m_settings->value(key, standard).toBool();
}
