// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Pixel depth and display levels of an open image, and what its intensity curves count.
class GLOBALUI_SERVICES_EXPORT ImageCore : public QObject
{
    Q_OBJECT

public:
    ~ImageCore() override;

    /// 1 for 8-bit, 2 for 16-bit data.
    virtual int GetDepth() const = 0;
    virtual int GetLeftLevel() const = 0;
    virtual int GetRightLevel() const = 0;
    /// The intensity curves are whole numbers: the samples times this, above 0. Of the curves that are being told, or were last.
    virtual double GetCurveFactor() const { return 1.0; }

protected:
    explicit ImageCore(QObject *parent = nullptr);
};
