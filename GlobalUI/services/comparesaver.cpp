// SPDX-License-Identifier: GPL-3.0-or-later
#include "comparesaver.h"

CompareSaver::CompareSaver(QObject *parent)
    : QObject(parent)
{
}

CompareSaver::~CompareSaver() = default;
