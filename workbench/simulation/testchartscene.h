// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scene.h"

#include <QRgb>

/// A noise-free chart whose every sample is known; exposure, gain and time leave it as it is.
///
/// 8 x 8 flat patches cover the sensor, numbered p = 0..63 row by row from the top left; pixel (x, y) is in
/// patch column x * 8 / width and row y * 8 / height (whole-number division).
/// - Mono: a patch has the value p / 63 of full scale, rounded. Pixel (0, 0) alone is full scale on the dark first patch.
/// - Colour: a patch has the level (p + 1) / 64 of 255, rounded, in red (columns 0, 1), green (2, 3), blue (4, 5)
///   or all three (6, 7). Pixel (0, 0) is white.
/// The four corner patches differ, so that a mirrored or turned picture is told from a right one.
class TestChartScene : public Scene
{
public:
    static QString SceneName();
    static quint16 ExpectedValue(int x, int y, int width, int height, int bitDepth);
    static QRgb ExpectedColour(int x, int y, int width, int height);

    QString Name() const override;
    void Fill(const SceneFrame &frame) override;
};
