// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Style sheet of a panel's tabs, all of one size with a white line between them. Screen pixels.
QString TabBarStyleSheet(int height, int width, int border);
