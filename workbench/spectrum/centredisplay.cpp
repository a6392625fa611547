// SPDX-License-Identifier: GPL-3.0-or-later
#include "centredisplay.h"

CentreDisplay::CentreDisplay(QObject *parent)
    : DisplayModeUIManager(parent)
{
}

int CentreDisplay::GetCurrentDisplayMode() const
{
    return 0;
}

void CentreDisplay::CalculatePreviewArea() {}

void CentreDisplay::SetImageExpansionAreaFlag(bool) {}

void CentreDisplay::SetImageExpansionArea(const QString &) {}
