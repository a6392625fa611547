// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportmanager.h"

ReportManager::ReportManager(QObject *parent)
    : QObject(parent)
{
}

ReportManager::~ReportManager() = default;

QPoint ReportManager::GetMousePosition() const
{
    return m_mousePosition;
}

void ReportManager::SetMousePosition(const QPoint &scenePos)
{
    m_mousePosition = scenePos;
}

float ReportManager::GetScaleFactor() const
{
    return m_scaleFactor;
}

void ReportManager::SetScaleFactor(float scaleFactor)
{
    m_scaleFactor = scaleFactor;
}
