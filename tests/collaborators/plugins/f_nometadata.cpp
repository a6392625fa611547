// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtGlobal>

/// A shared library that is no plug-in.
extern "C" Q_DECL_EXPORT int Answer()
{
    return 42;
}
