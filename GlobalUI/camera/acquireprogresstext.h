// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// "42 / 500".
QString CountOfTotalText(int count, int total);
/// "01 : 15" for 75 seconds.
QString MinutesAndSecondsText(int seconds);
/// "01 : 15 / 10 : 00" for 75 of 600 seconds.
QString MinutesAndSecondsText(int seconds, int limitSeconds);
