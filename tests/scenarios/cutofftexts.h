// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QWidget;

/// What of `window` can be seen and is narrower than its text needs, with both widths in pixels.
QStringList CutOffTexts(const QWidget *window);
