// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "spectrumcorrections.h"

#include <QUndoCommand>

#include <functional>

/// Another dark or reference spectrum in place of the one before, which may be empty: there was none. GUI thread.
class TakenSpectrumStep : public QUndoCommand
{
public:
    using Setter = std::function<void(const Spectrum &)>;

    /// What `set` refers to is there as long as the stack is used.
    TakenSpectrumStep(const QString &what, const Spectrum &before, const Spectrum &after, const Setter &set);

    void undo() override { m_set(m_before); }
    void redo() override { m_set(m_after); }

private:
    const Spectrum m_before;
    const Spectrum m_after;
    const Setter m_set;
};
