// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysisfields.h"

#include "livehistogram.h"
#include "picturenotes.h"
#include "statisticsnotes.h"

#include <QLocale>

AnalysisFields::AnalysisFields(LiveHistogram *histogram, QObject *parent)
    : FieldSource(AnalysisName, parent)
    , m_histogram(histogram)
{
    connect(histogram, &LiveHistogram::signalChanged, this, &FieldSource::signalChanged);
}

PanelFields AnalysisFields::Fields() const
{
    PanelFields fields = PictureNotes::Of(tr("Picture"));
    if (PictureNotes::IsLive())
        fields += StatisticsNotes::Of(m_histogram->Statistics(), tr("Samples"));
    fields << PanelField::MakeNote(tr("Measurements"), "measurements", tr("Number"), QLocale().toString(0));
    return fields;
}

void AnalysisFields::Set(const QString &, const QVariant &) {}

void AnalysisFields::SetWatched(bool watched)
{
    m_histogram->SetWatched(LiveHistogram::AnalysisPanel, watched);
}
