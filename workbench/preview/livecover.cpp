// SPDX-License-Identifier: GPL-3.0-or-later
#include "livecover.h"

#include "liveorientation.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QPen>
#include <QSettings>

namespace {

constexpr char kOpacityKey[] = "Cover/Opacity";
constexpr float kDefaultOpacity = 0.75F;

/// The darkness of a cover comes from outside: from the settings file, too.
float ValidOpacity(float opacity) { return opacity >= 0.0F && opacity <= 1.0F ? opacity : kDefaultOpacity; }

} // namespace

LiveCover::LiveCover(const LiveOrientation *orientation, QSettings *settings, QObject *parent)
    : CoverConfigManager(parent)
    , m_orientation(orientation)
    , m_settings(settings)
    , m_opacity(ValidOpacity(settings->value(kOpacityKey, kDefaultOpacity).toFloat()))
{
    connect(orientation, SIGNAL(signalOrientationChanged()), this, SLOT(slotOrientationChanged()));
}

LiveCover::~LiveCover()
{
    if (m_scene)
        delete m_item;
}

void LiveCover::ShowIn(QGraphicsScene *scene)
{
    if (m_scene)
        delete m_item;
    m_scene = scene;
    m_item = scene ? scene->addRect(QRectF(), QPen(Qt::NoPen), Qt::black) : nullptr;
    LayItem();
}

QRect LiveCover::Rect() const { return HasCover() ? m_orientation->Get().Map(m_part, m_frameSize) : QRect(); }

void LiveCover::SetOpacity(float opacity)
{
    m_opacity = ValidOpacity(opacity);
    m_settings->setValue(kOpacityKey, m_opacity);
    emit signalSetOpacity(m_opacity);
    LayItem();
    emit signalChanged();
}

void LiveCover::ResetCover()
{
    slotSetDrawing(false);
    m_part = QRect();
    ShowCover();
}

void LiveCover::slotSetDrawing(bool drawing)
{
    if (m_isDrawing == drawing)
        return;
    m_isDrawing = drawing;
    if (drawing)
        emit signalSetOpacity(m_opacity); // the frame came after the settings were read
    emit signalSetCoverFrameVisible(drawing);
    LayItem();
    emit signalChanged();
}

/// Left without a new one: the cover is what it was.
void LiveCover::slotStopManualCover()
{
    slotSetDrawing(false);
    ShowCover();
}

void LiveCover::slotManualCoverFinished(QRect rect)
{
    const Orientation orientation = m_orientation->Get();
    const QSize seenSize = orientation.Map(m_frameSize);
    m_part = orientation.Inverse().Map(rect.intersected(QRect(QPoint(0, 0), seenSize)), seenSize);
    slotSetDrawing(false);
    ShowCover();
}

/// The cover lies in picture pixels, which the view scales.
void LiveCover::slotScaleFactorChanged(double) {}

void LiveCover::slotSetPictureSize(QSize size)
{
    const QSize frameSize = m_orientation->Get().Inverse().Map(size);
    if (frameSize == m_frameSize)
        return;
    m_frameSize = frameSize;
    ResetCover();
}

void LiveCover::slotOrientationChanged() { ShowCover(); }

/// Tells the frame, which edits the cover when it is drawn anew, and lays it into the picture.
void LiveCover::ShowCover()
{
    emit signalFinishFillCover(Rect());
    LayItem();
    emit signalChanged();
}

void LiveCover::LayItem()
{
    if (!m_scene)
        return;
    m_item->setRect(Rect());
    m_item->setOpacity(m_opacity);
    m_item->setVisible(HasCover() && !m_isDrawing); // the frame shows the cover while it is drawn
}
