// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QPointF>
#include <QString>

/// Reads the pixel value under the mouse.
class GLOBALUI_SERVICES_EXPORT PixelInfoManager : public QObject
{
    Q_OBJECT

public:
    static PixelInfoManager *GetInstance();
    ~PixelInfoManager() override;

public slots:
    /// `scenePos` in picture pixels.
    virtual void slotUpdateMousePosition(QPointF scenePos) = 0;

signals:
    /// A grey value, or a colour triple in brackets.
    void signalUpdatePixelInfo(QPointF scenePos, QString info);

protected:
    explicit PixelInfoManager(QObject *parent = nullptr);
};
