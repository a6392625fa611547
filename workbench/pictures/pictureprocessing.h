// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "advancedprocessmanager.h"

/// Processing that makes new pictures from several. GUI thread.
class PictureProcessing : public AdvancedProcessManager
{
    Q_OBJECT

public:
    explicit PictureProcessing(QObject *parent = nullptr);

public slots:
    void slotMergeImages(QList<QString> fileNames) override;

signals:
    /// These files are to become one; the user says where to.
    void signalMergeWanted(QStringList paths);
};
