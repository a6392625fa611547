// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QString>

/// Whether the centre pages show the picture or a spectrum page, and the area shown there.
class GLOBALUI_SERVICES_EXPORT DisplayModeUIManager : public QObject
{
    Q_OBJECT

public:
    static DisplayModeUIManager *GetInstance();
    ~DisplayModeUIManager() override;

    /// 0 is the image page, anything else the spectrum page.
    virtual int GetCurrentDisplayMode() const = 0;
    virtual void CalculatePreviewArea() = 0;
    virtual void SetImageExpansionAreaFlag(bool valid) = 0;
    virtual void SetImageExpansionArea(const QString &area) = 0;

protected:
    explicit DisplayModeUIManager(QObject *parent = nullptr);
};
