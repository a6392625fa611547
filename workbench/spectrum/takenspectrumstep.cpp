// SPDX-License-Identifier: GPL-3.0-or-later
#include "takenspectrumstep.h"

TakenSpectrumStep::TakenSpectrumStep(const QString &what, const Spectrum &before, const Spectrum &after,
                                     const Setter &set)
    : QUndoCommand(what)
    , m_before(before)
    , m_after(after)
    , m_set(set)
{
}
