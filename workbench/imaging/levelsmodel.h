// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "levelssetting.h"
#include "palette.h"

#include <QMap>
#include <QObject>

#include <mutex>

class QSettings;

/// How samples are shown: levels for each kind of samples, the palette, and whether saturated samples are marked. A change is
/// stored at once. The GUI thread sets; any thread may ask.
class LevelsModel : public QObject
{
    Q_OBJECT

public:
    /// `settings` is borrowed and outlives this object; with null nothing is stored.
    explicit LevelsModel(QSettings *settings = nullptr, QObject *parent = nullptr);

    LevelsSetting Setting(const SampleKind &kind) const;
    void SetSetting(const SampleKind &kind, const LevelsSetting &setting);
    bool MarksSaturated() const;
    /// Of all mono pictures.
    Palette GetPalette() const;
    void SetPalette(const Palette &palette);

public slots:
    void slotSetMarksSaturated(bool marks);

signals:
    /// A setting, the palette or the mark changed.
    void signalChanged();
    /// Comes before signalChanged().
    void signalPaletteChanged();

private:
    void Load(const SampleKind &kind);
    void Store(const SampleKind &kind, const LevelsSetting &setting);

    QSettings *m_settings;
    mutable std::mutex m_mutex;
    QMap<QString, LevelsSetting> m_byKind; ///< by the kind's name; every kind that there is
    bool m_marksSaturated = false;
    Palette m_palette;
};
