// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Size of the current frame.
class GLOBALUI_SERVICES_EXPORT FrameManager : public QObject
{
    Q_OBJECT

public:
    static FrameManager *GetInstance();
    ~FrameManager() override;

    /// Pixels.
    virtual quint16 GetFrameWidth() const = 0;
    virtual quint16 GetFrameHeight() const = 0;

protected:
    explicit FrameManager(QObject *parent = nullptr);
};
