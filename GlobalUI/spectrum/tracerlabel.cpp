// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracerlabel.h"

#include "globalclass.h"
#include "plotfont.h"

#include <qcustomplot.h>

#include <cmath>

namespace {

constexpr double mostWritten = 1e15; // a larger number is not known to its last digit

} // namespace

TracerLabel::TracerLabel(QCustomPlot *plot)
    : m_plot(plot)
{
}

QString TracerLabel::Text(double x, double value, bool isWhole)
{
    const QString position = QString::number(x, 'f', x > 1.0 ? 0 : 6);
    const bool isWritten = isWhole && std::abs(value) < mostWritten;
    const QString text = isWritten ? QString::number(value, 'f', 0) : QString::number(value, 'g', 7);
    return "[" + tr("Pos : ") + position + ", " + tr("Value : ") + text + "]";
}

void TracerLabel::Remove()
{
    if (m_text)
        m_plot->removeItem(m_text);
    if (m_tracer)
        m_plot->removeItem(m_tracer);
    m_text = nullptr;
    m_tracer = nullptr;
}

void TracerLabel::Show(double x, double value, bool isWhole)
{
    Remove();
    m_text = new QCPItemText(m_plot);
    const int lift = -GlobalClass::GetActualSize(20);
    const bool onTheLeft = x > m_plot->xAxis->range().upper / 2;
    m_text->setPositionAlignment((onTheLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    m_text->setPadding(onTheLeft ? QMargins(0, lift, 15, 0) : QMargins(15, lift, 0, 0));
    m_text->setText(Text(x, value, isWhole));
    m_text->setColor(Qt::black);
    m_text->setFont(PlotFont());
    m_text->position->setType(QCPItemPosition::ptPlotCoords);
    m_text->position->setCoords(x, value);

    m_tracer = new QCPItemTracer(m_plot);
    m_tracer->setGraphKey(x);
    m_tracer->setInterpolating(true);
    m_tracer->setStyle(QCPItemTracer::tsCrosshair);
    m_tracer->setPen(QPen(Qt::red, GlobalClass::GetActualSize(2)));
    m_tracer->setSize(GlobalClass::GetActualSize(40));
    m_tracer->position->setCoords(x, value);
    if (!m_plot->graph(0)->data()->isEmpty()) // a tracer of an empty graph complains in the log
        m_tracer->setGraph(m_plot->graph(0));
}
