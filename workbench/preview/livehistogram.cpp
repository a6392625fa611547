// SPDX-License-Identifier: GPL-3.0-or-later
#include "livehistogram.h"

#include "livepreview.h"
#include "picturemaker.h"
#include "sampleview.h"

namespace {
constexpr int PeriodMs = 100;
}

LiveHistogram::LiveHistogram(LivePreview *preview, QObject *parent)
    : HistogramCalculateManager(parent)
    , m_preview(preview)
{
    m_pool.setMaxThreadCount(1);
    connect(preview, &LivePreview::signalPictureDelivered, this, &LiveHistogram::slotPictureDelivered);
}

LiveHistogram::~LiveHistogram() { m_pool.waitForDone(); }

void LiveHistogram::SetWatched(Watcher watcher, bool watched)
{
    m_watchers.setFlag(watcher, watched);
    slotPictureDelivered(); // a standing picture is not delivered again
}

void LiveHistogram::SetHistogramStatisticsState(bool enabled) { SetWatched(HistogramPage, enabled); }

void LiveHistogram::Forget()
{
    ++m_picture;
    m_statistics = SampleStatistics();
    emit signalChanged();
}

void LiveHistogram::slotPictureDelivered()
{
    const CameraFrame frame = m_preview->ShownFrame();
    const bool isTime =
        !m_sinceLast.isValid() || m_sinceLast.elapsed() >= PeriodMs || m_statistics.count == 0;
    if (!m_watchers || m_isComputing || !isTime || frame.IsNull())
        return;
    m_isComputing = true;
    m_sinceLast.start();
    m_pool.start([this, frame, picture = ++m_picture] {
        const SampleStatistics statistics = SampleStatistics::Of(PictureMaker::ViewOf(frame));
        QMetaObject::invokeMethod(
            this, [=] { Take(statistics, picture); }, Qt::QueuedConnection);
    });
}

void LiveHistogram::Take(const SampleStatistics &statistics, quint64 picture)
{
    m_isComputing = false;
    if (picture != m_picture)
        return;
    m_statistics = statistics;
    emit signalChanged();
}
