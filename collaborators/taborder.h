// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

#include <QVector>

class QWidget;

/// The Tab key goes through the first area, then through the next one, and so on; within each in the order it had. A
/// widget that was made or given to the window later would otherwise come behind everything else. The first area stays
/// where it is, and all are in one window.
GLOBALUI_COLLABORATORS_EXPORT void ChainTabOrder(const QVector<QWidget *> &areas);
