// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "roimanager.h"

/// Selecting the region that the camera reads out. While it is checked the selection frame lies over
/// the live picture; the region drawn there goes to the preview. GUI thread.
class RegionOfInterest : public ROIManager
{
    Q_OBJECT

public:
    explicit RegionOfInterest(QObject *parent = nullptr);

    bool IsROIChecked() const override;
    void SetManualROIChecked(bool checked) override;

public slots:
    void slotStopManualROI() override;
    void slotScaleFactorChanged(double scaleFactor) override;

signals:
    void signalCheckedChanged(bool checked);

private:
    bool m_checked = false;
};
