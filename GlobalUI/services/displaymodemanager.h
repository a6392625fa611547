// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Announces the value ranges that the rulers show, live and for image files.
class GLOBALUI_SERVICES_EXPORT DisplayModeManager : public QObject
{
    Q_OBJECT

public:
    ~DisplayModeManager() override;

signals:
    void SignalChangeHShowValueRange(qreal min, qreal max);
    void SignalChangeVShowValueRange(qreal min, qreal max);
    void SignalImageChangeHShowValueRange(qreal min, qreal max);
    void SignalImageChangeVShowValueRange(qreal min, qreal max);

protected:
    explicit DisplayModeManager(QObject *parent = nullptr);
};
