// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#if defined(WORKBENCH_PANELSERVICES_LIBRARY)
#define WORKBENCH_PANELSERVICES_EXPORT Q_DECL_EXPORT
#else
#define WORKBENCH_PANELSERVICES_EXPORT Q_DECL_IMPORT
#endif
