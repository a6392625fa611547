// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCollator>

/// Orders names as people do: numbers by their value, capital letters beside small ones. One for one thread.
QCollator NameCollator();
