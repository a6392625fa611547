// SPDX-License-Identifier: GPL-3.0-or-later
#include "liveframesize.h"

LiveFrameSize::LiveFrameSize(QObject *parent)
    : FrameManager(parent)
{
}

quint16 LiveFrameSize::GetFrameWidth() const
{
    return quint16(m_size.width());
}

quint16 LiveFrameSize::GetFrameHeight() const
{
    return quint16(m_size.height());
}

void LiveFrameSize::slotSetSize(QSize size)
{
    m_size = size;
}
