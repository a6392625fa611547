// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QObject>
#include <QList>
#include <QString>

/// Processing that makes new pictures from several.
class GLOBALUI_SERVICES_EXPORT AdvancedProcessManager : public QObject
{
    Q_OBJECT

public:
    static AdvancedProcessManager *GetInstance();
    ~AdvancedProcessManager() override;

public slots:
    virtual void slotMergeImages(QList<QString> fileNames) = 0;

signals:
    /// A new picture; the record belongs to the sender and is valid during the call.
    void signalNewImageCopy(void *image);

protected:
    explicit AdvancedProcessManager(QObject *parent = nullptr);
};
