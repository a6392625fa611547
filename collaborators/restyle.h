// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

class QString;
class QWidget;

/// Gives a widget another object name, and with it the look that the style sheets have for that name.
/// Its own style sheet is emptied.
GLOBALUI_COLLABORATORS_EXPORT void RenameAndRestyle(QWidget *widget, const QString &objectName);
