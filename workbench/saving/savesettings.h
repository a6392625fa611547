// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filesavemanager.h"

/// How captured frames are to be saved: no delay before a run, and to disk. GUI thread.
class SaveSettings : public FileSaveManager
{
    Q_OBJECT

public:
    explicit SaveSettings(QObject *parent = nullptr);

    int GetTimeInMs(const TIME_MIN_S_MS &time) const override;
    TIME_MIN_S_MS GetConfiguredTime() const override;
    bool IsSaveToRAM() const override;
};
