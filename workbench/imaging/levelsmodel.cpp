// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsmodel.h"

#include <QSettings>
#include <QStringList>
#include <QVector>

namespace {

const char MarkKey[] = "levels/markSaturated";
const char PaletteKey[] = "levels/palette";

/// What a mode is called in the settings file, in the order of LevelsMode.
const QStringList &ModeNames()
{
    static const QStringList names = { "automatic", "minimumMaximum", "manual", "fullRange" };
    return names;
}

QString Group(const SampleKind &kind) { return QString("levels/%1/").arg(kind.Name()); }

/// Every kind of samples that a camera or a file can have.
QVector<SampleKind> AllKinds()
{
    QVector<SampleKind> kinds;
    for (int bits = 8; bits <= 16; ++bits)
        kinds << bits;
    return kinds << 32 << SampleKind(SampleKind::Signed, 8) << SampleKind(SampleKind::Signed, 16)
                 << SampleKind(SampleKind::Signed, 32) << SampleKind(SampleKind::Floating, 32)
                 << SampleKind(SampleKind::Floating, 64);
}

} // namespace

LevelsModel::LevelsModel(QSettings *settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
    for (const SampleKind &kind : AllKinds()) {
        m_byKind[kind.Name()] = LevelsSetting::Default(kind);
        if (m_settings)
            Load(kind);
    }
    if (m_settings) {
        m_marksSaturated = m_settings->value(MarkKey, m_marksSaturated).toBool();
        m_palette = Palette(m_settings->value(PaletteKey).toString());
    }
}

LevelsSetting LevelsModel::Setting(const SampleKind &kind) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_byKind.value(kind.Name());
}

void LevelsModel::SetSetting(const SampleKind &kind, const LevelsSetting &setting)
{
    const LevelsSetting guarded = setting.Guarded(kind);
    if (Setting(kind) == guarded)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_byKind[kind.Name()] = guarded;
    }
    if (m_settings)
        Store(kind, guarded);
    emit signalChanged();
}

bool LevelsModel::MarksSaturated() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_marksSaturated;
}

Palette LevelsModel::GetPalette() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_palette;
}

void LevelsModel::SetPalette(const Palette &palette)
{
    if (GetPalette() == palette)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_palette = palette;
    }
    if (m_settings)
        m_settings->setValue(PaletteKey, palette.Name());
    emit signalPaletteChanged();
    emit signalChanged();
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

void LevelsModel::Load(const SampleKind &kind)
{
    LevelsSetting &setting = m_byKind[kind.Name()];
    const QString group = Group(kind);
    const int mode = ModeNames().indexOf(m_settings->value(group + "mode").toString());
    if (mode >= 0)
        setting.mode = LevelsMode(mode);
    setting.left = m_settings->value(group + "left", setting.left).toDouble();
    setting.right = m_settings->value(group + "right", setting.right).toDouble();
    setting.gamma = m_settings->value(group + "gamma", setting.gamma).toDouble();
    setting = setting.Guarded(kind);
}

void LevelsModel::Store(const SampleKind &kind, const LevelsSetting &setting)
{
    const QString group = Group(kind);
    m_settings->setValue(group + "mode", ModeNames().at(int(setting.mode)));
    m_settings->setValue(group + "left", setting.left);
    m_settings->setValue(group + "right", setting.right);
    m_settings->setValue(group + "gamma", setting.gamma);
}
