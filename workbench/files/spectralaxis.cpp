// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectralaxis.h"

#include <cmath>

bool IsSteady(const QVector<double> &values, int *turn)
{
    const bool rises = !values.isEmpty() && values.last() > values.first();
    for (int i = 0; i < values.size(); ++i) {
        const bool goesOn = i == 0 || (rises ? values[i] > values[i - 1] : values[i] < values[i - 1]);
        if (std::isfinite(values[i]) && goesOn)
            continue;
        *turn = i;
        return false;
    }
    return true;
}
