// SPDX-License-Identifier: GPL-3.0-or-later
#include "livelevels.h"

#include "levelsmodel.h"
#include "sampleview.h"

namespace {

constexpr int ReportPeriodMs = 100;

} // namespace

LiveLevels::LiveLevels(LevelsModel *model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    qRegisterMetaType<LevelsReport>();
    connect(m_model, SIGNAL(signalChanged()), this, SIGNAL(signalPictureWanted()));
}

DisplayLevels LiveLevels::Next(const SampleView &samples)
{
    const LevelsSetting setting = m_model->Setting(samples.bitDepth);
    if (setting != m_setting) {
        m_setting = setting;
        m_follower.Reset();
        m_reportsNext = true;
    }
    const DisplayLevels levels = m_follower.Next(samples, setting);
    const bool isTime = !m_sinceReport.isValid() || m_sinceReport.elapsed() >= ReportPeriodMs;
    if (m_isWatched && (m_reportsNext.exchange(false) || isTime)) {
        m_sinceReport.start();
        emit signalReport(LevelsReport::Of(samples, levels));
    }
    return levels;
}

bool LiveLevels::MarksSaturated() const
{
    return m_model->MarksSaturated();
}

Palette LiveLevels::GetPalette() const
{
    return m_model->GetPalette();
}

void LiveLevels::SetWatched(const QObject *watcher, bool watched)
{
    if (watched)
        m_watchers.insert(watcher);
    else
        m_watchers.remove(watcher);
    m_isWatched = !m_watchers.isEmpty();
    if (!watched)
        return;
    m_reportsNext = true;
    emit signalPictureWanted();
}
