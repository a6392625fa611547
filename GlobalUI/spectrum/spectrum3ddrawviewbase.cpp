// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrum3ddrawviewbase.h"

#include "customscale.h"
#include "framemanager.h"
#include "globalclass.h"
#include "line3d.h"
#include "rosenbrock.h"
#include "spectrumlinepayload.h"
#include "spectrummanager.h"
#include "spectrumuimanager.h"
#include "spectrumzoomui.h"
#include "trackplot.h"

#include <QLabel>
#include <QMutexLocker>
#include <QOpenGLContext>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int majorTicks = 5;

bool IsOpenGLOffered()
{
    if (!QGLFormat::hasOpenGL())
        return false;
    QOpenGLContext context;
    return context.create();
}

QLabel *MakeNotice(const QString &text, QWidget *parent)
{
    auto *notice = new QLabel(text, parent);
    notice->setAlignment(Qt::AlignCenter);
    notice->setWordWrap(true);
    return notice;
}

} // namespace

Spectrum3DDrawViewBase::Spectrum3DDrawViewBase(QWidget *parent)
    : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    const int margin = GlobalClass::GetActualSize(10);
    column->setContentsMargins(GlobalClass::GetActualSize(40), margin, margin, margin);
    if (IsOpenGLOffered()) {
        CreatePlot();
    } else {
        column->addWidget(MakeNotice(tr("The 3D plot can't be shown: this display offers no OpenGL."), this));
    }

    m_zoomBar = new SpectrumZoomUI(this, false);
    if (m_plot) { // a window of its own, as the plot is: else it lies below
        m_zoomBar->setAttribute(Qt::WA_DontCreateNativeAncestors);
        m_zoomBar->setAttribute(Qt::WA_NativeWindow);
    }
    PlaceZoomBar();
    m_zoomBar->raise();
    connect(SpectrumManager::GetInstance(), SIGNAL(SignalUpdateMultiTrack(void *)), this,
            SLOT(SlotUpdateMultiTrack(void *)), Qt::QueuedConnection);
    connect(m_zoomBar, SIGNAL(SignalZoomIn()), this, SLOT(SlotZoomIn()));
    connect(m_zoomBar, SIGNAL(SignalZoomOut()), this, SLOT(SlotZoomOut()));
    connect(m_zoomBar, SIGNAL(SignalZoomReset()), this, SLOT(SlotZoomReset()));
    connect(m_zoomBar, SIGNAL(SignalHorizontalZoomIn()), this, SLOT(SlotHorizontalZoomIn()));
    connect(m_zoomBar, SIGNAL(SignalHorizontalZoomOut()), this, SLOT(SlotHorizontalZoomOut()));
    connect(SpectrumUIManager::GetInstance(), SIGNAL(SignalSpectralPropertyChanged()), this,
            SLOT(SlotSpectralPropertyChanged()));
}

Spectrum3DDrawViewBase::~Spectrum3DDrawViewBase() = default;

void Spectrum3DDrawViewBase::CreatePlot()
{
    m_plot = new TrackPlot; // reparented by the layout
    m_plot->setAttribute(Qt::WA_DontCreateNativeAncestors);
    layout()->addWidget(m_plot);
    m_noTracks =
        MakeNotice(tr("There are no tracks to show: draw them on the picture or have them found."), this);
    m_noTracks->setObjectName("labelNoTracks");
    // Beside the plot it becomes a window of its own, too.
    m_noTracks->setAttribute(Qt::WA_DontCreateNativeAncestors);
    m_noTracks->hide();
    connect(m_plot, SIGNAL(rotationChanged(double, double, double)), this,
            SLOT(Slot3DViewRotationChanged(double, double, double)));
    connect(m_plot, SIGNAL(zoomChanged(double)), this, SLOT(Slot3DZoomChanged(double)));
}

void Spectrum3DDrawViewBase::PlaceZoomBar()
{
    m_zoomBar->setGeometry(5, height() - GlobalClass::GetActualSize(180), GlobalClass::GetActualSize(30),
                           GlobalClass::GetActualSize(170));
}

void Spectrum3DDrawViewBase::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    PlaceZoomBar();
    if (m_noTracks)
        m_noTracks->setGeometry(rect().marginsRemoved(layout()->contentsMargins()));
}

void Spectrum3DDrawViewBase::ShowPlot(bool shown)
{
    m_plot->setVisible(shown);
    m_noTracks->setVisible(!shown);
}

void Spectrum3DDrawViewBase::SlotUpdateMultiTrack(void *param)
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    // The page of the live picture and that of the opened one get the same payload: only the one that is seen may exchange
    // its buffers.
    if (!m_plot || !param || !settings->IsDisplayMode3D() || !isVisible())
        return;
    const QList<QRectF> tracks = settings->GetMultiTrackList();
    if (tracks.isEmpty()) {
        ShowPlot(false);
        return;
    }

    auto *payload = static_cast<SpectrumLinePayload *>(param);
    const unsigned int *values = nullptr;
    int minimum = 0;
    int maximum = 0;
    {
        QMutexLocker lock(payload->lock);
        std::swap(payload->fill, payload->show);
        values = payload->show;
        minimum = payload->minimum;
        maximum = payload->maximum;
    }
    const int width = int(tracks.first().width());
    ShowPlot(values); // there are none of tracks that are switched off
    if (!values || width < 1)
        return;

    const TrackSteps steps = ComputeTrackSteps(width, minimum, maximum);
    if (!m_function)
        SetUpPlot(tracks.size(), width, steps, minimum, maximum);
    else if (steps != m_steps)
        SetScales(steps); // the box stays, and its numbers remain true
    // The payload's tracks are as wide as the frame; a wider rectangle must not read past them.
    const int frameWidth = FrameManager::GetInstance()->GetFrameWidth();
    const int valueCount = tracks.size() * (frameWidth > 0 ? frameWidth : width);
    m_lines->setLines(ComputeTrackLines(values, tracks.size(), width, valueCount, steps),
                      Qwt3D::Qt2GL(settings->GetLineColor()));
    m_plot->updateData();
    m_plot->update();
}

void Spectrum3DDrawViewBase::SetUpPlot(int trackCount, int width, const TrackSteps &steps, int minimum,
                                       int maximum)
{
    const double depth = double(ComputeSeriesDepth(trackCount)) * steps.series;
    const double lowest = double(minimum) / steps.countsDivisor;
    const double highest = double(maximum) / steps.countsDivisor;
    m_function = std::make_unique<Rosenbrock>(m_plot);
    m_function->setMesh(5, 5);
    m_function->setDomain(0, width, 0, depth);
    m_function->setMinZ(lowest);
    m_function->setMaxZ(highest > lowest ? highest : lowest + 1.0); // a flat box has no scale
    m_function->create();

    SetUpAxes(width, depth, steps);
    m_plot->setCoordinateStyle(Qwt3D::BOX);
    m_plot->setRotation(20.0, 0.0, 32.0);
    m_plot->setZoom(0.9);
    m_plot->setScale(1.0, 1.0, 1.0);

    if (!m_lines) {
        Qwt3D::Line3D lines;
        lines.configure(3.0, true);
        m_lines = static_cast<Qwt3D::Line3D *>(m_plot->addEnrichment(lines));
    }
}

void Spectrum3DDrawViewBase::SetUpAxes(int width, double depth, const TrackSteps &steps)
{
    const QString family = "Segoe UI";
    constexpr int pointSize = 12;
    Qwt3D::CoordinateSystem *box = m_plot->coordinates();
    box->setGridLines(false, false, Qwt3D::LEFT);
    for (Qwt3D::Axis &axis : box->axes)
        axis.setMajors(majorTicks);

    Qwt3D::Axis &pixels = box->axes[Qwt3D::X1];
    Qwt3D::Axis &series = box->axes[Qwt3D::Y1];
    Qwt3D::Axis &counts = box->axes[Qwt3D::Z1];
    pixels.setLabelString(tr("Pixel Number"));
    series.setLabelString(tr("Series Position"));
    // The counts stand at whichever upright edge is free; seen from the front it is not the first one.
    for (Qwt3D::AXIS axis : { Qwt3D::Z1, Qwt3D::Z2, Qwt3D::Z3, Qwt3D::Z4 }) {
        box->axes[axis].setLabelString(tr("Counts"));
        box->axes[axis].setLabelFont(family, pointSize);
    }
    pixels.setLabelPosition(Qwt3D::Triple(width, -200.0, 0.0), Qwt3D::BottomLeft);
    series.setLabelPosition(Qwt3D::Triple(-1000.0, depth / 2, 0.0), Qwt3D::CenterRight);
    counts.setLabelPosition(Qwt3D::Triple(0.0, depth, 0.0), Qwt3D::CenterRight);
    for (Qwt3D::Axis *axis : { &pixels, &series, &counts }) {
        axis->setLabelFont(family, pointSize);
        axis->setNumberFont(family, pointSize);
    }
    SetScales(steps);
}

void Spectrum3DDrawViewBase::SetScales(const TrackSteps &steps)
{
    m_steps = steps;
    for (Qwt3D::AXIS axis : { Qwt3D::Y1, Qwt3D::Y2, Qwt3D::Y3, Qwt3D::Y4 })
        SetScale(axis, steps.series, CustomScale::OverFactor);
    for (Qwt3D::AXIS axis : { Qwt3D::Z1, Qwt3D::Z2, Qwt3D::Z3, Qwt3D::Z4 })
        SetScale(axis, steps.countsDivisor, CustomScale::TimesFactor);
}

void Spectrum3DDrawViewBase::SetScale(int axis, double factor, int mode)
{
    Qwt3D::Axis &target = m_plot->coordinates()->axes[size_t(axis)];
    target.setScale(new CustomScale(factor, mode)); // the axis owns it
    target.setMajors(majorTicks);                   // painting has made it another number
}

void Spectrum3DDrawViewBase::ScalePlot(double xFactor, double zFactor)
{
    if (m_plot)
        m_plot->setScale(m_plot->xScale() * xFactor, m_plot->yScale(), m_plot->zScale() * zFactor);
}

void Spectrum3DDrawViewBase::SlotZoomIn() { ScalePlot(1.0, 1.1); }
void Spectrum3DDrawViewBase::SlotZoomOut() { ScalePlot(1.0, 0.9); }
void Spectrum3DDrawViewBase::SlotHorizontalZoomIn() { ScalePlot(1.1, 1.0); }
void Spectrum3DDrawViewBase::SlotHorizontalZoomOut() { ScalePlot(0.9, 1.0); }
void Spectrum3DDrawViewBase::SlotZoomReset() { m_function.reset(); }

// The lines take a new colour with the next data.
void Spectrum3DDrawViewBase::SlotSpectralPropertyChanged() {}

void Spectrum3DDrawViewBase::Slot3DViewRotationChanged(double x, double y, double z)
{
    qDebug("Spectrum3DDrawViewBase::Slot3DViewRotationChanged:x:%lf, y:%lf, z:%lf", x, y, z);
}

void Spectrum3DDrawViewBase::Slot3DZoomChanged(double zoom)
{
    qDebug("Spectrum3DDrawViewBase::Slot3DZoomChanged:zoom:%lf", zoom);
}
