// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "coverconfigmanager.h"

#include <QPointer>
#include <QSize>

class LiveOrientation;
class QGraphicsRectItem;
class QGraphicsScene;
class QSettings;

/// The cover: a dark rectangle over a part of the live picture, so that a bright spot or a caption does not disturb the
/// eye. It lies on the screen only; samples that are measured or saved never know of it. It stays on the same part of the
/// sensor when the picture is turned or flipped, and goes with a picture of another size. Its opacity is kept in
/// the settings. GUI thread.
class LiveCover : public CoverConfigManager
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object.
    LiveCover(const LiveOrientation *orientation, QSettings *settings, QObject *parent = nullptr);
    ~LiveCover() override;

    /// The scene of the live picture, in picture pixels; the cover is laid into it.
    void ShowIn(QGraphicsScene *scene);
    /// The selection frame is up, and a cover can be drawn.
    bool IsDrawing() const { return m_isDrawing; }
    bool HasCover() const { return !m_part.isEmpty(); }
    /// In pixels of the picture as it is seen; empty without a cover.
    QRect Rect() const;
    /// 0 to 1.
    float Opacity() const { return m_opacity; }
    void SetOpacity(float opacity);
    void ResetCover() override;

public slots:
    void slotSetDrawing(bool drawing);
    void slotStopManualCover() override;
    void slotManualCoverFinished(QRect rect) override;
    void slotScaleFactorChanged(double scaleFactor) override;
    /// Of the picture as it is seen.
    void slotSetPictureSize(QSize size);

signals:
    void signalChanged();

private slots:
    void slotOrientationChanged();

private:
    void ShowCover();
    void LayItem();

    const LiveOrientation *m_orientation;
    QSettings *m_settings;
    QPointer<QGraphicsScene> m_scene;
    QGraphicsRectItem *m_item = nullptr; ///< the scene's
    QSize m_frameSize;                   ///< of the picture as the camera sends it
    QRect m_part;                        ///< the covered part of that
    float m_opacity;
    bool m_isDrawing = false;
};
