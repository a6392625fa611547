// SPDX-License-Identifier: GPL-3.0-or-later
#include "specimenscene.h"

#include "valuenoise.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr int kSharpImages = 20;
constexpr int kBlurredImages = 4;
constexpr int kSharpCells = 84;
constexpr int kBlurredCells = 12;
constexpr double kPi = 3.14159265358979323846;
constexpr double kMediumLight = 0.055; // of unit radiance
constexpr double kCornerLoss = 0.38;   // of the illumination
constexpr double kWobblePixels = 2.5;
constexpr double kWobbleFrames = 90.0;

double Between(double low, double high, std::mt19937 &random)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

/// 1 at the middle of the sensor, less towards the corners.
double Illumination(double x, double y, const SceneFrame &frame)
{
    const double u = 2.0 * x / frame.sensorWidth - 1.0;
    const double v = 2.0 * y / frame.sensorHeight - 1.0;
    return std::max(0.0, 1.0 - kCornerLoss * (u * u + v * v) / 2.0);
}

double Wrapped(double position)
{
    const double rest = std::fmod(position, double(SpecimenScene::WorldSide));
    return rest < 0 ? rest + SpecimenScene::WorldSide : rest;
}

/// First tile copy of an image at or after `first` that still reaches right of (below) it.
int FirstCopy(int position, int side, int first)
{
    const int world = SpecimenScene::WorldSide;
    int copy = position;
    while (copy + side > first)
        copy -= world;
    return copy + world;
}

void AddRow(const quint16 *image, int count, quint32 brightness256, quint16 *light)
{
    for (int i = 0; i < count; ++i) {
        const quint32 sum = light[i] + ((image[i] * brightness256) >> 8);
        light[i] = quint16(sum < 65535u ? sum : 65535u);
    }
}
} // namespace

SpecimenScene::SpecimenScene(quint32 seed)
    : m_readout(seed)
    , m_seed(seed)
{
    PlaceCells(seed);
}

QString SpecimenScene::SceneName() { return QStringLiteral("specimen"); }

QString SpecimenScene::Name() const { return SceneName(); }

void SpecimenScene::PlaceCells(quint32 seed)
{
    std::mt19937 random(seed);
    for (int i = 0; i < kSharpImages + kBlurredImages; ++i) {
        const bool inFocus = i < kSharpImages;
        m_images.emplace_back(inFocus ? Between(48, 86, random) : Between(90, 120, random), inFocus, random);
    }
    for (int i = 0; i < kSharpCells + kBlurredCells; ++i) {
        const bool inFocus = i < kSharpCells;
        Cell cell;
        cell.image = inFocus ? i % kSharpImages : kSharpImages + i % kBlurredImages;
        cell.x = Between(0, WorldSide, random);
        cell.y = Between(0, WorldSide, random);
        cell.driftX = Between(-0.25, 0.25, random);
        cell.driftY = Between(-0.25, 0.25, random);
        cell.wobblePhase = Between(0, 2 * kPi, random);
        cell.brightness = inFocus ? Between(0.5, 1.25, random) : Between(0.3, 0.6, random);
        m_cells.push_back(cell);
    }
}

void SpecimenScene::PrepareBackground(const SceneFrame &frame)
{
    const std::array<int, 6> region = { frame.offsetX, frame.offsetY,     frame.width,
                                        frame.height,  frame.sensorWidth, frame.sensorHeight };
    if (!m_background.empty() && region == m_region)
        return;
    m_region = region;

    const ValueNoise haze(m_seed);
    m_background.resize(size_t(frame.width) * size_t(frame.height));
    auto out = m_background.begin();
    for (int row = 0; row < frame.height; ++row) {
        const int y = frame.offsetY + row;
        for (int column = 0; column < frame.width; ++column) {
            const int x = frame.offsetX + column;
            const double light = kMediumLight * (0.6 + 0.8 * haze.At(x / 300.0, y / 300.0));
            *out++ = quint16(light * Illumination(x, y, frame) * SensorReadout::UnitRadiance);
        }
    }
}

void SpecimenScene::AddImage(const SceneFrame &frame, const CellImage &image, CellImage::Stain stain,
                             int left, int top, double brightness)
{
    const int lastRow = std::min(image.Side(), frame.height - top);
    for (int row = std::max(0, -top); row < lastRow; ++row) {
        const CellImage::Span lit = image.LitSpan(row);
        const int first = std::max(lit.first, -left);
        const int last = std::min(lit.last, frame.width - left);
        if (first < last)
            AddRow(image.Row(stain, row) + first, last - first, quint32(brightness * 256.0),
                   m_light.data() + qptrdiff(top + row) * frame.width + left + first);
    }
}

void SpecimenScene::DrawCell(const SceneFrame &frame, const Cell &cell, CellImage::Stain stain)
{
    const CellImage &image = m_images[size_t(cell.image)];
    const double wobble = 2.0 * kPi * double(frame.frameNumber) / kWobbleFrames + cell.wobblePhase;
    const double x =
        Wrapped(cell.x + cell.driftX * double(frame.frameNumber) + kWobblePixels * std::cos(wobble));
    const double y =
        Wrapped(cell.y + cell.driftY * double(frame.frameNumber) + kWobblePixels * std::sin(wobble));
    const int left = int(std::lround(x)) - image.Side() / 2;
    const int top = int(std::lround(y)) - image.Side() / 2;

    for (int copyY = FirstCopy(top, image.Side(), frame.offsetY); copyY < frame.offsetY + frame.height;
         copyY += WorldSide) {
        for (int copyX = FirstCopy(left, image.Side(), frame.offsetX); copyX < frame.offsetX + frame.width;
             copyX += WorldSide) {
            const int middle = image.Side() / 2;
            const double light = cell.brightness * Illumination(copyX + middle, copyY + middle, frame);
            AddImage(frame, image, stain, copyX - frame.offsetX, copyY - frame.offsetY, light);
        }
    }
}

void SpecimenScene::DrawChannel(const SceneFrame &frame, CellImage::Stain stain, int channel)
{
    m_light = m_background;
    for (const Cell &cell : m_cells)
        DrawCell(frame, cell, stain);

    const SensorReadout::Settings settings = SensorReadout::SettingsFor(frame);
    for (int row = 0; row < frame.height; ++row)
        m_readout.ReadRow(m_light.data() + qptrdiff(row) * frame.width, frame, settings, row, channel);
}

void SpecimenScene::Fill(const SceneFrame &frame)
{
    PrepareBackground(frame);
    if (!frame.isColour) {
        DrawChannel(frame, CellImage::Mixed, 0);
        return;
    }
    DrawChannel(frame, CellImage::Red, 0);
    DrawChannel(frame, CellImage::Green, 1);
    DrawChannel(frame, CellImage::Blue, 2);
}
