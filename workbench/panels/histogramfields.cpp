// SPDX-License-Identifier: GPL-3.0-or-later
#include "histogramfields.h"

#include "histogramcurve.h"
#include "livehistogram.h"
#include "statisticsnotes.h"

HistogramFields::HistogramFields(LiveHistogram *histogram, QObject *parent)
    : FieldSource(HistogramName, parent)
    , m_histogram(histogram)
{
    connect(histogram, &LiveHistogram::signalChanged, this, &FieldSource::signalChanged);
}

PanelFields HistogramFields::Fields() const
{
    const SampleStatistics &statistics = m_histogram->Statistics();
    HistogramCurve curve;
    curve.counts = statistics.histogram;
    curve.to = (1 << statistics.bitDepth) - 0.5;
    const PanelField histogram =
        PanelField::Make(PanelField::Kind::Histogram, "samples", tr("Histogram"), QVariant::fromValue(curve));
    return PanelFields{ histogram } + StatisticsNotes::Of(statistics, QString());
}

void HistogramFields::Set(const QString &, const QVariant &) {}

/// The page that was in front at the last start is there before anyone could switch to it.
void HistogramFields::SetWatched(bool watched) { m_histogram->SetHistogramStatisticsState(watched); }
