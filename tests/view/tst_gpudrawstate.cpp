// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "guardedtest.h"
#include "lxcamgpurender.h"
#include "offscreengl.h"

#include <QSet>
#include <QSignalBlocker>

#include <memory>

namespace {

constexpr GLenum textureWidth = 0x1000;
const QRectF wholePicture(0, 0, 1, 1);

const char vertexShader[] = "attribute highp vec4 vertex;\nattribute mediump vec2 texCoord;\n"
                            "varying mediump vec2 texc;\nuniform mediump mat4 matrix;\n"
                            "void main(void)\n{\n    gl_Position = matrix * vertex;\n"
                            "    texc = texCoord;\n}\n";
const char fragmentShader[] = "varying mediump vec2 texc;\nuniform sampler2D texture;\n"
                              "void main(void)\n{\n    gl_FragColor = texture2D(texture, texc);\n}\n";

/// The colours of all pixels of the buffer after it was cleared, with alpha.
QSet<QRgb> ClearColours(OffscreenGL *offscreen)
{
    offscreen->gl()->glClear(GL_COLOR_BUFFER_BIT);
    QByteArray pixels(8 * 4 * 4, '\0');
    offscreen->gl()->glReadPixels(0, 0, 8, 4, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    QSet<QRgb> colours;
    for (int i = 0; i < pixels.size(); i += 4)
        colours << qRgba(uchar(pixels[i]), uchar(pixels[i + 1]), uchar(pixels[i + 2]), uchar(pixels[i + 3]));
    return colours;
}

const QSet<QRgb> opaqueWhite{ qRgba(255, 255, 255, 255) };

} // namespace

/// What the renderer sets up in OpenGL, read back from it.
class TestGPUDrawState : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void clearsToOpaqueWhite();
    void depthTestIsOn();
    void textureShowsPixelsAsTheyAre();
    void enlargedPixelsHaveSharpEdges();
    void shadersAndVertices();
    void pendingErrorAllocatesTheTextureAnew();
    void lostContextIsLeftAlone();
    void otherContextStaysCurrent();
};

void TestGPUDrawState::clearsToOpaqueWhite()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    QCOMPARE(ClearColours(&offscreen), opaqueWhite);

    render.ResizeGL(8, 4, wholePicture);
    offscreen.gl()->glClearColor(0, 0, 0, 0);
    render.PaintGL(GreyPicture({ 8, 4 }).constBits(), 8, 4, 1);
    QCOMPARE(ClearColours(&offscreen), opaqueWhite);
}

void TestGPUDrawState::depthTestIsOn()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    offscreen.gl()->glDisable(GL_DEPTH_TEST);
    LxCamGPURender render;
    render.InitializeGL();
    QVERIFY(offscreen.gl()->glIsEnabled(GL_DEPTH_TEST));
}

void TestGPUDrawState::textureShowsPixelsAsTheyAre()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    QVERIFY(offscreen.BindFrameTexture() != 0);
    const auto parameter = [&](GLenum name) {
        GLint value = 0;
        offscreen.gl()->glGetTexParameteriv(GL_TEXTURE_2D, name, &value);
        return value;
    };
    QCOMPARE(parameter(GL_TEXTURE_MIN_FILTER), GL_NEAREST);
    QCOMPARE(parameter(GL_TEXTURE_MAG_FILTER), GL_NEAREST);
    QCOMPARE(parameter(GL_TEXTURE_WRAP_S), GL_CLAMP_TO_EDGE);
    QCOMPARE(parameter(GL_TEXTURE_WRAP_T), GL_CLAMP_TO_EDGE);
}

void TestGPUDrawState::enlargedPixelsHaveSharpEdges()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    // Three pixels over eight: at the middle of a screen pixel the picture pixel (x + 0.5) x 3 / 8.
    const uchar pixels[3] = { 10, 130, 250 };
    render.ResizeGL(8, 4, wholePicture);
    render.PaintGL(pixels, 3, 1, 1);
    const QImage picture = offscreen.Picture();
    const int expected[8] = { 10, 10, 10, 130, 130, 250, 250, 250 };
    for (int x = 0; x < 8; ++x)
        QCOMPARE(qRed(picture.pixel(x, 2)), expected[x]);
}

void TestGPUDrawState::shadersAndVertices()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    // Qt puts definitions of its own before a source.
    const QStringList sources = offscreen.ShaderSources();
    QCOMPARE(sources.size(), 2);
    QCOMPARE(sources.filter(QRegularExpression(QRegularExpression::escape(vertexShader) + "$")).size(), 1);
    QCOMPARE(sources.filter(QRegularExpression(QRegularExpression::escape(fragmentShader) + "$")).size(), 1);

    const float corners[16] = { -1, -1, 1, -1, -1, 1, 1, 1, 0, 1, 1, 1, 0, 0, 1, 0 };
    QCOMPARE(offscreen.VertexBytes(), QByteArray(reinterpret_cast<const char *>(corners), sizeof(corners)));
}

void TestGPUDrawState::pendingErrorAllocatesTheTextureAnew()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    render.ResizeGL(8, 4, wholePicture);
    render.PaintGL(GreyPicture({ 8, 4 }).constBits(), 8, 4, 1);
    // Twice as wide behind the renderer's back.
    QVERIFY(offscreen.BindFrameTexture() != 0);
    offscreen.gl()->glTexImage2D(GL_TEXTURE_2D, 0, GL_LUMINANCE, 16, 4, 0, GL_LUMINANCE, GL_UNSIGNED_BYTE,
                                 nullptr);
    offscreen.LeaveErrorPending();
    render.PaintGL(GreyPicture({ 8, 4 }, 1).constBits(), 8, 4, 1);
    offscreen.BindFrameTexture();
    QCOMPARE(offscreen.BoundTexture(textureWidth), 8);
}

void TestGPUDrawState::lostContextIsLeftAlone()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    QVERIFY(context.create());
    auto render = std::make_unique<LxCamGPURender>();
    QVERIFY(context.makeCurrent(&surface));
    render->InitializeGL();
    context.doneCurrent();
    // It goes without saying so, and cannot be made current any more.
    const QSignalBlocker blocker(&context);
    QSurfaceFormat unknown;
    unknown.setRenderableType(QSurfaceFormat::OpenVG);
    context.setFormat(unknown);
    QVERIFY(!context.create());
    // Nothing in it can be deleted, which Qt says; that is all.
    ExpectWarning(QRegularExpression("^QOpenGLVertexArrayObject::destroy\\(\\) failed"));
    ExpectWarning(QRegularExpression("^QOpenGLTexturePrivate::destroy\\(\\) called without"));
    render.reset();
    QVERIFY(DebugLines().contains("LxCamGPURender::~LxCamGPURender()"));
}

void TestGPUDrawState::otherContextStaysCurrent()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    auto render = std::make_unique<LxCamGPURender>();
    render->InitializeGL();
    {
        OffscreenGL other;
        QVERIFY(other.IsValid());
        const QOpenGLContext *current = QOpenGLContext::currentContext();
        render.reset();
        QCOMPARE(static_cast<const QOpenGLContext *>(QOpenGLContext::currentContext()), current);
    }
    QVERIFY(offscreen.MakeCurrent());
    QCOMPARE(offscreen.BindFrameTexture(), 0U);
}

GUARDED_TEST_MAIN(TestGPUDrawState)
#include "tst_gpudrawstate.moc"
