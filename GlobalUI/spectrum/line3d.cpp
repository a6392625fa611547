// SPDX-License-Identifier: GPL-3.0-or-later
#include "line3d.h"

#include <utility>

namespace Qwt3D {

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
    glPushAttrib(GL_ENABLE_BIT | GL_LINE_BIT | GL_CURRENT_BIT | GL_COLOR_BUFFER_BIT);
    if (m_smooth) {
        glEnable(GL_LINE_SMOOTH);
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }
    glLineWidth(GLfloat(m_width));
    glColor4d(m_color.r, m_color.g, m_color.b, m_color.a);
    glEnableClientState(GL_VERTEX_ARRAY);
    for (const TripleField &line : m_lines) {
        if (line.empty())
            continue;
        glVertexPointer(3, GL_DOUBLE, sizeof(Triple), &line.front());
        glDrawArrays(GL_LINE_STRIP, 0, GLsizei(line.size()));
    }
    glDisableClientState(GL_VERTEX_ARRAY);
    glPopAttrib();
}

} // namespace Qwt3D
