// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "globalclass.h"

#include <QFont>

/// The font of all texts in the 2D spectrum plot.
inline QFont PlotFont()
{
    QFont font("Segoe UI");
    font.setPixelSize(GlobalClass::GetActualSize(12));
    return font;
}
