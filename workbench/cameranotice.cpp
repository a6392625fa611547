// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameranotice.h"

#include "cameralink.h"

#include <QEvent>

CameraNotice::CameraNotice(const CameraLink *link, QWidget *parent)
    : QLabel(parent)
    , m_link(link)
{
    setObjectName("labelCameraNotice");
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    parent->installEventFilter(this);
    connect(link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
    slotCameraStateChanged();
}

bool CameraNotice::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QLabel::eventFilter(watched, event);
}

void CameraNotice::slotCameraStateChanged()
{
    const CameraLink::State state = m_link->GetState();
    if (state == CameraLink::State::NoCamera)
        setText(tr("No camera is open.\nChoose one in the Camera menu."));
    else if (state == CameraLink::State::Opening)
        setText(tr("Opening the camera %1…").arg(m_link->Name()));
    setVisible(state == CameraLink::State::NoCamera || state == CameraLink::State::Opening);
    setGeometry(parentWidget()->rect());
    raise();
}
