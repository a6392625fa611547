// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "histogramcalculatemanager.h"
#include "samplestatistics.h"

#include <QElapsedTimer>
#include <QFlags>
#include <QThreadPool>

class LivePreview;

/// Statistics of the raw samples of the live picture, while somebody watches: some ten times a second, worked out in a
/// thread of its own. All calls in the GUI thread.
class LiveHistogram : public HistogramCalculateManager
{
    Q_OBJECT

public:
    enum Watcher
    {
        HistogramPage = 1,
        AnalysisPanel = 2
    };

    /// `preview` is borrowed and outlives this object.
    explicit LiveHistogram(LivePreview *preview, QObject *parent = nullptr);
    ~LiveHistogram() override;

    /// The newest statistics; none before the first and without a live picture.
    const SampleStatistics &Statistics() const { return m_statistics; }
    void SetWatched(Watcher watcher, bool watched);
    /// Of the histogram page.
    void SetHistogramStatisticsState(bool enabled) override;
    /// Forgets the picture: its camera was closed.
    void Forget();

signals:
    void signalChanged();

private slots:
    void slotPictureDelivered();

private:
    void Take(const SampleStatistics &statistics, quint64 picture);

    LivePreview *m_preview;
    QThreadPool m_pool;
    QFlags<Watcher> m_watchers;
    SampleStatistics m_statistics;
    QElapsedTimer m_sinceLast;
    quint64 m_picture = 0; ///< counts what is computed, and what is forgotten
    bool m_isComputing = false;
};
