// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "spectrummanager.h"

class FakeSpectrumManager : public SpectrumManager
{
public:
    QList<QPointF> endPointList;
    QList<float> angleList;
    QList<float> distanceList;
    QList<QPoint> linePointList;
    QList<QRect> extendRectList;

    QList<QPointF> GetEndPointList() const override { return endPointList; }
    QList<float> GetAngleList() const override { return angleList; }
    QList<float> GetDistanceList() const override { return distanceList; }
    QList<QPoint> GetLinePointList() const override { return linePointList; }
    QList<QRect> GetExtendRectList() const override { return extendRectList; }
    void ClearFocusInfo() override { CallLog::Add("SpectrumManager::ClearFocusInfo", {}); }
};
