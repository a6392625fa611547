// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

class CameraLink;

/// Says in the middle of the live page that there is no camera, and what to do; hidden while one is
/// open or lost. Fills its parent and lets the mouse through. GUI thread.
class CameraNotice : public QLabel
{
    Q_OBJECT

public:
    /// `link` is borrowed and outlives this object.
    CameraNotice(const CameraLink *link, QWidget *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void slotCameraStateChanged();

private:
    const CameraLink *m_link;
};
