// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "levelssetting.h"

#include <QObject>

#include <array>
#include <mutex>

class QSettings;

/// How samples are shown: levels for each bit depth, and whether saturated samples are marked. A change is stored at
/// once. The GUI thread sets; any thread may ask.
class LevelsModel : public QObject
{
    Q_OBJECT

public:
    static constexpr int LeastDepth = 8;
    static constexpr int MostDepth = 16;

    /// `settings` is borrowed and outlives this object; with null nothing is stored.
    explicit LevelsModel(QSettings *settings = nullptr, QObject *parent = nullptr);

    /// `bitDepth` is 8 to 16 here and below.
    LevelsSetting Setting(int bitDepth) const;
    void SetSetting(int bitDepth, const LevelsSetting &setting);
    bool MarksSaturated() const;

public slots:
    void slotSetMarksSaturated(bool marks);

signals:
    /// A setting or the mark changed.
    void signalChanged();

private:
    void Load();
    void Store(int bitDepth, const LevelsSetting &setting);

    QSettings *m_settings;
    mutable std::mutex m_mutex;
    std::array<LevelsSetting, MostDepth - LeastDepth + 1> m_byDepth;
    bool m_marksSaturated = false;
};
