// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qwt3d_enrichment.h>

#include <vector>

namespace Qwt3D {

/// Lines in a 3D plot, in the plot's coordinates. Configure it and add it to the plot, which keeps and
/// owns a copy and draws that one.
class Line3D : public VertexEnrichment
{
public:
    void configure(double width, bool smooth);
    void setLines(std::vector<TripleField> lines, const RGBA &color);
    const std::vector<TripleField> &lines() const { return m_lines; }

    Enrichment *clone() const override { return new Line3D(*this); }
    void drawBegin() override;
    /// The mesh of the plot's data is not what is drawn.
    void draw(const Triple &) override {}

private:
    void drawStrips(double width) const;

    std::vector<TripleField> m_lines;
    RGBA m_color;
    double m_width = 1.0; ///< pixels
    bool m_smooth = false;
};

} // namespace Qwt3D
