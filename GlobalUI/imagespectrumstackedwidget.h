// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumstackedwidgetbase.h"

/// The spectrum page of an opened picture file.
class ImageSpectrumStackedWidget : public SpectrumStackedWidgetBase
{
    Q_OBJECT

public:
    explicit ImageSpectrumStackedWidget(QWidget *parent);

public slots:
    /// The user chose this part of the picture, in picture pixels.
    void slotNewArea(qreal xmin, qreal xmax, qreal ymin, qreal ymax);
    /// A spectrum file always starts horizontal.
    void slotOpenSpefile();
};
