// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Automatic counting.
class GLOBALUI_SERVICES_EXPORT AutoCountManager : public QObject
{
    Q_OBJECT

public:
    static AutoCountManager *GetInstance();
    ~AutoCountManager() override;

    /// Counting is going on.
    virtual bool IsCounting() const = 0;

signals:
    void signalAutoCountDataChanged();

protected:
    explicit AutoCountManager(QObject *parent = nullptr);
};
