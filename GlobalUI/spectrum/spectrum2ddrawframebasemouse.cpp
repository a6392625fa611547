// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrum2ddrawframebase.h"

#include "plotranges.h"
#include "spectrumuimanager.h"

#include <QDebug>
#include <QMouseEvent>

#include <qcustomplot.h>

namespace {

constexpr double shortestDrag = 10.0; // pixels; anything shorter is a click

} // namespace

void Spectrum2DDrawFrameBase::SlotCustomPlotMousePress(QMouseEvent *event)
{
    m_pressPoint = event->pos();
    RemoveSelectionRect(); // of another button that is still held
    m_selectionRect = new QCPItemRect(m_plot);
    for (QCPItemPosition *corner : { m_selectionRect->topLeft, m_selectionRect->bottomRight }) {
        corner->setType(QCPItemPosition::ptAbsolute);
        corner->setCoords(m_pressPoint);
    }
    m_selectionRect->setPen(QPen(Qt::blue));
    m_selectionRect->setBrush(QBrush(QColor(200, 200, 255, 100), Qt::SolidPattern));
    m_selectionRect->setVisible(false);
    m_pressed = true;
}

void Spectrum2DDrawFrameBase::SlotCustomPlotMouseMove(QMouseEvent *event)
{
    if (!m_pressed)
        return;
    if (event->buttons() == Qt::NoButton) { // let go where it was not seen
        DropDrag();
        return;
    }
    m_dragging = true;
    m_selectionRect->bottomRight->setCoords(event->pos());
    m_selectionRect->setVisible(true);
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void Spectrum2DDrawFrameBase::SlotCustomPlotMouseRelease(QMouseEvent *event)
{
    m_releasePoint = event->pos();
    qDebug() << "SlotCustomPlotMouseRelease" << m_releasePoint;
    const bool dragged = m_dragging;
    EndDrag();
    if (dragged && qAbs(m_pressPoint.x() - m_releasePoint.x()) >= shortestDrag) {
        SpectrumUIManager::GetInstance()->SetZoomAutoFlag(false);
        ZoomByDrag();
    } else {
        UpdateTracer();
    }
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void Spectrum2DDrawFrameBase::EndDrag()
{
    RemoveSelectionRect();
    m_pressed = false;
    m_dragging = false;
}

void Spectrum2DDrawFrameBase::DropDrag()
{
    EndDrag();
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void Spectrum2DDrawFrameBase::RemoveSelectionRect()
{
    if (m_selectionRect)
        m_plot->removeItem(m_selectionRect);
    m_selectionRect = nullptr;
}

void Spectrum2DDrawFrameBase::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_pressed)
        DropDrag(); // its button may be let go elsewhere
}

void Spectrum2DDrawFrameBase::ZoomByDrag()
{
    QCPAxis *axis = m_plot->xAxis;
    if (m_releasePoint.x() > m_pressPoint.x()) {
        const QCPRange range = DraggedRange(axis->pixelToCoord(m_pressPoint.x()),
                                            axis->pixelToCoord(m_releasePoint.x()), m_samples.Ends());
        if (range.lower >= range.upper)
            return; // the drag was beside the curve
        m_rangeHistory.Push(range);
        axis->setRange(range);
    } else {
        m_rangeHistory.StepBack();
        if (m_rangeHistory.IsAtFirst()) {
            m_plot->graph(0)->rescaleAxes(false);
            LeaveBlankAbove();
        } else {
            axis->setRange(m_rangeHistory.Newest());
        }
    }
}

void Spectrum2DDrawFrameBase::UpdateTracer()
{
    m_tracerLabel->Remove();
    if (m_releasePoint.isNull())
        return;
    const double x = m_plot->xAxis->pixelToCoord(m_releasePoint.x());
    m_tracerLabel->Show(x, m_samples.TracerValue(x), m_samples.AreWhole());
}
