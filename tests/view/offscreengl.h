// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>

#include <memory>

/// An OpenGL context of its own that draws into a buffer of 8 x 4 pixels, current when made.
class OffscreenGL
{
public:
    OffscreenGL();
    ~OffscreenGL();

    bool IsValid() const { return m_buffer != nullptr; }
    bool MakeCurrent() { return m_context.makeCurrent(&m_surface); }
    QOpenGLFunctions *gl() { return m_context.functions(); }
    QImage Picture() const;
    /// The only texture beside the buffer's own that lives in this context, left bound; 0 for none.
    GLuint BindFrameTexture();
    /// Of the largest level of the texture that is bound.
    GLint BoundTexture(GLenum parameter);
    /// The only array buffer that lives in this context.
    QByteArray VertexBytes();
    /// The source of each shader of the only program that lives in this context.
    QStringList ShaderSources();
    void LeaveErrorPending() { gl()->glEnable(0xffff); }

private:
    QOffscreenSurface m_surface;
    QOpenGLContext m_context;
    std::unique_ptr<QOpenGLFramebufferObject> m_buffer;
};
