// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMatrix4x4>
#include <QObject>
#include <QOpenGLBuffer>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QOpenGLTexture>
#include <QOpenGLVertexArrayObject>
#include <QPointer>
#include <QRectF>

class QOpenGLContext;

/// Uploads camera frames as a texture and draws the visible part over the whole viewport. Serves the
/// one OpenGL context in which it was initialised; GUI thread, every drawing call with that context
/// current. Owned by its LxGPUDrawItem.
class LxCamGPURender : public QObject, protected QOpenGLFunctions
{
    Q_OBJECT

public:
    explicit LxCamGPURender(QObject *parent = nullptr);
    ~LxCamGPURender() override;

    /// On a pending GL error this frame is given up quietly.
    void SetComparing(bool comparing);
    /// On a pending GL error everything is rebuilt and drawing goes on; otherwise the frame is given up.
    void SetRefreshOnError(bool refresh);

    /// Builds shaders, texture and vertices. After a failure nothing is drawn.
    void InitializeGL();
    /// `viewRect` is the visible part of the picture: left, top, right, bottom as fractions of it.
    void ResizeGL(int width, int height, const QRectF &viewRect);
    /// `data`: packed rows of 8 bits per channel, or null. Three channels are RGB, all others grey.
    void PaintGL(const uchar *data, int width, int height, int channels);

    /// Whether the context it was initialised in is the current one.
    bool IsContextCurrent() const;

protected:
    virtual const char *VertexShaderSource() const;

private:
    /// Logs the step's outcome; true without a pending GL error.
    bool CheckGLError(const QString &step);
    bool InitShaderProgram();
    void InitTexture();
    void InitBuffer();
    void SetAttributes();
    /// Whether drawing goes on, in spite of a pending error.
    bool HandlePendingError();
    void Upload(const uchar *data);
    void Unbind();
    void ReleaseGL();

    QOpenGLShaderProgram m_program;
    QOpenGLTexture m_texture;
    QOpenGLVertexArrayObject m_vao;
    QOpenGLBuffer m_vbo;
    qint32 m_textureWidth = 0;
    qint32 m_textureHeight = 0;
    qint32 m_textureChannels = 0;
    qint32 m_textureLevels = 0;
    const uchar *m_frameData = nullptr;
    QMatrix4x4 m_matrix;
    qint32 m_matrixLocation = 0;
    qint32 m_vertexLocation = 0;
    qint32 m_texCoordLocation = 0;
    bool m_needFullUpload = true;
    qint32 m_viewWidth = 0;
    qint32 m_viewHeight = 0;
    bool m_refreshOnError = true;
    bool m_isComparing = false;
    QRectF m_viewRect;
    QPointer<QOpenGLContext> m_context;
};
