// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumdrawviewbase.h"

#include "spectrumplacement.h"
#include "useareamanager.h"

#include <QDebug>
#include <QGraphicsScene>
#include <QResizeEvent>
#include <QScrollBar>

#include <utility>

namespace {

constexpr QSize ViewSize(800, 600); // before the first picture
constexpr int NoPictureWidth = 601;
constexpr QRectF WholePicture(0, 0, 1, 1);

} // namespace

SpectrumDrawViewBase::SpectrumDrawViewBase(QWidget *parent)
    : QGraphicsView(parent)
    , m_normalisedRect(WholePicture)
{
    setFixedWidth(ViewSize.width());
    setFixedHeight(ViewSize.height());
    setStyleSheet("Background:rgb(68, 73, 86); border: 1px; border-color:rgb(255, 255, 255)");
    setFrameShape(QFrame::NoFrame); // the picture is fitted to all of the view
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);

    setScene(new QGraphicsScene(this)); // the marks in it find the view as its parent
    setAttribute(Qt::WA_MouseTracking);
    scene()->setSceneRect(0, 0, m_imageSize.width(), m_imageSize.height());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    installEventFilter(this);
}

SpectrumDrawViewBase::~SpectrumDrawViewBase()
{
    disconnect();
    delete scene();
}

void SpectrumDrawViewBase::ComputeMargins(int &width, int &height) const
{
    const UseAreaManager *useArea = UseAreaManager::GetInstance();
    const QSize margins = ComputeSpectrumMargins(useArea->IsAxisVisible(), useArea->IsCurveVisible(),
                                                 useArea->IsColorCardVisible());
    width = margins.width();
    height = margins.height();
}

QSize SpectrumDrawViewBase::FreeSpace() const
{
    if (!m_parentFrame)
        return QSize();
    int width = 0;
    int height = 0;
    ComputeMargins(width, height);
    return m_parentFrame->size() - QSize(width, height);
}

// Pictures

void SpectrumDrawViewBase::slotPaintPreview(QImage image)
{
    if (image.isNull() || !UseAreaManager::GetInstance()->IsSpectrumPagePresent())
        return; // the picture before it stays
    ShowInBackground(image);
    if (TakeImageSize(image.size())) {
        ReportWholePicture();
        FitToParent(false);
    }
}

void SpectrumDrawViewBase::slotPaintStaticPreview(QImage image)
{
    if (image.isNull() || !UseAreaManager::GetInstance()->IsSpectrumPagePresent())
        return;
    ShowInBackground(image);
    if (!TakeImageSize(scene()->backgroundBrush().texture().size()))
        return;
    const bool isPicture = m_imageSize.width() != ViewSize.width() && m_imageSize.width() != NoPictureWidth;
    if (isPicture || !m_staticMode) {
        ReportWholePicture();
        FitToParent(false);
    }
}

void SpectrumDrawViewBase::ShowInBackground(const QImage &image)
{
    scene()->setBackgroundBrush(QBrush(QPixmap::fromImage(image, Qt::NoFormatConversion)));
    // The picture covers the view, so nothing behind it needs to be painted for each frame.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent,
                             !scene()->backgroundBrush().texture().hasAlphaChannel());
}

bool SpectrumDrawViewBase::TakeImageSize(const QSize &size)
{
    if (size == m_imageSize)
        return false;
    m_imageSize = size;
    EndDrag(); // one that began on another picture ends without a zoom
    const QRectF pictureRect(QPointF(0, 0), m_imageSize);
    scene()->setSceneRect(pictureRect);
    setSceneRect(pictureRect);
    HoldOwnScrollBars();
    return true;
}

void SpectrumDrawViewBase::ReportWholePicture()
{
    m_normalisedRect = WholePicture;
    emit SignalNewRect(0, m_imageSize.width(), 0, m_imageSize.height());
}

void SpectrumDrawViewBase::slotResetImageInfo()
{
    m_zoomHistory.Clear();
    m_imageSize = QSize(0, 0);
    EndDrag();
}

void SpectrumDrawViewBase::slotSetUpdatesEnabled(bool value) { setUpdatesEnabled(value); }

// Fit and zoom

void SpectrumDrawViewBase::FitToParent(bool getSpectrumFlag)
{
    const QSize pictureSize = scene()->backgroundBrush().texture().size();
    if (pictureSize.isEmpty() || !m_parentFrame)
        return;
    qDebug() << "parentSize:" << m_parentFrame->size();
    const QSize freeSpace = FreeSpace();
    if (freeSpace.isEmpty())
        return;
    if (m_staticMode)
        m_fittedOnce = true;

    const FittedPicture fitted = FitPicture(pictureSize, freeSpace);
    resetTransform();
    const QPointF remembered = m_zoomHistory.RememberedCentre();
    const QPointF centre = remembered.isNull() ? scene()->sceneRect().center() : remembered;
    m_zoomHistory.Restart({ fitted.scale, centre, scene()->sceneRect() });

    setFixedSize(fitted.viewSize);
    move(0, 0); // a hidden frame does not place it
    emit SignalImageChange(fitted.shown);
    SetScale(fitted.scale);
    m_releasePoint = mapFromScene(centre);
    emit SignalPressPosChange(centre, m_normalisedRect);
    emit SignalPressPosChangeStatic(centre, m_normalisedRect, getSpectrumFlag);
    ReportAnchor(AnchorOfFit(remembered, m_imageSize));
}

void SpectrumDrawViewBase::SetViewGeometry()
{
    qDebug() << "SpectrumDrawViewBase::SetViewGeometry"
             << "pressPoint:" << m_pressPoint << ",releasePoint:" << m_releasePoint;
    const bool zoomIn = m_releasePoint.x() >= m_pressPoint.x();
    if (zoomIn && m_pressPoint.y() > m_releasePoint.y())
        std::swap(m_pressPoint.ry(), m_releasePoint.ry());
    const QRectF picture(QPointF(0, 0), m_imageSize);
    // The mouse may have left the view.
    const QRectF rect =
        picture & QRectF(mapToScene(m_pressPoint.toPoint()), mapToScene(m_releasePoint.toPoint()));
    if (FreeSpace().isEmpty())
        return; // no room to show a level: the one on the screen stays in force
    if (zoomIn && (rect.isEmpty() || m_zoomHistory.Push(rect, true, FreeSpace()) <= 0.0F))
        return;
    if (!zoomIn)
        m_zoomHistory.Push(rect, false, FreeSpace());
    ApplyZoom(zoomIn ? rect : picture);
}

void SpectrumDrawViewBase::ApplyZoom(const QRectF &target)
{
    const ZoomState level = m_zoomHistory.Current();
    const QSize freeSpace = FreeSpace();
    if (level.scale <= 0.0F || m_imageSize.isEmpty() || freeSpace.isEmpty())
        return; // no picture yet, or no room: it stays as it is
    const PlacedPicture placed = PlacePicture(target, level, m_zoomHistory.Count(), m_imageSize, freeSpace);
    resetTransform();
    emit SignalImageChange(placed.shown);
    setFixedSize(placed.viewSize);
    SetScale(level.scale);
    m_releasePoint = mapFromScene(placed.pictureCentre);
    emit SignalSetSliderPosition(placed.scroll);
    emit SignalNewRect(placed.visible.xmin, placed.visible.xmax, placed.visible.ymin, placed.visible.ymax);
    m_normalisedRect = NormalisedRect(placed.visible, m_imageSize);
    emit SignalPressPosChange(placed.pictureCentre, m_normalisedRect);
    emit SignalPressPosChangeStatic(placed.pictureCentre, m_normalisedRect, true);
    ReportAnchor(placed.pictureCentre);
}

void SpectrumDrawViewBase::RestoreView(bool)
{
    const bool isWithoutPicture = m_imageSize.isEmpty() || m_imageSize.width() == ViewSize.width()
                                  || m_imageSize.width() == NoPictureWidth;
    if (m_staticMode && isWithoutPicture)
        return;
    if (m_zoomHistory.Count() > 1) {
        if (m_zoomHistory.Refit(FreeSpace()))
            ApplyZoom(m_zoomHistory.Current().rect);
    } else {
        m_zoomHistory.Clear();
        if (m_normalisedRect != WholePicture && !m_imageSize.isEmpty())
            ReportWholePicture(); // a level that was stepped back to goes
        FitToParent(true);
    }
}

void SpectrumDrawViewBase::SetScale(float scale)
{
    this->scale(double(scale), double(scale));
    HoldOwnScrollBars();
}

void SpectrumDrawViewBase::HoldOwnScrollBars()
{
    horizontalScrollBar()->setRange(0, 0);
    verticalScrollBar()->setRange(0, 0);
}

void SpectrumDrawViewBase::resizeEvent(QResizeEvent *event)
{
    qDebug("SpectrumDrawViewBase::resizeEvent :[%d,%d]", event->size().width(), event->size().height());
    QGraphicsView::resizeEvent(event);
    HoldOwnScrollBars();
}

void SpectrumDrawViewBase::showEvent(QShowEvent *event)
{
    QGraphicsView::showEvent(event);
    if (!m_staticMode)
        setUpdatesEnabled(true);
    else if (!m_fittedOnce)
        FitToParent(false);
}

/// The release may never come.
void SpectrumDrawViewBase::hideEvent(QHideEvent *event)
{
    EndDrag();
    QGraphicsView::hideEvent(event);
}
