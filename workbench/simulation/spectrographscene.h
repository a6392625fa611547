// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cosmicrays.h"
#include "darkcurrent.h"
#include "scene.h"
#include "sensorreadout.h"
#include "spectrographsettings.h"

#include <vector>

/// A mercury-argon calibration lamp seen through an imaging spectrograph: emission lines over the tracks of some
/// fibres, slightly tilted and bent (smile), on a sensor with dark current, hot pixels and now and then a cosmic ray.
/// SpectrographOptics knows exactly where the lines lie.
class SpectrographScene : public Scene
{
public:
    explicit SpectrographScene(quint32 seed, const SpectrographSettings &settings = SpectrographSettings());

    static QString SceneName();

    QString Name() const override;
    void Fill(const SceneFrame &frame) override;

private:
    void PrepareLight(const SceneFrame &frame);
    void AddLines(const SpectrographOptics &optics, const SceneFrame &frame, int row, double trackLight,
                  std::vector<float> &light) const;
    void KeepRow(const SceneFrame &frame, int row, const std::vector<float> &light);

    const SpectrographSettings m_settings;
    SensorReadout m_readout;
    DarkCurrent m_dark;
    CosmicRays m_cosmicRays;
    std::vector<quint16> m_light; ///< the region's light, kept while the region stays the same
    int m_region[6] = {};         ///< the region and sensor size that m_light was drawn for
};
