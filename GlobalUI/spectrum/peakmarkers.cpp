// SPDX-License-Identifier: GPL-3.0-or-later
#include "peakmarkers.h"

#include "curvesamples.h"
#include "plotfont.h"
#include "spectrumuimanager.h"

#include <qcustomplot.h>

PeakMarkers::PeakMarkers(QCustomPlot *plot)
    : m_plot(plot)
{
}

void PeakMarkers::Remove()
{
    for (QCPAbstractItem *item : qAsConst(m_items))
        m_plot->removeItem(item);
    m_items.clear();
}

void PeakMarkers::Show(const std::vector<int> &peaks)
{
    Remove();
    for (int peak : peaks) {
        if (peak >= 0 && peak < m_plot->graph(0)->data()->size())
            Add(CurveSamples::PixelToX(peak));
    }
}

void PeakMarkers::Add(double x)
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    auto *tracer = new QCPItemTracer(m_plot);
    tracer->setGraph(m_plot->graph(0));
    tracer->setGraphKey(x);
    tracer->setInterpolating(true);
    tracer->setStyle(QCPItemTracer::tsCircle);
    tracer->setPen(settings->GetPeakPen());
    tracer->setBrush(QBrush(settings->GetPeakColor(), Qt::SolidPattern));
    tracer->setSize(settings->GetPeakSize());
    tracer->updatePosition();

    auto *text = new QCPItemText(m_plot);
    text->position->setType(QCPItemPosition::ptPlotCoords);
    text->position->setCoords(x, tracer->position->value());
    text->setPositionAlignment(Qt::AlignRight | Qt::AlignBottom);
    text->setText(QString::number(x, 'g', 6));
    text->setTextAlignment(Qt::AlignCenter);
    text->setPadding(QMargins(0, 0, 5, 0));
    text->setColor(Qt::black);
    text->setFont(PlotFont());
    m_items << tracer << text;
}
