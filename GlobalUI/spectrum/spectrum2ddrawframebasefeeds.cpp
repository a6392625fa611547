// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrum2ddrawframebase.h"

#include "algspectrometer.h"
#include "framemanager.h"
#include "globalmanager.h"
#include "imagecore.h"
#include "imagemanager.h"
#include "payloadlocker.h"
#include "plotranges.h"
#include "spectrumcurvepayload.h"
#include "spectrumlinepayload.h"
#include "spectrumuimanager.h"

#include <QScrollBar>

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int narrowestPage = 301; // pixels; a narrower one has no room for a curve

bool IsShown()
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    return settings->IsDisplayMode2D() || settings->IsDisplayMode2DPeak();
}

/// What is wanted, or what the producer says that it has, when it says so.
int AvailableCount(int wanted, int size) { return size > 0 ? std::min(wanted, size) : wanted; }

/// Takes the line that the producer has filled; it stays unwritten until the next exchange.
const unsigned int *TakeLine(SpectrumLinePayload *payload)
{
    const PayloadLocker locker(payload->lock);
    std::swap(payload->fill, payload->show);
    return payload->show;
}

} // namespace

template <typename Sample>
void Spectrum2DDrawFrameBase::DrawCurve(const Sample *data, int count, double factor)
{
    if (width() < narrowestPage)
        return;
    if (!data || count <= 0) {
        ClearCurve();
        return;
    }
    m_samples.Assign(data, count, factor);
    m_plot->graph(0)->setData(m_samples.X(), m_samples.Values());
    FindPeaks(data, count);
    UpdateTracer();
    SetRangesOfCurve();
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void Spectrum2DDrawFrameBase::SlotUpdateCurve(void *param)
{
    auto *payload = static_cast<SpectrumCurvePayload *>(param);
    if (!payload || !IsShown())
        return;
    const bool horizontal = SpectrumUIManager::GetInstance()->IsDirectionHorinzontal();
    const FrameManager *frame = FrameManager::GetInstance();
    const int *data = nullptr;
    int count = 0;
    {
        const PayloadLocker locker(payload->lock);
        std::swap(payload->horizontalFill, payload->horizontalShow);
        std::swap(payload->verticalFill, payload->verticalShow);
        data = horizontal ? payload->horizontalShow : payload->verticalShow;
        count = horizontal ? AvailableCount(frame->GetFrameWidth(), payload->horizontalSize)
                           : AvailableCount(frame->GetFrameHeight(), payload->verticalSize);
    }
    DrawCurve(data, count);
}

void Spectrum2DDrawFrameBase::SlotUpdateFVB(void *param)
{
    if (!param || !IsShown())
        return;
    // A spectrum along the columns has a value for each row.
    const FrameManager *frame = FrameManager::GetInstance();
    const bool horizontal = SpectrumUIManager::GetInstance()->IsDirectionHorinzontal();
    DrawCurve(TakeLine(static_cast<SpectrumLinePayload *>(param)),
              horizontal ? frame->GetFrameWidth() : frame->GetFrameHeight());
}

void Spectrum2DDrawFrameBase::SlotUpdateMultiTrack(void *param)
{
    if (!param || !IsShown())
        return;
    const unsigned int *tracks = TakeLine(static_cast<SpectrumLinePayload *>(param));
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    const int trackCount = settings->GetMultiTrackList().size();
    const int frameWidth = FrameManager::GetInstance()->GetFrameWidth();
    if (!tracks)
        DrawCurve(tracks, 0);
    else if (!settings->IsDirectionHorinzontal())
        DrawColumn(tracks, trackCount);
    else // the list may have become shorter than the scroll bar
        DrawCurve(
            tracks + size_t(frameWidth) * size_t(qBound(0, m_trackScroll->value(), qMax(0, trackCount - 1))),
            frameWidth);
}

void Spectrum2DDrawFrameBase::DrawColumn(const unsigned int *tracks, int trackCount)
{
    const int frameWidth = FrameManager::GetInstance()->GetFrameWidth();
    const int count = frameWidth > 0 ? qMin(trackCount, int(m_trackColumn.size())) : 0;
    const int column = qBound(0, m_trackScroll->value(), frameWidth - 1); // the scroll bar goes one further
    m_trackColumn.fill(0);
    for (int track = 0; track < count; ++track)
        m_trackColumn[size_t(track)] = tracks[size_t(frameWidth) * size_t(track) + size_t(column)];
    DrawCurve(m_trackColumn.data(), count);
}

void Spectrum2DDrawFrameBase::SlotUpdateImageHorizontalCurve(int *data, int size, int, int count)
{
    if (SpectrumUIManager::GetInstance()->IsDirectionHorinzontal())
        DrawImageCurve(data, size, count);
}

void Spectrum2DDrawFrameBase::SlotUpdateImageVerticalCurve(int *data, int size, int, int count)
{
    if (!SpectrumUIManager::GetInstance()->IsDirectionHorinzontal())
        DrawImageCurve(data, size, count);
}

/// Of the image that tells them, which need not be the active one.
double Spectrum2DDrawFrameBase::FactorOfImageCurves() const
{
    const auto *image = qobject_cast<const ImageManager *>(sender());
    if (!image)
        image = GlobalManager::GetInstance()->GetActiveImageManager();
    const ImageCore *core = image ? image->GetImageCore() : nullptr;
    const double factor = core ? core->GetCurveFactor() : 1.0;
    return factor > 0.0 && std::isfinite(factor) ? factor : 1.0;
}

void Spectrum2DDrawFrameBase::DrawImageCurve(const int *data, int size, int count)
{
    DrawCurve(data, qMin(count, size), FactorOfImageCurves());
    if (m_staticMode)
        AutoRange();
}

void Spectrum2DDrawFrameBase::ClearCurve()
{
    m_samples.Clear();
    m_peaks.clear();
    m_peakMarkers->Remove();
    m_tracerLabel->Remove();
    m_plot->graph(0)->data()->clear();
    m_plot->replot();
}

void Spectrum2DDrawFrameBase::FindPeaks(const unsigned int *data, int count)
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    m_peaks.clear();
    if (!settings->IsDisplayMode2DPeak() && !m_staticMode)
        return;
    AlgSpectrometer::GetInstance()->Findcurvepeak(const_cast<unsigned int *>(data), count,
                                                  settings->GetPeakNumber(), m_peaks, 15, 10.0, 0);
    UpdatePeakMarkers();
}

/// The algorithm takes counts: what goes below zero is asked for above its lowest sample.
void Spectrum2DDrawFrameBase::FindPeaks(const int *data, int count)
{
    const int lowest = *std::min_element(data, data + count);
    if (lowest >= 0) {
        FindPeaks(reinterpret_cast<const unsigned int *>(data), count);
        return;
    }
    std::vector<unsigned int> raised(size_t(count), 0);
    std::transform(data, data + count, raised.begin(),
                   [lowest](int sample) { return static_cast<unsigned int>(qint64(sample) - lowest); });
    FindPeaks(raised.data(), count);
}

void Spectrum2DDrawFrameBase::UpdatePeakMarkers()
{
    if (SpectrumUIManager::GetInstance()->IsDisplayMode2DPeak())
        m_peakMarkers->Show(m_peaks);
    else
        m_peakMarkers->Remove();
}

void Spectrum2DDrawFrameBase::SetRangesOfCurve()
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    if (!m_resetFlag && !settings->GetZoomAutoFlag())
        return;
    m_plot->xAxis->setRange(m_samples.X().first(), m_samples.X().last());
    m_plot->yAxis->setRange(WithBlankAbove(m_samples.Minimum(), m_samples.Maximum(), settings->GetBlankRatio()));
    m_plot->graph(0)->rescaleAxes(true);
    m_autoRange = m_plot->yAxis->range();
    m_autoRangeOfCurve = QCPRange(m_autoRange.lower, m_samples.Maximum());
    m_resetFlag = false;
}
