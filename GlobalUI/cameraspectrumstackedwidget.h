// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumstackedwidgetbase.h"

/// The spectrum page of the live camera.
class CameraSpectrumStackedWidget : public SpectrumStackedWidgetBase
{
    Q_OBJECT

public:
    explicit CameraSpectrumStackedWidget(QWidget *parent);

public slots:
    /// The user chose this part of the picture, in picture pixels.
    void SlotNewArea(qreal xmin, qreal xmax, qreal ymin, qreal ymax);
    /// Another use area begins without focus assistance, FVB and multi-track.
    void SlotUpdateUseArea();

private:
    void ConnectSpectrumView();
    void ConnectPlot2D();
};
