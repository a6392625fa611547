// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// The part of the thumbnail list that saves a comparison.
class GLOBALUI_SERVICES_EXPORT CompareSaver : public QObject
{
    Q_OBJECT

public:
    ~CompareSaver() override;

signals:
    void signalSaveCompare();

protected:
    explicit CompareSaver(QObject *parent = nullptr);
};
