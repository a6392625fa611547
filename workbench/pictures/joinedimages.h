// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// Two pictures of the screen side by side, in their own sizes, with a narrow gap: Grayscale8 when both are
/// grey, else RGB888. Null when there is no memory for it.
QImage JoinedImages(const QImage &left, const QImage &right);
