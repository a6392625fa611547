// SPDX-License-Identifier: GPL-3.0-or-later
#include "imagecore.h"

ImageCore::ImageCore(QObject *parent)
    : QObject(parent)
{
}

ImageCore::~ImageCore() = default;
