// SPDX-License-Identifier: GPL-3.0-or-later

// Linked to when q_needslibrary is built, and not found when it is loaded.
const char *TextOfTheLamp();

const char *TextOfTheLamp()
{
    return "lamp";
}
