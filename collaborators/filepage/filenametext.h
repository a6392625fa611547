// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A file name on one line: line breaks and other control characters are shown as marks.
Q_DECL_EXPORT QString FileNameText(const QString &name);
