// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawframebase.h"

#include "drawviewbase.h"
#include "measuremanager.h"

#include <QMouseEvent>
#include <QScrollBar>

namespace {

/// The vertical scroll position is taken this much further in the direction of travel.
constexpr int verticalBias = 60;

} // namespace

DrawFrameBase::DrawFrameBase(QWidget *parent)
    : QScrollArea(parent)
{
    setAttribute(Qt::WA_MouseTracking);
    setFrameShape(QFrame::NoFrame); // the picture is fitted to all of the host
    m_drawView = new DrawViewBase(this);
    setWidget(m_drawView);

    connect(m_drawView, SIGNAL(signalMoveImage(QPointF)), this, SLOT(slotMoveImage(QPointF)));
    connect(m_drawView, SIGNAL(signalSetSliderPosition(QPointF)), this, SLOT(slotSetSliderPosition(QPointF)));
}

DrawFrameBase::~DrawFrameBase() = default;

void DrawFrameBase::MoveImage(QPointF delta)
{
    horizontalScrollBar()->setSliderPosition(int(horizontalScrollBar()->value() - delta.x()));
    verticalScrollBar()->setSliderPosition(int(verticalScrollBar()->value() - delta.y()));
}

void DrawFrameBase::SetSliderPosition(QPointF pos)
{
    horizontalScrollBar()->setSliderPosition(int(pos.x()));
    verticalScrollBar()->setSliderPosition(int(pos.y()));
}

void DrawFrameBase::SetCPUDraw(bool cpuFlag)
{
    const QPoint picturePos = PicturePosition();
    const Qt::ScrollBarPolicy policy = cpuFlag ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    setHorizontalScrollBarPolicy(policy);
    setVerticalScrollBarPolicy(policy);
    if (!cpuFlag)
        SetSliderPosition({ 0, 0 }); // from here on the view scrolls
    m_drawView->SetCPUDraw(cpuFlag);

    if (cpuFlag) {
        SetSliderPosition(picturePos);
    } else {
        m_drawView->slotHorizontalScrollBarValueChanged(picturePos.x());
        m_drawView->slotVerticalScrollBarValueChanged(picturePos.y());
    }
}

QPoint DrawFrameBase::PicturePosition() const
{
    return QPoint(horizontalScrollBar()->value() + m_drawView->horizontalScrollBar()->value(),
                  verticalScrollBar()->value() + m_drawView->verticalScrollBar()->value());
}

DrawViewBase *DrawFrameBase::GetDrawView() const { return m_drawView; }

void DrawFrameBase::slotMoveImage(QPointF point)
{
    horizontalScrollBar()->setSliderPosition(int(horizontalScrollBar()->sliderPosition() - point.x()));
    verticalScrollBar()->setSliderPosition(int(verticalScrollBar()->sliderPosition() - point.y()));
}

void DrawFrameBase::slotSetSliderPosition(QPointF point)
{
    horizontalScrollBar()->setSliderPosition(int(point.x()));
    const bool down = point.y() > verticalScrollBar()->sliderPosition();
    verticalScrollBar()->setSliderPosition(int(down ? point.y() + verticalBias : point.y() - verticalBias));
}

void DrawFrameBase::mouseMoveEvent(QMouseEvent *event)
{
    if (!MeasureManager::IsMeasuring())
        emit signalEnableScaleFactor(event->pos());
}

void DrawFrameBase::resizeEvent(QResizeEvent *)
{
    setAlignment(Qt::AlignCenter);
    UpdateScrollRanges();
}

void DrawFrameBase::UpdateScrollRanges()
{
    const QSize viewSize = m_drawView->size();
    const bool fitsWithoutBars = viewSize.boundedTo(maximumViewportSize()) == viewSize;
    const QSize window = fitsWithoutBars ? maximumViewportSize() : viewport()->size();
    horizontalScrollBar()->setRange(0, viewSize.width() - window.width());
    horizontalScrollBar()->setPageStep(window.width());
    verticalScrollBar()->setRange(0, viewSize.height() - window.height());
    verticalScrollBar()->setPageStep(window.height());
}
