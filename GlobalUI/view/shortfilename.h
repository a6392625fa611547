// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A file name that fits the information panel: of a base name (up to the first point) longer than
/// 20 characters the first 16 and the last 4 stay, then the suffix (after the last point).
QString ShortFileName(const QString &fileName);
