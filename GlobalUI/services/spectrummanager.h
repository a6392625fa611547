// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QList>
#include <QPoint>
#include <QPointF>
#include <QRect>

/// The spectrum pipeline: binned lines, tracks and focus-assistance geometry (picture pixels).
class GLOBALUI_SERVICES_EXPORT SpectrumManager : public QObject
{
    Q_OBJECT

public:
    static SpectrumManager *GetInstance();
    ~SpectrumManager() override;

    virtual QList<QPointF> GetEndPointList() const = 0;
    virtual QList<float> GetAngleList() const = 0;
    virtual QList<float> GetDistanceList() const = 0;
    virtual QList<QPoint> GetLinePointList() const = 0;
    virtual QList<QRect> GetExtendRectList() const = 0;
    virtual void ClearFocusInfo() = 0;

signals:
    void SignalSpectralineFVB();
    void SignalSpectralineAutoDetectFinish();
    /// SpectrumLinePayloads, emitted from the pipeline's thread; receivers connect queued.
    void SignalUpdateFVB(void *payload);
    void SignalUpdateMultiTrack(void *payload);

protected:
    explicit SpectrumManager(QObject *parent = nullptr);
};
