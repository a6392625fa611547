// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrum2ddrawframebase.h"

#include "customaxisticker.h"
#include "framemanager.h"
#include "globalclass.h"
#include "globalmanager.h"
#include "imagemanager.h"
#include "plotfont.h"
#include "plotranges.h"
#include "previewmanager.h"
#include "spectrumuimanager.h"
#include "spectrumzoomui.h"
#include "uiconfigmanager.h"

#include <QScrollBar>
#include <QVBoxLayout>

#include <qcustomplot.h>

Spectrum2DDrawFrameBase::Spectrum2DDrawFrameBase(QWidget *parent)
    : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setSpacing(0);
    const int margin = GlobalClass::GetActualSize(10);
    column->setContentsMargins(GlobalClass::GetActualSize(40), margin, margin, margin);
    CreatePlot();
    m_trackScroll = new QScrollBar(Qt::Horizontal, this);
    m_trackScroll->setFixedHeight(GlobalClass::GetActualSize(20));
    column->addWidget(m_trackScroll);
    SlotMultitrackOnFlagChanged();
    ConnectServices();
    GlobalAttachObserver(this);
}

Spectrum2DDrawFrameBase::~Spectrum2DDrawFrameBase() { GlobalDetachObserver(this); }

void Spectrum2DDrawFrameBase::CreatePlot()
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    m_plot = new QCustomPlot; // reparented by the layout
    m_plot->addGraph()->setPen(settings->GetLinePen());
    m_plot->setBackground(QBrush(settings->GetBackgroundColor(), Qt::SolidPattern));
    m_plot->setInteraction(QCP::iRangeZoom);
    m_plot->axisRect()->setRangeZoom(Qt::Vertical);
    m_plot->yAxis->setNumberFormat("gb");
    m_plot->yAxis->setNumberPrecision(4);
    static_cast<QVBoxLayout *>(layout())->addWidget(m_plot, 1);

    m_plot->xAxis->setLabel(settings->GetTitleName());
    m_plot->yAxis->setLabel(tr("Counts"));
    for (QCPAxis *axis : { m_plot->xAxis, m_plot->yAxis }) {
        axis->setLabelFont(PlotFont());
        axis->setTickLabelFont(PlotFont());
    }
    m_plot->xAxis->setTicker(QSharedPointer<CustomAxisTicker>::create(false));
    m_plot->xAxis->setTicks(true);
    m_plot->xAxis->setTickLabels(true);
    m_plot->xAxis2->setVisible(false);
    m_plot->xAxis2->setTickLabels(false);
    m_plot->yAxis2->setVisible(false);

    m_peakMarkers = std::make_unique<PeakMarkers>(m_plot);
    m_tracerLabel = std::make_unique<TracerLabel>(m_plot);
    m_rangeHistory.Restart(QCPRange(CurveSamples::PixelToX(0),
                                    CurveSamples::PixelToX(FrameManager::GetInstance()->GetFrameWidth())));
    m_plot->replot(QCustomPlot::rpRefreshHint);

    m_zoomBar = new SpectrumZoomUI(this, true);
    PlaceZoomBar();
    m_zoomBar->raise();
}

void Spectrum2DDrawFrameBase::ConnectServices()
{
    connect(m_trackScroll, SIGNAL(valueChanged(int)), this, SLOT(SlotScrollValueChanged(int)));
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    connect(settings, SIGNAL(signalDisplayModeChange()), this, SLOT(SlotDisplayModeUpdate()));
    connect(settings, SIGNAL(signalDisplayModePropertyChange()), this, SLOT(SlotDisplayModeUpdate()));
    connect(settings, SIGNAL(SignalFVBManualFlagChanged(bool)), this, SLOT(SlotUpdateResetFlag(bool)));
    connect(settings, SIGNAL(SignalFVBOnFlagChanged(bool)), this, SLOT(SlotUpdateResetFlag(bool)));
    connect(settings, SIGNAL(SignalConversationFormulaChanged()), this,
            SLOT(SlotConversationFormulaChanged()));
    connect(m_zoomBar, SIGNAL(SignalZoomIn()), this, SLOT(SlotZoomIn()));
    connect(m_zoomBar, SIGNAL(SignalZoomOut()), this, SLOT(SlotZoomOut()));
    connect(m_zoomBar, SIGNAL(SignalZoomReset()), this, SLOT(SlotZoomReset()));
    connect(m_zoomBar, SIGNAL(SignalHorizontalZoomIn()), this, SLOT(SlotHorizontalZoomIn()));
    connect(m_zoomBar, SIGNAL(SignalHorizontalZoomOut()), this, SLOT(SlotHorizontalZoomOut()));
    connect(m_plot, SIGNAL(mousePress(QMouseEvent *)), this, SLOT(SlotCustomPlotMousePress(QMouseEvent *)));
    connect(m_plot, SIGNAL(mouseMove(QMouseEvent *)), this, SLOT(SlotCustomPlotMouseMove(QMouseEvent *)));
    connect(m_plot, SIGNAL(mouseRelease(QMouseEvent *)), this,
            SLOT(SlotCustomPlotMouseRelease(QMouseEvent *)));
    connect(UIConfigManager::GetInstance(), SIGNAL(signalUpdateImageControlUI()), this,
            SLOT(SlotUpdateResetFlag()));
}

void Spectrum2DDrawFrameBase::PlaceZoomBar()
{
    m_zoomBar->setGeometry(5, height() - GlobalClass::GetActualSize(215), GlobalClass::GetActualSize(30),
                           GlobalClass::GetActualSize(205));
}

void Spectrum2DDrawFrameBase::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_plot->graph(0)->rescaleAxes(true);
    PlaceZoomBar();
}

void Spectrum2DDrawFrameBase::SlotMultitrackOnFlagChanged()
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    m_trackScroll->setVisible(settings->GetMultiTrackOnFlag());
    m_trackScroll->setRange(0, settings->IsDirectionHorinzontal()
                                   ? settings->GetMultiTrackList().size() - 1
                                   : FrameManager::GetInstance()->GetFrameWidth());
    m_trackScroll->setValue(0);
}

void Spectrum2DDrawFrameBase::SlotScrollValueChanged(int value)
{
    ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
    if (m_staticMode && image)
        image->SetImage(value);
}

void Spectrum2DDrawFrameBase::SlotDisplayModeUpdate()
{
    UpdatePeakMarkers();
    if (m_staticMode || !PreviewManager::GetInstance()->isRunning())
        AutoRange();
    m_resetFlag = true;
    m_plot->replot(QCustomPlot::rpQueuedReplot);
    m_plot->xAxis->setLabel(SpectrumUIManager::GetInstance()->GetTitleName());
    UpdateTracer();
}

void Spectrum2DDrawFrameBase::SlotSpectralPropertyChanged()
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    m_plot->graph(0)->setPen(settings->GetLinePen());
    m_plot->setBackground(QBrush(settings->GetBackgroundColor(), Qt::SolidPattern));
    UpdatePeakMarkers();
    AutoRange();
    m_plot->replot(QCustomPlot::rpRefreshHint);
}

void Spectrum2DDrawFrameBase::SlotUpdateResetFlag(bool) { m_resetFlag = true; }

void Spectrum2DDrawFrameBase::SlotUpdateResetFlag() { m_resetFlag = true; }

void Spectrum2DDrawFrameBase::SlotConversationFormulaChanged()
{
    m_rangeHistory.Restart(m_plot->xAxis->range());
}

void Spectrum2DDrawFrameBase::AutoRange()
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    if (settings->IsDisplayMode2D())
        m_peakMarkers->Remove();
    // Ranging again what nobody has zoomed since doesn't add blank space to blank space.
    QCPAxis *axis = m_plot->yAxis;
    const bool wasRanged = axis->range() == m_autoRange;
    if (wasRanged)
        axis->setRange(m_autoRangeOfCurve); // not that of a flat curve, which has no height
    m_plot->graph(0)->rescaleAxes(true);
    qDebug("custom plot range[%lf, %lf]", axis->range().lower, axis->range().upper);
    if (wasRanged && m_autoRangeOfCurve.size() <= 0.0 && axis->range() == m_autoRange)
        return;
    LeaveBlankAbove();
}

void Spectrum2DDrawFrameBase::LeaveBlankAbove()
{
    m_autoRangeOfCurve = m_plot->yAxis->range();
    const double blankRatio = SpectrumUIManager::GetInstance()->GetBlankRatio();
    m_plot->yAxis->setRange(WithBlankAbove(m_autoRangeOfCurve.lower, m_autoRangeOfCurve.upper, blankRatio));
    m_autoRange = m_plot->yAxis->range();
}

void Spectrum2DDrawFrameBase::SlotUpdateLevels(int low, int upper)
{
    const double blankRatio = SpectrumUIManager::GetInstance()->GetBlankRatio();
    m_plot->yAxis->setRange(low, UpperWithBlank(upper, blankRatio));
}

/// Of fractions the whole numbers are those that they were told in.
void Spectrum2DDrawFrameBase::ZoomValues(double zoom)
{
    const double factor = m_samples.Factor();
    m_plot->yAxis->setRange(ZoomedValueRange(m_plot->yAxis->range() * factor, zoom) / factor);
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void Spectrum2DDrawFrameBase::SlotZoomIn() { ZoomValues(0.9); }
void Spectrum2DDrawFrameBase::SlotZoomOut() { ZoomValues(1.1); }

void Spectrum2DDrawFrameBase::SlotHorizontalZoomIn()
{
    m_plot->xAxis->setRange(HorizontallyZoomedIn(m_plot->xAxis->range(), m_samples.Ends()));
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void Spectrum2DDrawFrameBase::SlotHorizontalZoomOut()
{
    m_plot->xAxis->setRange(HorizontallyZoomedOut(m_plot->xAxis->range(), m_samples.Ends()));
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void Spectrum2DDrawFrameBase::SlotZoomReset()
{
    m_rangeHistory.BackToFirst();
    m_plot->xAxis->setRange(m_rangeHistory.Newest());
    m_plot->graph(0)->rescaleAxes(true);
    m_plot->replot(QCustomPlot::rpQueuedReplot);
    SlotDisplayModeUpdate();
}
