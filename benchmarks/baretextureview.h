// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QOpenGLWidget>

/// The least that OpenGL can do: uploads a frame into a texture of its own kind, draws it over the whole widget and
/// waits until it is drawn.
class BareTextureView : public QOpenGLWidget, private QOpenGLFunctions
{
public:
    explicit BareTextureView(QWidget *parent);
    ~BareTextureView() override;

    void Show(const QImage &frame);

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    QImage m_frame;
    QOpenGLShaderProgram m_program;
    GLuint m_texture = 0;
    QSize m_textureSize;
};
