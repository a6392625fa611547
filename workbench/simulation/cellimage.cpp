// SPDX-License-Identifier: GPL-3.0-or-later
#include "cellimage.h"

#include "sensorreadout.h"
#include "valuenoise.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double kPi = 3.14159265358979323846;
constexpr double kBlurredEdge = 0.55; // how much of the radius the edge of an out-of-focus cell takes
constexpr double kSharpEdge = 0.12;

struct Spot
{
    double x;
    double y;
    double sigma;
    double light;
};

double Between(double low, double high, std::mt19937 &random)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

/// 1 inside, 0 outside, soft over `edge` around 1 - edge / 2.
double SoftInside(double distance, double edge)
{
    const double t = std::clamp((1.0 - distance) / edge, 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

/// The random numbers that make one cell differ from the next.
struct CellShape
{
    CellShape(double meanRadius, bool isInFocus, std::mt19937 &random)
        : radius(meanRadius)
        , edge(isInFocus ? kSharpEdge : kBlurredEdge)
        , detail(isInFocus ? 1.0 : 0.15)
        , direction(Between(0, 2 * kPi, random))
        , elongation(Between(1.1, 1.9, random))
        , texture(random())
    {
        for (int i = 0; i < 4; ++i) {
            lobes[i] = Between(0.02, 0.14, random) / (1.0 + 0.4 * i);
            phases[i] = Between(0, 2 * kPi, random);
        }
        nucleusX = Between(-0.15, 0.15, random) * radius;
        nucleusY = Between(-0.12, 0.12, random) * radius;
        nucleusRadius = Between(0.27, 0.36, random) * radius;
        nucleusStretch = Between(1.1, 1.45, random);
        const int nucleoli = isInFocus ? 3 : 0;
        for (int i = 0; i < nucleoli; ++i)
            dark.push_back({ nucleusX + Between(-0.5, 0.5, random) * nucleusRadius,
                             nucleusY + Between(-0.4, 0.4, random) * nucleusRadius, 0.13 * nucleusRadius,
                             0.55 });
        const int vesicles = isInFocus ? int(Between(10, 40, random)) : 0;
        for (int i = 0; i < vesicles; ++i) {
            const double angle = Between(0, 2 * kPi, random);
            const double distance = Between(0.35, 0.8, random) * radius;
            vesicle.push_back({ distance * std::cos(angle), distance * std::sin(angle),
                                Between(1.1, 2.2, random), Between(0.15, 0.6, random) });
        }
    }

    double Outline(double angle) const
    {
        double outline = 1.0;
        for (int i = 0; i < 4; ++i)
            outline += lobes[i] * std::cos((i + 2) * angle + phases[i]);
        return outline;
    }

    double radius;
    double edge;
    double detail; // 1: fine structure is seen
    double direction;
    double elongation;
    ValueNoise texture;
    double lobes[4];
    double phases[4];
    double nucleusX;
    double nucleusY;
    double nucleusRadius;
    double nucleusStretch;
    std::vector<Spot> dark;
    std::vector<Spot> vesicle;
};

double SpotLight(const std::vector<Spot> &spots, double x, double y)
{
    double light = 0;
    for (const Spot &spot : spots) {
        const double distance2 = (x - spot.x) * (x - spot.x) + (y - spot.y) * (y - spot.y);
        if (distance2 < 16.0 * spot.sigma * spot.sigma)
            light += spot.light * std::exp(-0.5 * distance2 / (spot.sigma * spot.sigma));
    }
    return light;
}

double BodyInside(const CellShape &cell, double x, double y)
{
    const double along = x / std::sqrt(cell.elongation);
    const double across = y * std::sqrt(cell.elongation);
    const double distance =
        std::hypot(along, across) / (cell.radius * cell.Outline(std::atan2(across, along)));
    return SoftInside(distance, 2.0 * cell.edge) * (0.35 + 0.65 * std::exp(-2.5 * distance * distance));
}

/// Body stain: clouds plus fibres that run along the cell.
double BodyLight(const CellShape &cell, double x, double y)
{
    const double clouds = cell.texture.CloudsAt(x / 14.0, y / 14.0);
    const double ridge = 1.0 - std::abs(2.0 * cell.texture.At(x / 40.0 + 100.0, y / 4.5) - 1.0);
    const double fibres = std::pow(ridge, 6.0);
    return 0.40 * (1.0 - cell.detail + cell.detail * (0.35 + 0.9 * clouds)) + 0.28 * cell.detail * fibres;
}

double NucleusLight(const CellShape &cell, double x, double y)
{
    const double distance =
        std::hypot((x - cell.nucleusX) / cell.nucleusStretch, (y - cell.nucleusY) * cell.nucleusStretch)
        / cell.nucleusRadius;
    const double inside = SoftInside(distance, 2.0 * cell.edge);
    if (inside <= 0)
        return 0;
    const double chromatin = 0.7 + 0.45 * cell.detail * cell.texture.CloudsAt(x / 6.0 + 500.0, y / 6.0);
    return inside * chromatin * std::max(0.0, 1.0 - SpotLight(cell.dark, x, y));
}

quint16 ToUnits(double light) { return quint16(std::min(light * SensorReadout::UnitRadiance, 65535.0)); }
} // namespace

CellImage::CellImage(double radius, bool inFocus, std::mt19937 &random)
    : m_side(2 * int(std::ceil(1.9 * radius)) + 1)
{
    for (std::vector<quint16> &light : m_light)
        light.assign(size_t(m_side) * size_t(m_side), 0);
    Draw(radius, inFocus, random);
}

void CellImage::Draw(double radius, bool inFocus, std::mt19937 &random)
{
    const CellShape cell(radius, inFocus, random);
    const double cosine = std::cos(cell.direction);
    const double sine = std::sin(cell.direction);
    const int middle = m_side / 2;

    size_t index = 0;
    for (int row = 0; row < m_side; ++row) {
        Span lit{ m_side, m_side };
        for (int column = 0; column < m_side; ++column, ++index) {
            const double x = cosine * (column - middle) + sine * (row - middle);
            const double y = cosine * (row - middle) - sine * (column - middle);
            const double inside = BodyInside(cell, x, y);
            if (inside <= 0)
                continue;
            lit = { std::min(lit.first, column), column + 1 };
            const double body = inside * BodyLight(cell, x, y);
            const double vesicles = inside * SpotLight(cell.vesicle, x, y);
            const double nucleus = NucleusLight(cell, x, y);
            m_light[Red][index] = ToUnits(0.12 * body + 2.2 * vesicles);
            m_light[Green][index] = ToUnits(1.3 * body);
            m_light[Blue][index] = ToUnits(nucleus + 0.05 * body);
            m_light[Mixed][index] = ToUnits(1.25 * body + vesicles + 0.7 * nucleus);
        }
        m_litSpans.push_back(lit);
    }
}
