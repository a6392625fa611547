// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <array>
#include <random>
#include <vector>

/// The light of one stained cell on a square of pixels: a textured body and a brighter nucleus, in focus or blurred.
/// Three stains (red vesicles, green body, blue nucleus) for a colour camera and their mix for a mono one.
class CellImage
{
public:
    enum Stain
    {
        Red,
        Green,
        Blue,
        Mixed,
        StainCount
    };

    /// Draws a cell of its own shape and texture; `radius` is its mean radius in pixels.
    CellImage(double radius, bool inFocus, std::mt19937 &random);

    int Side() const { return m_side; }
    /// Light of one row, SensorReadout::UnitRadiance being a bright nucleus.
    const quint16 *Row(Stain stain, int row) const { return m_light[stain].data() + qptrdiff(row) * m_side; }

    /// The columns of a row outside which all stains are dark: [first, last).
    struct Span
    {
        int first;
        int last;
    };
    Span LitSpan(int row) const { return m_litSpans[size_t(row)]; }

private:
    void Draw(double radius, bool inFocus, std::mt19937 &random);

    int m_side;
    std::array<std::vector<quint16>, StainCount> m_light;
    std::vector<Span> m_litSpans;
};
