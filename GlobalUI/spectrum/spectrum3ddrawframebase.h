// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "globalnotify.h"

#include <QWidget>

class Spectrum3DDrawViewBase;

/// The page with the 3D plot; the plot's view fills it. Its stack makes it when it is first wanted.
class Spectrum3DDrawFrameBase : public QWidget, private LxObserver
{
    Q_OBJECT

public:
    explicit Spectrum3DDrawFrameBase(QWidget *parent);

signals:
    void SignalUpdateMultiTrack(void *param);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void UpdateObserver(int, void *) override {}

    Spectrum3DDrawViewBase *m_view;
};
