// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reportmanager.h"
#include "viewmeasuring.h"

/// Measurement and report state of the live picture: its size comes with the frames, and it has no
/// file. Owned by the services. GUI thread.
class LiveReport : public ReportManager
{
    Q_OBJECT

public:
    explicit LiveReport(QObject *parent = nullptr);

    /// Size of the picture as it is shown, turned and flipped.
    void SetImageSize(const QSize &size);

    void ClearAll() override;
    void LineProfileMouseMoveEvent(QMouseEvent *event) override;
    MeasureManager *GetMeasureManager() const override;
    QSize GetImageSize() const override;
    QString GetFileName() const override;

public slots:
    void slotFinishSetBrush() override;

private:
    ViewMeasuring *m_measuring;
    QSize m_imageSize;
};
