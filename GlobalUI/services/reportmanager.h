// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QPoint>
#include <QSize>
#include <QString>

class MeasureManager;
class QMouseEvent;

/// Measurement and report state of one view. The draw view writes the mouse position and the scale
/// factor; the stack around it reads them.
class GLOBALUI_SERVICES_EXPORT ReportManager : public QObject
{
    Q_OBJECT

public:
    ~ReportManager() override;

    /// Removes all measurements.
    virtual void ClearAll() = 0;
    /// Feeds the line-profile tool.
    virtual void LineProfileMouseMoveEvent(QMouseEvent *event) = 0;
    virtual MeasureManager *GetMeasureManager() const = 0;
    /// Size of the picture shown, in pixels; empty without one.
    virtual QSize GetImageSize() const = 0;
    /// Name of the picture's file, without its folder; empty without one.
    virtual QString GetFileName() const = 0;

    /// Mouse position in picture pixels.
    QPoint GetMousePosition() const;
    void SetMousePosition(const QPoint &scenePos);
    /// 1.0 shows one picture pixel per screen pixel.
    float GetScaleFactor() const;
    void SetScaleFactor(float scaleFactor);

public slots:
    /// The picture asked for by signalSetBrush() is in the scene's background.
    virtual void slotFinishSetBrush() = 0;

signals:
    /// Asks the view to put its next picture into the scene's background, also when the GPU draws.
    void signalSetBrush();

protected:
    explicit ReportManager(QObject *parent = nullptr);

private:
    QPoint m_mousePosition;
    float m_scaleFactor = 1.0F;
};
