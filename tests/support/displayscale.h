// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QVariant>

/// While it lives, design sizes are scaled by this factor instead of the display's.
class DisplayScale
{
public:
    explicit DisplayScale(double scale) { qApp->setProperty("globalui.scale", scale); }
    ~DisplayScale() { qApp->setProperty("globalui.scale", QVariant()); }

private:
    Q_DISABLE_COPY(DisplayScale)
};
