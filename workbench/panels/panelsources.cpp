// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelsources.h"

#include "analysisfields.h"
#include "emptytable.h"
#include "globalmanager.h"
#include "histogramfields.h"
#include "imagemanager.h"
#include "notesource.h"
#include "picturenotes.h"
#include "previewmanager.h"
#include "spectrumnotes.h"
#include "spectrumuimanager.h"

#include <QLocale>

PanelSources::PanelSources(LiveHistogram *histogram, QObject *parent)
    : QObject(parent)
{
    new HistogramFields(histogram, this);
    new AnalysisFields(histogram, this);
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

void PanelSources::AddSpectrum()
{
    auto *spectrum = new NoteSource(
        FieldSource::SpectrumName, [] { return SpectrumNotes::Of(); }, this);
    const SpectrumUIManager *manager = SpectrumUIManager::GetInstance();
    const auto announce = [spectrum] { emit spectrum->signalChanged(); };
    connect(manager, &SpectrumUIManager::signalDisplayModeChange, spectrum, announce);
    connect(manager, &SpectrumUIManager::SignalConversationFormulaChanged, spectrum, announce);
    connect(manager, &SpectrumUIManager::SignalMultiTrackOnFlagChanged, spectrum, announce);
    connect(manager, &SpectrumUIManager::SignalFVBOnFlagChanged, spectrum, announce);
    connect(manager, &SpectrumUIManager::SignalTopBottomChanged, spectrum, announce);
}

void PanelSources::AddTables()
{
    new EmptyTable(
        FieldSource::ClassCountName, { tr("Class"), tr("Number"), tr("Share") },
        [] { return tr("Nothing was counted by class."); }, this);
    new EmptyTable(
        FieldSource::CalibrationName, { tr("Position in pixels"), tr("Calibrated position"), tr("Residual") },
        [] { return SpectrumNotes::CalibrationText(); }, this);
}
