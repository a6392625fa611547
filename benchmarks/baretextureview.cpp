// SPDX-License-Identifier: GPL-3.0-or-later
#include "baretextureview.h"

#include <QApplication>

namespace {

const char VertexShader[] = "attribute highp vec2 corner;\n"
                            "varying mediump vec2 place;\n"
                            "void main(void)\n"
                            "{\n"
                            "    gl_Position = vec4(2.0 * corner.x - 1.0, 1.0 - 2.0 * corner.y, 0.0, 1.0);\n"
                            "    place = corner;\n"
                            "}\n";

const char FragmentShader[] = "varying mediump vec2 place;\n"
                              "uniform sampler2D frame;\n"
                              "void main(void)\n"
                              "{\n"
                              "    gl_FragColor = texture2D(frame, place);\n"
                              "}\n";

const float Corners[] = {0, 1, 1, 1, 0, 0, 1, 0};

} // namespace

BareTextureView::BareTextureView(QWidget *parent)
    : QOpenGLWidget(parent)
{
}

BareTextureView::~BareTextureView()
{
    makeCurrent();
    glDeleteTextures(1, &m_texture);
    m_program.removeAllShaders();
    doneCurrent();
}

void BareTextureView::Show(const QImage &frame)
{
    m_frame = frame;
    update();
    QApplication::processEvents();
}

void BareTextureView::initializeGL()
{
    initializeOpenGLFunctions();
    m_program.addShaderFromSourceCode(QOpenGLShader::Vertex, VertexShader);
    m_program.addShaderFromSourceCode(QOpenGLShader::Fragment, FragmentShader);
    m_program.bindAttributeLocation("corner", 0);
    m_program.link();
    glGenTextures(1, &m_texture);
    glBindTexture(GL_TEXTURE_2D, m_texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

void BareTextureView::paintGL()
{
    if (m_frame.isNull())
        return;
    const GLenum format = m_frame.format() == QImage::Format_RGB888 ? GL_RGB : GL_LUMINANCE;
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glBindTexture(GL_TEXTURE_2D, m_texture);
    if (m_textureSize != m_frame.size())
        glTexImage2D(GL_TEXTURE_2D, 0, GLint(format), m_frame.width(), m_frame.height(), 0, format,
                     GL_UNSIGNED_BYTE, m_frame.constBits());
    else
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, m_frame.width(), m_frame.height(), format, GL_UNSIGNED_BYTE,
                        m_frame.constBits());
    m_textureSize = m_frame.size();
    m_program.bind();
    m_program.enableAttributeArray(0);
    m_program.setAttributeArray(0, Corners, 2);
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    m_program.disableAttributeArray(0);
    m_program.release();
    glFinish();
}
