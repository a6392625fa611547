// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QRect>

/// The cover: a part of the picture that is filled.
class GLOBALUI_SERVICES_EXPORT CoverConfigManager : public QObject
{
    Q_OBJECT

public:
    static CoverConfigManager *GetInstance();
    ~CoverConfigManager() override;

    virtual void ResetCover() = 0;

public slots:
    virtual void slotStopManualCover() = 0;
    /// In picture pixels.
    virtual void slotManualCoverFinished(QRect rect) = 0;
    virtual void slotScaleFactorChanged(double scaleFactor) = 0;

signals:
    void signalSetCoverFrameVisible(bool visible);
    void signalFinishFillCover(QRect rect);
    /// 0 to 1.
    void signalSetOpacity(float opacity);

protected:
    explicit CoverConfigManager(QObject *parent = nullptr);
};
