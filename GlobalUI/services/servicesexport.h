// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#if defined(GLOBALUI_SERVICES_LIBRARY)
#define GLOBALUI_SERVICES_EXPORT Q_DECL_EXPORT
#else
#define GLOBALUI_SERVICES_EXPORT Q_DECL_IMPORT
#endif
