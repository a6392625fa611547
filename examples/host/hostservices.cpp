// SPDX-License-Identifier: GPL-3.0-or-later
#include "hostservices.h"

int HostConfig::GetLeftStackedWidgetIndex() const
{
    switch (m_view) {
    case FileView:
        return FileSystemPage;
    case ImageView:
    case ImageCompareView:
        return ImageControlPage;
    default:
        return CameraControlPage;
    }
}

int HostConfig::GetCenterStackedWidgetIndex() const
{
    return GetLeftStackedWidgetIndex(); // the pages of both stacks stand in the same order
}

void HostConfig::SwitchTo(int view)
{
    if (view == FileView && m_view != FileView)
        m_viewBeforeFile = m_view;
    m_view = view;
    emit signalSwitchView();
}

bool HostPreview::StartPreview()
{
    if (!isRunning())
        start();
    return true;
}

bool HostPreview::StopPreview()
{
    requestInterruption();
    return wait();
}

void HostPreview::run()
{
    constexpr int Side = 512;
    for (int n = 0; !isInterruptionRequested(); ++n) {
        QImage frame(Side, Side, QImage::Format_Grayscale8);
        for (int y = 0; y < Side; ++y) {
            uchar *row = frame.scanLine(y);
            for (int x = 0; x < Side; ++x)
                row[x] = x / 32 == n % (Side / 32) ? 255 : uchar(y / 2);
        }
        emit signalPreviewImage(frame);
        msleep(40);
    }
}
