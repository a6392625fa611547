// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class SpectrumSettings;
struct SpectrumProduct;

/// Which corrections are on in what is on the screen, for the user: `live` is the newest spectrum of the camera. Changes
/// with SpectrumPipeline::signalSpectrumShown() and SpectrumSettings::signalDisplayModePropertyChange().
QString CorrectionsLine(const SpectrumSettings &settings, const SpectrumProduct &live);
