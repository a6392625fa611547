// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>

/// Composes fluorescence channels into one picture.
class GLOBALUI_SERVICES_EXPORT FluorescenceSynthesisManager : public QObject
{
    Q_OBJECT

public:
    static FluorescenceSynthesisManager *GetInstance();
    ~FluorescenceSynthesisManager() override;

signals:
    /// A new picture; the record belongs to the sender and is valid during the call.
    void signalNewImageCopy(void *image);

protected:
    explicit FluorescenceSynthesisManager(QObject *parent = nullptr);
};
