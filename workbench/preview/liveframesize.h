// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framemanager.h"

#include <QSize>

/// Size of the live picture as it is shown; 0 x 0 before the first frame. GUI thread.
class LiveFrameSize : public FrameManager
{
    Q_OBJECT

public:
    explicit LiveFrameSize(QObject *parent = nullptr);

    quint16 GetFrameWidth() const override;
    quint16 GetFrameHeight() const override;

public slots:
    void slotSetSize(QSize size);

private:
    QSize m_size = QSize(0, 0);
};
