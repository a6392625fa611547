// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumpipeline.h"

SpectrumPipeline::SpectrumPipeline(QObject *parent)
    : SpectrumManager(parent)
{
}

QList<QPointF> SpectrumPipeline::GetEndPointList() const
{
    return {};
}

QList<float> SpectrumPipeline::GetAngleList() const
{
    return {};
}

QList<float> SpectrumPipeline::GetDistanceList() const
{
    return {};
}

QList<QPoint> SpectrumPipeline::GetLinePointList() const
{
    return {};
}

QList<QRect> SpectrumPipeline::GetExtendRectList() const
{
    return {};
}

void SpectrumPipeline::ClearFocusInfo() {}
