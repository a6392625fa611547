// SPDX-License-Identifier: GPL-3.0-or-later
#include "line3d.h"

#include <qwt3d_io_gl2ps.h>

#include <algorithm>
#include <utility>

namespace Qwt3D {

namespace {

/// The lines go into a drawing instead of pixels.
bool IsVectorOutput()
{
    GLint mode = GL_RENDER;
    glGetIntegerv(GL_RENDER_MODE, &mode);
    return mode == GL_FEEDBACK;
}

} // namespace

void Line3D::configure(double width, bool smooth)
{
    m_width = width;
    m_smooth = smooth;
}

void Line3D::setLines(std::vector<TripleField> lines, const RGBA &color)
{
    m_lines = std::move(lines);
    m_color = color;
}

void Line3D::drawBegin()
{
    glPushAttrib(GL_ENABLE_BIT | GL_LINE_BIT | GL_CURRENT_BIT | GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glColor4d(m_color.r, m_color.g, m_color.b, m_color.a);
    glDisable(GL_LINE_SMOOTH);
    if (m_smooth && !IsVectorOutput()) {
        // A smoothed piece that is shorter than a pixel covers little of it and is faint: the line gets a
        // core that is not smoothed.
        drawStrips(m_width - 1.0);
        glDepthFunc(GL_LEQUAL);
        glEnable(GL_LINE_SMOOTH);
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }
    drawStrips(m_width);
    glPopAttrib();
}

void Line3D::drawStrips(double width) const
{
    setDeviceLineWidth(GLfloat(std::max(1.0, width))); // that of a drawing, too
    glEnableClientState(GL_VERTEX_ARRAY);
    for (const TripleField &line : m_lines) {
        if (line.empty())
            continue;
        glVertexPointer(3, GL_DOUBLE, sizeof(Triple), &line.front());
        glDrawArrays(GL_LINE_STRIP, 0, GLsizei(line.size()));
    }
    glDisableClientState(GL_VERTEX_ARRAY);
}

} // namespace Qwt3D
