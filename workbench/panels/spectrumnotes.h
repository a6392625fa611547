// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelfield.h"

#include <QCoreApplication>

/// How the spectrum is shown and what it is made of, as lines to be read.
class SpectrumNotes
{
    Q_DECLARE_TR_FUNCTIONS(SpectrumNotes)

public:
    static PanelFields Of();
    /// What positions in the spectrum stand for.
    static QString CalibrationText();

private:
    static QString ModeText();
    static QString BinningText();
};
