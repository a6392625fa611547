// SPDX-License-Identifier: GPL-3.0-or-later
#include "tabbarstyle.h"

QString TabBarStyleSheet(int height, int width, int border)
{
    return QString::asprintf("QTabBar::tab{ height: %d; width: %d; border-right: %dpx solid white;}", height,
                             width, border);
}
