// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cellimage.h"
#include "scene.h"
#include "sensorreadout.h"

#include <array>
#include <vector>

/// Living cells under a fluorescence microscope: they drift slowly, some lie out of focus, the illumination falls off
/// towards the corners. The culture repeats every WorldSide pixels, so that a sensor of any size is covered.
class SpecimenScene : public Scene
{
public:
    static constexpr int WorldSide = 2304;

    explicit SpecimenScene(quint32 seed);

    static QString SceneName();

    QString Name() const override;
    void Fill(const SceneFrame &frame) override;

private:
    struct Cell
    {
        int image; ///< index into m_images
        double x;  ///< centre at frame 0, world pixels
        double y;
        double driftX; ///< pixels a frame
        double driftY;
        double wobblePhase;
        double brightness;
    };

    void PlaceCells(quint32 seed);
    void PrepareBackground(const SceneFrame &frame);
    void DrawChannel(const SceneFrame &frame, CellImage::Stain stain, int channel);
    void DrawCell(const SceneFrame &frame, const Cell &cell, CellImage::Stain stain);
    void AddImage(const SceneFrame &frame, const CellImage &image, CellImage::Stain stain, int left, int top,
                  double brightness);

    SensorReadout m_readout;
    quint32 m_seed;
    std::vector<CellImage> m_images;
    std::vector<Cell> m_cells;
    std::vector<quint16> m_background; ///< unstained medium under the illumination, for one region
    std::vector<quint16> m_light;      ///< the channel being drawn
    std::array<int, 6> m_region = {};  ///< what m_background was drawn for
};
