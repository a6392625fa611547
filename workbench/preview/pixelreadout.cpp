// SPDX-License-Identifier: GPL-3.0-or-later
#include "pixelreadout.h"

#include "liveorientation.h"
#include "livepreview.h"

#include <cmath>
#include <cstring>

PixelReadout::PixelReadout(const LivePreview *preview, const LiveOrientation *orientation, QObject *parent)
    : PixelInfoManager(parent)
    , m_preview(preview)
    , m_orientation(orientation)
{
    connect(preview, SIGNAL(signalPictureDelivered()), this, SLOT(slotPictureDelivered()));
}

void PixelReadout::slotUpdateMousePosition(QPointF scenePos)
{
    m_scenePos = scenePos;
    m_hasPosition = true;
    emit signalUpdatePixelInfo(scenePos, ValueAt(scenePos));
}

void PixelReadout::slotPictureDelivered()
{
    if (m_hasPosition)
        emit signalUpdatePixelInfo(m_scenePos, ValueAt(m_scenePos));
}

QString PixelReadout::ValueAt(const QPointF &scenePos) const
{
    const CameraFrame &frame = m_preview->ShownFrame();
    const Orientation orientation = m_orientation->Get();
    const QSize seenSize = orientation.Map(QSize(frame.width, frame.height));
    const QPoint seen(int(std::floor(scenePos.x())), int(std::floor(scenePos.y())));
    if (frame.IsNull() || !QRect(QPoint(0, 0), seenSize).contains(seen))
        return QString();

    const QPoint pixel = orientation.Inverse().Map(seen, seenSize);
    const uchar *sample = frame.Row(pixel.y()) + pixel.x() * BytesPerPixel(frame.layout);
    if (frame.layout == PixelLayout::Rgb8)
        return QString("(%1, %2, %3)").arg(sample[0]).arg(sample[1]).arg(sample[2]);
    if (frame.layout == PixelLayout::Mono8)
        return QString::number(*sample);
    quint16 value = 0;
    std::memcpy(&value, sample, sizeof value);
    return QString::number(value);
}
