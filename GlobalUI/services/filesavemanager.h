// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include "timeminsms.h"

/// How captured frames are saved.
class GLOBALUI_SERVICES_EXPORT FileSaveManager : public QObject
{
    Q_OBJECT

public:
    static FileSaveManager *GetInstance();
    ~FileSaveManager() override;

    virtual int GetTimeInMs(const TIME_MIN_S_MS &time) const = 0;
    /// The delay set before a run.
    virtual TIME_MIN_S_MS GetConfiguredTime() const = 0;
    virtual bool IsSaveToRAM() const = 0;

protected:
    explicit FileSaveManager(QObject *parent = nullptr);
};
