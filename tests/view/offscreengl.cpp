// SPDX-License-Identifier: GPL-3.0-or-later
#include "offscreengl.h"

#include <QtGui/qopengl.h>

namespace {

using GetTexLevelParameter = void(QOPENGLF_APIENTRYP)(GLenum, GLint, GLenum, GLint *);
using GetBufferSubData = void(QOPENGLF_APIENTRYP)(GLenum, qopengl_GLintptr, qopengl_GLsizeiptr, void *);

constexpr GLuint highestId = 100; // names are given out from 1

} // namespace

OffscreenGL::OffscreenGL()
{
    m_surface.create();
    if (!m_context.create() || !m_context.makeCurrent(&m_surface))
        return;
    m_buffer = std::make_unique<QOpenGLFramebufferObject>(8, 4, QOpenGLFramebufferObject::Depth);
    m_buffer->bind();
    gl()->glViewport(0, 0, 8, 4);
}

OffscreenGL::~OffscreenGL()
{
    m_buffer.reset();
    m_context.doneCurrent();
}

QImage OffscreenGL::Picture() const { return m_buffer->toImage().convertToFormat(QImage::Format_RGB888); }

GLuint OffscreenGL::BindFrameTexture()
{
    for (GLuint id = 1; id < highestId; ++id) {
        if (id != m_buffer->texture() && gl()->glIsTexture(id)) {
            gl()->glBindTexture(GL_TEXTURE_2D, id);
            return id;
        }
    }
    return 0;
}

GLint OffscreenGL::BoundTexture(GLenum parameter)
{
    const auto get =
        reinterpret_cast<GetTexLevelParameter>(m_context.getProcAddress("glGetTexLevelParameteriv"));
    GLint value = 0;
    get(GL_TEXTURE_2D, 0, parameter, &value);
    return value;
}

QByteArray OffscreenGL::VertexBytes()
{
    QByteArray bytes;
    for (GLuint id = 1; id < highestId && bytes.isEmpty(); ++id) {
        if (!gl()->glIsBuffer(id))
            continue;
        gl()->glBindBuffer(GL_ARRAY_BUFFER, id);
        GLint size = 0;
        gl()->glGetBufferParameteriv(GL_ARRAY_BUFFER, GL_BUFFER_SIZE, &size);
        bytes.resize(size);
        const auto get = reinterpret_cast<GetBufferSubData>(m_context.getProcAddress("glGetBufferSubData"));
        get(GL_ARRAY_BUFFER, 0, size, bytes.data());
        gl()->glBindBuffer(GL_ARRAY_BUFFER, 0);
    }
    return bytes;
}

QStringList OffscreenGL::ShaderSources()
{
    QStringList sources;
    for (GLuint id = 1; id < highestId && sources.isEmpty(); ++id) {
        if (!gl()->glIsProgram(id))
            continue;
        GLuint shaders[2];
        GLsizei count = 0;
        gl()->glGetAttachedShaders(id, 2, &count, shaders);
        for (GLsizei i = 0; i < count; ++i) {
            GLint length = 0;
            gl()->glGetShaderiv(shaders[i], GL_SHADER_SOURCE_LENGTH, &length);
            QByteArray source(length, '\0');
            gl()->glGetShaderSource(shaders[i], length, &length, source.data());
            sources << QString::fromLatin1(source.left(length));
        }
    }
    return sources;
}
