// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrummanager.h"

/// The spectrum pipeline, which finds no lines yet: every list is empty. GUI thread.
class SpectrumPipeline : public SpectrumManager
{
    Q_OBJECT

public:
    explicit SpectrumPipeline(QObject *parent = nullptr);

    QList<QPointF> GetEndPointList() const override;
    QList<float> GetAngleList() const override;
    QList<float> GetDistanceList() const override;
    QList<QPoint> GetLinePointList() const override;
    QList<QRect> GetExtendRectList() const override;
    void ClearFocusInfo() override;
};
