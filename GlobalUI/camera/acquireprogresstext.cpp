// SPDX-License-Identifier: GPL-3.0-or-later
#include "acquireprogresstext.h"

QString CountOfTotalText(int count, int total)
{
    return QString::number(count) + " / " + QString::number(total);
}

QString MinutesAndSecondsText(int seconds)
{
    return QString::asprintf("%02d : %02d", seconds / 60, seconds % 60);
}

QString MinutesAndSecondsText(int seconds, int limitSeconds)
{
    return MinutesAndSecondsText(seconds) + " / " + MinutesAndSecondsText(limitSeconds);
}
