// SPDX-License-Identifier: GPL-3.0-or-later
#include "lxcamgpurender.h"

#include <QDebug>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QTime>

#include <memory>

namespace {

const char vertexShader[] = "attribute highp vec4 vertex;\n"
                            "attribute mediump vec2 texCoord;\n"
                            "varying mediump vec2 texc;\n"
                            "uniform mediump mat4 matrix;\n"
                            "void main(void)\n"
                            "{\n"
                            "    gl_Position = matrix * vertex;\n"
                            "    texc = texCoord;\n"
                            "}\n";

const char fragmentShader[] = "varying mediump vec2 texc;\n"
                              "uniform sampler2D texture;\n"
                              "void main(void)\n"
                              "{\n"
                              "    gl_FragColor = texture2D(texture, texc);\n"
                              "}\n";

// The drawn quad is the unit square of the second half: the projection maps its visible part onto
// the viewport, so one set of corners serves as position and as texture coordinate.
const float vertexData[16] = { -1, -1, 1, -1, -1, 1, 1, 1, //
                               0,  1,  1, 1,  0,  0, 1, 0 };
constexpr int unitSquareOffset = 32; // bytes
constexpr int unitSquareBytes = 32;
constexpr int cornerCount = 4;
static_assert(sizeof(vertexData) == unitSquareOffset + unitSquareBytes, "two squares");

constexpr int singleLevel = 1;

/// Makes a context current as long as it lives, then the one that was.
class CurrentContext
{
public:
    explicit CurrentContext(QOpenGLContext *context)
        : m_context(context)
        , m_previous(QOpenGLContext::currentContext())
    {
        if (m_previous == context)
            return;
        m_previousSurface = m_previous ? m_previous->surface() : nullptr;
        m_surface = std::make_unique<QOffscreenSurface>();
        m_surface->setFormat(context->format());
        m_surface->create();
        m_isCurrent = context->makeCurrent(m_surface.get());
    }
    ~CurrentContext()
    {
        if (!m_surface)
            return;
        if (m_previous)
            m_previous->makeCurrent(m_previousSurface);
        else
            m_context->doneCurrent();
    }
    Q_DISABLE_COPY(CurrentContext)

    bool IsCurrent() const { return m_isCurrent; }

private:
    QOpenGLContext *m_context;
    QOpenGLContext *m_previous;
    bool m_isCurrent = true;
    QSurface *m_previousSurface = nullptr;
    std::unique_ptr<QOffscreenSurface> m_surface;
};

} // namespace

LxCamGPURender::LxCamGPURender(QObject *parent)
    : QObject(parent)
    , m_texture(QOpenGLTexture::Target2D)
{
}

LxCamGPURender::~LxCamGPURender()
{
    qDebug("LxCamGPURender::~LxCamGPURender()");
    ReleaseGL();
}

void LxCamGPURender::SetComparing(bool comparing) { m_isComparing = comparing; }

void LxCamGPURender::SetRefreshOnError(bool refresh) { m_refreshOnError = refresh; }

void LxCamGPURender::InitializeGL()
{
    m_context = QOpenGLContext::currentContext();
    connect(m_context, &QOpenGLContext::aboutToBeDestroyed, this, &LxCamGPURender::ReleaseGL,
            Qt::UniqueConnection);

    initializeOpenGLFunctions();
    m_program.removeAllShaders();
    if (!InitShaderProgram())
        return;
    InitTexture();
    InitBuffer();
    SetAttributes();

    // Values above 1 are clamped: opaque white.
    glClearColor(68.0, 73.0, 86.0, 255.0);
    glEnable(GL_DEPTH_TEST);
    // What is painted next must not write into our vertex array.
    Unbind();
    qDebug("[LxCamGPURender]: initializeGL success!\n");
}

const char *LxCamGPURender::VertexShaderSource() const { return vertexShader; }

bool LxCamGPURender::InitShaderProgram()
{
    if (!m_program.addShaderFromSourceCode(QOpenGLShader::Vertex, VertexShaderSource()))
        return false;
    qDebug("addShaderFromSourceCode Vertex success");
    if (!m_program.addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentShader))
        return false;
    qDebug("addShaderFromSourceCode Fragment success");
    if (!m_program.link())
        return false;
    qDebug("shaderProgram link success");
    if (!m_program.bind())
        return false;
    qDebug("shaderProgram bind success");

    m_vertexLocation = m_program.attributeLocation("vertex");
    m_texCoordLocation = m_program.attributeLocation("texCoord");
    m_matrixLocation = m_program.uniformLocation("matrix");
    return CheckGLError("InitShaderProgram");
}

void LxCamGPURender::InitTexture()
{
    if (!m_texture.isCreated()) {
        glEnable(GL_TEXTURE_2D);
        m_texture.create();
        m_texture.setMinMagFilters(QOpenGLTexture::Nearest, QOpenGLTexture::Nearest);
        m_texture.setWrapMode(QOpenGLTexture::ClampToEdge);
    }
    CheckGLError("InitTexture");
}

void LxCamGPURender::InitBuffer()
{
    if (!m_vao.isCreated())
        m_vao.create();
    m_vao.bind();

    m_vbo.create();
    m_vbo.bind();
    m_vbo.allocate(vertexData, sizeof(vertexData));
    m_vbo.write(unitSquareOffset, vertexData + cornerCount * 2, unitSquareBytes);
    m_vbo.release();
    CheckGLError("InitGLBuffer");
}

void LxCamGPURender::SetAttributes()
{
    m_vbo.bind();
    m_program.setAttributeBuffer(m_vertexLocation, GL_FLOAT, unitSquareOffset, 2, 0);
    m_program.setAttributeBuffer(m_texCoordLocation, GL_FLOAT, unitSquareOffset, 2, 0);
    m_program.enableAttributeArray(m_vertexLocation);
    m_program.enableAttributeArray(m_texCoordLocation);
    m_vbo.release();
    CheckGLError("SetAttributes");
}

bool LxCamGPURender::CheckGLError(const QString &step)
{
    const GLenum error = glGetError();
    const QString outcome = error != GL_NO_ERROR ? " error: " + QString::number(error) : QString(" success");
    qDebug("%s", QString("[LxCamGPURender] " + step + outcome).toLocal8Bit().constData());
    return error == GL_NO_ERROR;
}

void LxCamGPURender::ResizeGL(int width, int height, const QRectF &viewRect)
{
    if (width != m_viewWidth || height != m_viewHeight) {
        m_viewWidth = width;
        m_viewHeight = height;
        qDebug("resizeGL width:%d, height:%d,time:%d", width, height, QTime::currentTime().msec());
        if (m_needFullUpload)
            m_viewRect = viewRect;
    }
    m_matrix.setToIdentity();
    m_matrix.ortho(float(viewRect.x()), float(viewRect.width()), float(viewRect.height()),
                   float(viewRect.y()), -1.0F, 1.0F);
}

void LxCamGPURender::PaintGL(const uchar *data, int width, int height, int channels)
{
    if (width != m_textureWidth || height != m_textureHeight || channels != m_textureChannels
        || m_textureLevels != singleLevel)
        m_needFullUpload = true;
    m_textureWidth = width;
    m_textureHeight = height;
    m_textureChannels = channels;
    m_textureLevels = singleLevel;
    m_frameData = data;
    if (!m_frameData) {
        qDebug("data NULL");
        return;
    }
    if (!IsContextCurrent() || !HandlePendingError() || !m_vbo.isCreated())
        return;

    if (m_vao.isCreated())
        m_vao.bind();
    else
        SetAttributes();

    glClearColor(68.0, 73.0, 86.0, 255.0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    m_program.bind();
    if (m_texture.isCreated())
        m_texture.bind();
    m_program.setUniformValue(m_matrixLocation, m_matrix);
    Upload(m_frameData);
    glDrawArrays(GL_TRIANGLE_STRIP, 0, cornerCount);
    Unbind();
    glFinish();
}

bool LxCamGPURender::HandlePendingError()
{
    const GLenum error = glGetError();
    if (error == GL_NO_ERROR)
        return true;
    if (m_isComparing) {
        qDebug("errcode :%d, paintGL isComparing = true", int(error));
        Unbind();
        return false;
    }
    qDebug("errcode :%d", int(error));
    if (!m_refreshOnError) {
        qDebug("errcode :%d, paintGL not refresh", int(error));
        return false;
    }
    m_needFullUpload = true;
    Unbind();
    InitializeGL();
    return true;
}

void LxCamGPURender::Upload(const uchar *data)
{
    const GLenum format = m_textureChannels == 3 ? GL_RGB : GL_LUMINANCE;
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1); // rows are packed, whatever their width
    if (m_needFullUpload) {
        m_needFullUpload = false;
        glTexImage2D(GL_TEXTURE_2D, 0, GLint(format), m_textureWidth, m_textureHeight, 0, format,
                     GL_UNSIGNED_BYTE, data);
    } else {
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, m_textureWidth, m_textureHeight, format, GL_UNSIGNED_BYTE,
                        data);
    }
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4); // as the paint engine expects it
}

void LxCamGPURender::Unbind()
{
    m_program.release();
    if (m_vao.isCreated())
        m_vao.release();
    if (m_texture.isCreated())
        m_texture.release();
}

void LxCamGPURender::ReleaseGL()
{
    if (!m_context)
        return;
    const CurrentContext current(m_context);
    m_context.clear();
    if (!current.IsCurrent())
        return; // a lost context: what is left in it ends with it
    m_vbo.destroy();
    m_vao.destroy();
    if (m_texture.isCreated())
        m_texture.destroy();
    m_program.removeAllShaders();
}

bool LxCamGPURender::IsContextCurrent() const
{
    return m_context && m_context == QOpenGLContext::currentContext();
}
