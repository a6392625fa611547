// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scenariotest.h"

class QCustomPlot;

/// Base of what a person does with a spectrometer: the camera looks at the lamp, and no pixel of it is saturated.
class SpectrographScenario : public ScenarioTest
{
    Q_OBJECT

protected slots:
    void init() override;

protected:
    /// For spectra that are worked out in a thread of their own, on a busy machine too.
    static constexpr int waitMs = 20000;

    /// The plot that is seen; null when none is.
    QCustomPlot *Plot() const;
};
