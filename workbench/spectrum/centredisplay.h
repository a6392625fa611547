// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "displaymodeuimanager.h"

/// What the centre pages show: always the picture, since there is no spectrum page yet. GUI thread.
class CentreDisplay : public DisplayModeUIManager
{
    Q_OBJECT

public:
    explicit CentreDisplay(QObject *parent = nullptr);

    int GetCurrentDisplayMode() const override;
    void CalculatePreviewArea() override;
    void SetImageExpansionAreaFlag(bool valid) override;
    void SetImageExpansionArea(const QString &area) override;
};
