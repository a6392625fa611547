// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#if defined(GLOBALUI_LIBRARY)
#define GLOBALUI_EXPORT Q_DECL_EXPORT
#else
#define GLOBALUI_EXPORT Q_DECL_IMPORT
#endif
