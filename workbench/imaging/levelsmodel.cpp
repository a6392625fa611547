// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsmodel.h"

#include "displaylevels.h"

#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace {

const char MarkKey[] = "levels/markSaturated";

/// What a mode is called in the settings file, in the order of LevelsMode.
const QStringList &ModeNames()
{
    static const QStringList names = { "automatic", "minimumMaximum", "manual", "fullRange" };
    return names;
}

QString Group(int bitDepth) { return QString("levels/%1bit/").arg(bitDepth); }

size_t Index(int bitDepth)
{
    return size_t(std::clamp(bitDepth, LevelsModel::LeastDepth, LevelsModel::MostDepth) - LevelsModel::LeastDepth);
}

/// Levels that fit the depth, whatever the file says.
LevelsSetting Guarded(LevelsSetting setting, int bitDepth)
{
    const DisplayLevels guarded = DisplayLevels{ setting.left, setting.right, setting.gamma }.Guarded(bitDepth);
    setting.left = guarded.left;
    setting.right = guarded.right;
    setting.gamma = guarded.gamma;
    return setting;
}

} // namespace

LevelsModel::LevelsModel(QSettings *settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
    for (int depth = LeastDepth; depth <= MostDepth; ++depth)
        m_byDepth[Index(depth)] = LevelsSetting::Default(depth);
    if (m_settings)
        Load();
}

LevelsSetting LevelsModel::Setting(int bitDepth) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_byDepth[Index(bitDepth)];
}

void LevelsModel::SetSetting(int bitDepth, const LevelsSetting &setting)
{
    const LevelsSetting guarded = Guarded(setting, bitDepth);
    if (Setting(bitDepth) == guarded)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_byDepth[Index(bitDepth)] = guarded;
    }
    if (m_settings)
        Store(bitDepth, guarded);
    emit signalChanged();
}

bool LevelsModel::MarksSaturated() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_marksSaturated;
}

void LevelsModel::slotSetMarksSaturated(bool marks)
{
    if (MarksSaturated() == marks)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_marksSaturated = marks;
    }
    if (m_settings)
        m_settings->setValue(MarkKey, marks);
    emit signalChanged();
}

void LevelsModel::Load()
{
    m_marksSaturated = m_settings->value(MarkKey, m_marksSaturated).toBool();
    for (int depth = LeastDepth; depth <= MostDepth; ++depth) {
        LevelsSetting setting = m_byDepth[Index(depth)];
        const QString group = Group(depth);
        const int mode = ModeNames().indexOf(m_settings->value(group + "mode").toString());
        if (mode >= 0)
            setting.mode = LevelsMode(mode);
        setting.left = m_settings->value(group + "left", setting.left).toInt();
        setting.right = m_settings->value(group + "right", setting.right).toInt();
        setting.gamma = m_settings->value(group + "gamma", setting.gamma).toDouble();
        m_byDepth[Index(depth)] = Guarded(setting, depth);
    }
}

void LevelsModel::Store(int bitDepth, const LevelsSetting &setting)
{
    const QString group = Group(bitDepth);
    m_settings->setValue(group + "mode", ModeNames().at(int(setting.mode)));
    m_settings->setValue(group + "left", setting.left);
    m_settings->setValue(group + "right", setting.right);
    m_settings->setValue(group + "gamma", setting.gamma);
}
