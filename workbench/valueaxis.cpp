// SPDX-License-Identifier: GPL-3.0-or-later
#include "valueaxis.h"

#include "spectrumpipeline.h"

#include <qcustomplot.h>

ValueAxis::ValueAxis(const SpectrumPipeline *spectra, QWidget *page, QObject *parent)
    : QObject(parent)
    , m_spectra(spectra)
    , m_page(page)
{
    if (const auto *plot = page->findChild<QCustomPlot *>())
        m_counts = plot->yAxis->label();
    connect(spectra, &SpectrumPipeline::signalSpectrumShown, this, &ValueAxis::slotUpdate);
}

QString ValueAxis::Label() const
{
    const SpectrumProduct &shown = m_spectra->Shown();
    switch (shown.corrected.Count() > 0 ? shown.corrections.Quantity() : SpectrumQuantity::Counts) {
    case SpectrumQuantity::Transmission: return tr("Transmission [1/100 %]");
    case SpectrumQuantity::Absorbance: return tr("Absorbance [1/10000]");
    case SpectrumQuantity::Counts: break;
    }
    return m_counts;
}

void ValueAxis::slotUpdate()
{
    const QString label = Label();
    for (QCustomPlot *plot : m_page->findChildren<QCustomPlot *>()) {
        if (plot->yAxis->label() == label)
            continue;
        plot->yAxis->setLabel(label);
        plot->replot(QCustomPlot::rpQueuedReplot);
    }
}
