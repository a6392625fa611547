// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelsources.h"

#include "analysisfields.h"
#include "calibrationtable.h"
#include "emptytable.h"
#include "globalmanager.h"
#include "histogramfields.h"
#include "imagemanager.h"
#include "notesource.h"
#include "picturenotes.h"
#include "previewmanager.h"
#include "spectrumfields.h"

#include <QLocale>

PanelSources::PanelSources(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
{
    new HistogramFields(parts.histogram, this);
    new AnalysisFields(parts.histogram, this);
    new NoteSource(
        FieldSource::ToolName,
        [] {
            return PanelFields{ PanelField::MakeNote(tr("Tool"), "tool", tr("Name"),
                                                     tr("No tool is chosen.")) };
        },
        this);
    AddReport();
    AddSpectrum();
    AddTables();
}

void PanelSources::AddSpectrum()
{
    auto *fields = new SpectrumFields(m_parts.spectrum, m_parts.spectra, m_parts.tracks, this);
    fields->SetOpenedSaturation(m_parts.isOpenedSaturated);
    fields->SetPeaks(m_parts.peaks);
    const ImageManager *picture = GlobalManager::GetInstance()->GetMainImageManager();
    connect(picture, &ImageManager::sglUpdateHorizontalCurve, fields, &SpectrumFields::slotSpectrumShown);
    connect(picture, &ImageManager::sglUpdateVerticalCurve, fields, &SpectrumFields::slotSpectrumShown);
}

void PanelSources::AddReport()
{
    auto *report = new NoteSource(
        FieldSource::ReportName,
        [] {
            return PictureNotes::Of(tr("Picture"))
                   + PanelFields{ PanelField::MakeNote(tr("Measurements"), "measurements", tr("Number"),
                                                       QLocale().toString(0)) };
        },
        this);
    connect(PreviewManager::GetInstance(), &PreviewManager::signalImageSizeChanged, report,
            &FieldSource::signalChanged);
    connect(GlobalManager::GetInstance()->GetMainImageManager(), &ImageManager::signalUpdateFileName, report,
            [report] { emit report->signalChanged(); });
}

void PanelSources::AddTables()
{
    new EmptyTable(
        FieldSource::ClassCountName, { tr("Class"), tr("Number"), tr("Share") },
        [] { return tr("Nothing was counted by class."); }, this);
    auto *calibration = new CalibrationTable(m_parts.calibration, this);
    connect(calibration, &CalibrationTable::signalMessage, this, &PanelSources::signalMessage);
    connect(calibration, &CalibrationTable::signalNotSaved, this, &PanelSources::signalNotSaved);
}
