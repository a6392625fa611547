// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Pixel depth and display levels of an open image.
class GLOBALUI_SERVICES_EXPORT ImageCore : public QObject
{
    Q_OBJECT

public:
    ~ImageCore() override;

    /// 1 for 8-bit, 2 for 16-bit data.
    virtual int GetDepth() const = 0;
    virtual int GetLeftLevel() const = 0;
    virtual int GetRightLevel() const = 0;

protected:
    explicit ImageCore(QObject *parent = nullptr);
};
