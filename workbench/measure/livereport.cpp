// SPDX-License-Identifier: GPL-3.0-or-later
#include "livereport.h"

LiveReport::LiveReport(QObject *parent)
    : ReportManager(parent)
    , m_measuring(new ViewMeasuring(this))
{
}

void LiveReport::SetImageSize(const QSize &size)
{
    m_imageSize = size;
}

void LiveReport::ClearAll() {}

void LiveReport::LineProfileMouseMoveEvent(QMouseEvent *) {}

MeasureManager *LiveReport::GetMeasureManager() const
{
    return m_measuring;
}

QSize LiveReport::GetImageSize() const
{
    return m_imageSize;
}

QString LiveReport::GetFileName() const
{
    return QString();
}

void LiveReport::slotFinishSetBrush() {}
