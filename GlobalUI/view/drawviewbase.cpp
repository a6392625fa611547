// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewbase.h"

#include "coverconfigmanager.h"
#include "cropframe.h"
#include "globalmanager.h"
#include "lxgpudrawitem.h"
#include "measureconfigmanager.h"
#include "measuremanager.h"
#include "reportmanager.h"
#include "roimanager.h"
#include "uiconfigmanager.h"
#include "viewcodes.h"
#include "zoomladder.h"

#include <QDebug>
#include <QEvent>
#include <QGraphicsScene>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace {

QWidget *ParentOf(const QWidget *widget) { return widget ? widget->parentWidget() : nullptr; }

} // namespace

DrawViewBase::DrawViewBase(QWidget *parent)
    : QGraphicsView(parent)
{
    ConnectHost(ParentOf(parent));

    setStyleSheet("DrawViewBase{background: transparent;border: 0px;}");
    setAttribute(Qt::WA_MouseTracking);

    setScene(new QGraphicsScene(this));
    scene()->setSceneRect(0, 0, 1, 1);
    m_cropFrame = new CropFrame(scene(), this);

    m_gpuViewRect = QRectF(0, 0, 1, 1);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_imageSize = QSize(0, 0);

    connect(scene(), SIGNAL(sceneRectChanged(QRectF)), this, SLOT(slotSceneRectChanged(QRectF)));
    connect(m_cropFrame, SIGNAL(signalUpdateMousePosition(QPoint)), this,
            SLOT(slotUpdateMousePosition(QPoint)));
    connect(horizontalScrollBar(), SIGNAL(valueChanged(int)), this, SLOT(slotOwnScrollBarMoved()));
    connect(verticalScrollBar(), SIGNAL(valueChanged(int)), this, SLOT(slotOwnScrollBarMoved()));
    m_cropFrame->installEventFilter(this);
}

DrawViewBase::~DrawViewBase()
{
    disconnect();
    RemoveGPUItem();
    delete m_cropFrame;
    delete scene();
}

void DrawViewBase::ConnectHost(QWidget *host)
{
    if (!host)
        return; // nobody to show scroll bars for GPU drawing
    connect(this, SIGNAL(signalSetHorizontalScrollBarVisible(bool)), host,
            SLOT(slotSetHorizontalScrollBarVisible(bool)));
    connect(this, SIGNAL(signalSetVerticalScrollBarVisible(bool)), host,
            SLOT(slotSetVerticalScrollBarVisible(bool)));
    connect(this, SIGNAL(signalUpdateHorizontalScrollBar(QScrollBar *)), host,
            SLOT(slotUpdateHorizontalScrollBar(QScrollBar *)));
    connect(this, SIGNAL(signalUpdateVerticalScrollBar(QScrollBar *)), host,
            SLOT(slotUpdateVerticalScrollBar(QScrollBar *)));
    connect(host, SIGNAL(signalHorizontalScrollBarValueChanged(int)), this,
            SLOT(slotHorizontalScrollBarValueChanged(int)));
    connect(host, SIGNAL(signalVerticalScrollBarValueChanged(int)), this,
            SLOT(slotVerticalScrollBarValueChanged(int)));
}

QWidget *DrawViewBase::Host() const { return ParentOf(ParentOf(parentWidget())); }

QSize DrawViewBase::HostSize() const
{
    const QWidget *host = Host();
    return host ? host->size() : size();
}

void DrawViewBase::SetViewManager(ReportManager *viewManager) { m_viewManager = viewManager; }

ReportManager *DrawViewBase::GetViewManager() const { return m_viewManager; }

CropFrame *DrawViewBase::GetCropFrame() const { return m_cropFrame; }

QSize DrawViewBase::GetImageSize() const { return m_imageSize; }

QRectF DrawViewBase::GetGPUViewRect() const { return m_gpuViewRect; }

bool DrawViewBase::IsGPUDraw() const { return m_gpuDrawItem != nullptr; }

// Showing a frame

void DrawViewBase::slotPaintPreview(QImage image)
{
    m_pictureBrush = QBrush(QPixmap::fromImage(image, Qt::NoFormatConversion));
    if (m_gpuDrawItem) {
        HandViewRectToItem();
        m_gpuDrawItem->UpdateView();
        if (m_setBrushPending) {
            scene()->setBackgroundBrush(m_pictureBrush);
            m_setBrushPending = false;
            emit signalFinishSetBrush();
        }
    } else {
        ShowInBackground(m_pictureBrush);
    }

    // The rectangle of a scene without a picture has the size of a picture of one pixel.
    const bool isFirst = m_imageSize.isEmpty() && sceneRect().size() == QSizeF(1, 1);
    m_imageSize = image.size();
    if (isFirst || sceneRect().size() != QSizeF(m_imageSize))
        TakeNewSize();
}

void DrawViewBase::ShowInBackground(const QBrush &brush)
{
    scene()->setBackgroundBrush(brush);
    UpdateViewportOpacity();
}

void DrawViewBase::UpdateViewportOpacity()
{
    // The view is as large as the picture, so nothing behind it needs to be painted for each frame.
    const QBrush &brush = scene()->backgroundBrush();
    const bool isOpaque = brush.style() == Qt::TexturePattern && !brush.texture().hasAlphaChannel();
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent, isOpaque);
}

void DrawViewBase::TakeNewSize()
{
    if (m_gpuDrawItem) {
        m_geometryPending = false; // the fit brings all up to date
        m_cropFrame->hide();
        CoverConfigManager::GetInstance()->ResetCover();
        ROIManager::GetInstance()->SetManualROIChecked(false);
    }
    SetPictureRect();
    ZoomFit();
    emit signalUpdateImageSize(QString("%1x%2").arg(m_imageSize.width()).arg(m_imageSize.height()));

    if (ReportManager *report = GlobalManager::GetInstance()->GetReportManager()) {
        if (MeasureManager *measure = report->GetMeasureManager())
            measure->SetScaleFactor();
        report->ClearAll();
    }
    emit signalImageSizeChanged();
    emit MeasureConfigManager::GetInstance()->signalUpdateScaleUI();
}

void DrawViewBase::SetPictureRect()
{
    if (m_imageSize.isEmpty())
        return;
    const QScopedValueRollback<bool> placing(m_isPlacing, true);
    const QRectF pictureRect(QPointF(0, 0), m_imageSize);
    scene()->setSceneRect(pictureRect);
    setSceneRect(pictureRect);
}

void DrawViewBase::slotSetBrush()
{
    if (m_gpuDrawItem)
        m_setBrushPending = true;
    else
        emit signalFinishSetBrush();
}

void DrawViewBase::slotSceneRectChanged(QRectF) {}

void DrawViewBase::slotSetUpdatesEnabled(bool value)
{
    setUpdatesEnabled(value);
    if (QWidget *frame = ParentOf(parentWidget()))
        frame->update();
    qDebug("[%s:%d %s] slotSetUpdatesEnabled %d", "drawviewbase.cpp", 304,
           "DrawViewBase::slotSetUpdatesEnabled", value);
}

// Zoom

double DrawViewBase::Scale() const { return transform().m11(); }

void DrawViewBase::ZoomIn()
{
    if (!m_imageSize.isEmpty())
        SetScale(ZoomLadder(m_imageSize).In(Scale()));
}

void DrawViewBase::ZoomOut()
{
    if (!m_imageSize.isEmpty())
        SetScale(ZoomLadder(m_imageSize).Out(Scale()));
}

void DrawViewBase::ZoomFit()
{
    if (!m_imageSize.isEmpty())
        SetScale(ZoomLadder(m_imageSize).Fit(HostSize()));
}

void DrawViewBase::ZoomByDelta(int delta)
{
    if (delta > 0)
        ZoomIn();
    else
        ZoomOut();
}

void DrawViewBase::slotScale(int type)
{
    switch (type) {
    case ZoomTypeIn:
        ZoomIn();
        break;
    case ZoomTypeOut:
        ZoomOut();
        break;
    case ZoomTypeFit:
        ZoomFit();
        break;
    default:
        slotZoom1v1();
    }
}

void DrawViewBase::slotZoomIn() { ZoomIn(); }

void DrawViewBase::slotZoomOut() { ZoomOut(); }

void DrawViewBase::slotZoom1v1()
{
    if (!m_imageSize.isEmpty())
        SetScale(ZoomLadder(m_imageSize).OneToOne());
}

void DrawViewBase::slotZoomFit() { ZoomFit(); }

void DrawViewBase::slotScaleView(ReportManager *viewManager, int type)
{
    if (m_viewManager && viewManager == m_viewManager)
        slotScale(type);
}

void DrawViewBase::slotSetScaleFactor(ReportManager *viewManager, double scaleFactor)
{
    if (m_viewManager && viewManager == m_viewManager)
        slotSetScaleFactor(scaleFactor);
}

void DrawViewBase::slotSetScaleFactor(double scaleFactor)
{
    if (!m_imageSize.isEmpty())
        SetScale(ZoomLadder(m_imageSize).Bounded(scaleFactor));
}

void DrawViewBase::SetScale(double scale)
{
    const QScopedValueRollback<bool> placing(m_isPlacing, true);
    // Set anew rather than multiplied, so that the steps of the ladder stay exact.
    setTransform(QTransform::fromScale(scale, scale));
    if (m_cropFrame->isVisible() && m_gpuDrawItem)
        m_geometryPending = true; // until the crop frame goes
    else
        UpdateViewGeometry();
}

bool DrawViewBase::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_cropFrame && event->type() == QEvent::Hide && m_cropFrame->isHidden()
        && m_geometryPending)
        UpdateViewGeometry();
    return QGraphicsView::eventFilter(watched, event);
}

void DrawViewBase::UpdateViewGeometry()
{
    const QScopedValueRollback<bool> placing(m_isPlacing, true);
    m_geometryPending = false;

    QSize viewSize = ZoomLadder::ScaledSize(m_imageSize, Scale());
    if (m_gpuDrawItem) {
        const QSize hostSize = HostSize();
        emit signalSetHorizontalScrollBarVisible(viewSize.width() > hostSize.width());
        emit signalSetVerticalScrollBarVisible(viewSize.height() > hostSize.height());
        viewSize = viewSize.boundedTo(hostSize);
        emit signalUpdateHorizontalScrollBar(horizontalScrollBar());
        emit signalUpdateVerticalScrollBar(verticalScrollBar());
    }
    setFixedSize(viewSize);
    SetPictureRect();

    if (!m_imageSize.isEmpty()) {
        if (m_viewManager)
            m_viewManager->SetScaleFactor(float(Scale()));
        emit UIConfigManager::GetInstance()->signalImageInfoChanged();
        emit signalScaleFactorChanged(Scale());
    }
    m_cropFrame->resize(size());
    PlaceOwnScrollBars();
}
