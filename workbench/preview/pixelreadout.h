// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pixelinfomanager.h"

class LiveOrientation;
class LivePreview;

/// Reads the sample of the shown frame under the mouse, at full bit depth: "123" or "(r, g, b)".
/// Follows the frames while the mouse rests. GUI thread.
class PixelReadout : public PixelInfoManager
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object.
    PixelReadout(const LivePreview *preview, const LiveOrientation *orientation, QObject *parent = nullptr);

public slots:
    void slotUpdateMousePosition(QPointF scenePos) override;

private slots:
    void slotPictureDelivered();

private:
    QString ValueAt(const QPointF &scenePos) const;

    const LivePreview *m_preview;
    const LiveOrientation *m_orientation;
    QPointF m_scenePos;
    bool m_hasPosition = false;
};
