// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QColor>
#include <QRectF>
#include <QVector>

/// Live row and column profiles through a picked point.
class GLOBALUI_SERVICES_EXPORT IntensityManager : public QObject
{
    Q_OBJECT

public:
    static IntensityManager *GetInstance();
    ~IntensityManager() override;

    /// The picked point in picture pixels and the visible part of the image (fractions: left, top,
    /// right, bottom).
    virtual void SetAnchorPoint(int x, int y, QRectF normalisedRect) = 0;

signals:
    /// A SpectrumCurvePayload. Emitted from the preview's thread; receivers connect queued.
    void SignalUpdateCurve(void *payload);
    void SignalPseudoColorsUpdate(const QVector<QColor> colors);

protected:
    explicit IntensityManager(QObject *parent = nullptr);
};
