// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "servicesexport.h"

#include <QString>

/// A file name on one line: line breaks and other control characters are shown as marks.
GLOBALUI_SERVICES_EXPORT QString FileNameText(const QString &name);
/// That of the file that a path leads to.
GLOBALUI_SERVICES_EXPORT QString FileNameTextOf(const QString &path);
