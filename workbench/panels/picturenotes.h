// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelfield.h"

#include <QCoreApplication>

/// What the picture is that is worked on, as lines to be read.
class PictureNotes
{
    Q_DECLARE_TR_FUNCTIONS(PictureNotes)

public:
    static PanelFields Of(const QString &group);
    /// It is the live one.
    static bool IsLive();
};
