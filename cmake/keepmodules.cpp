// SPDX-License-Identifier: GPL-3.0-or-later

/// Platform and OpenGL plug-ins that are unloaded at exit leave blocks behind that nobody can be
/// named for any more. Under the address sanitizer they stay loaded, so that the leak report shows
/// their names and the suppressions know them.
extern "C" __attribute__((visibility("default"))) int dlclose(void *)
{
    return 0;
}
