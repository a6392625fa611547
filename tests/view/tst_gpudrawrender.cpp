// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawviewfixture.h"
#include "guardedtest.h"
#include "lxcamgpurender.h"
#include "offscreengl.h"
#include "rawcameraframe.h"

namespace {

constexpr GLenum textureWidth = 0x1000;
constexpr GLenum textureInternalFormat = 0x1003;
constexpr GLenum invalidEnum = 0x0500;

const QRectF wholePicture(0, 0, 1, 1);

const QStringList initLines{
    "addShaderFromSourceCode Vertex success",
    "addShaderFromSourceCode Fragment success",
    "shaderProgram link success",
    "shaderProgram bind success",
    "[LxCamGPURender] InitShaderProgram success",
    "[LxCamGPURender] InitTexture success",
    "[LxCamGPURender] InitGLBuffer success",
    "[LxCamGPURender] SetAttributes success",
    "[LxCamGPURender]: initializeGL success!\n",
};

/// A renderer whose driver takes no vertex shader, or one that does not fit the fragment shader.
class BrokenRender : public LxCamGPURender
{
public:
    explicit BrokenRender(const char *source)
        : m_source(source)
    {
    }

protected:
    const char *VertexShaderSource() const override { return m_source; }

private:
    const char *m_source;
};

QImage AsColour(const QImage &grey) { return grey.convertToFormat(QImage::Format_RGB888); }

} // namespace

/// The renderer in a context of its own.
class TestGPUDrawRender : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase() { StartOpenGLDriver(); }
    void initialisationIsLogged();
    void resizeIsLoggedOnce();
    void drawsTheVisiblePart();
    void missingFrameIsLogged();
    void colourAfterGreyAllocatesAnew();
    void sameSizeReplacesTheContentsOnly();
    void otherSizeAllocatesAnew();
    void pendingErrorRebuildsEverything();
    void pendingErrorWithoutRefreshGivesUpTheFrame();
    void pendingErrorWhileComparingGivesUpTheFrame();
    void withoutInitialisationNothingIsDrawn();
    void aShaderThatFailsDrawsNothing_data();
    void aShaderThatFailsDrawsNothing();
    void endOfTheContextReleasesEverything();
};

void TestGPUDrawRender::initialisationIsLogged()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    {
        LxCamGPURender render;
        QVERIFY(!render.IsContextCurrent());
        render.InitializeGL();
        QVERIFY(render.IsContextCurrent());
        QCOMPARE(DebugLines(), initLines);
    }
    QCOMPARE(DebugLines().last(), QString("LxCamGPURender::~LxCamGPURender()"));
    QCOMPARE(offscreen.BindFrameTexture(), 0U);
}

void TestGPUDrawRender::resizeIsLoggedOnce()
{
    LxCamGPURender render;
    render.ResizeGL(8, 4, wholePicture);
    render.ResizeGL(8, 4, QRectF(0, 0, 0.5, 0.5));
    QCOMPARE(DebugLines().size(), 1);
    const QRegularExpressionMatch match =
        QRegularExpression("^resizeGL width:8, height:4,time:(\\d{1,3})$").match(DebugLines().first());
    QVERIFY(match.hasMatch());
    render.ResizeGL(8, 5, wholePicture);
    render.ResizeGL(9, 5, wholePicture);
    QCOMPARE(DebugLines().size(), 3);
    QVERIFY(DebugLines().last().startsWith("resizeGL width:9, height:5,time:"));
}

void TestGPUDrawRender::drawsTheVisiblePart()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    const QImage picture = GreyPicture({ 16, 8 });
    const RawFrame frame(picture);
    const uchar *pixels = frame.Record()->buffer + frame.Record()->headerLength;

    // The bottom right quarter, pixel by pixel; then the whole in the odd pixels that a screen pixel's
    // middle lies on; then the top left quarter.
    render.ResizeGL(8, 4, QRectF(0.5, 0.5, 1, 1));
    render.PaintGL(pixels, 16, 8, 1);
    QCOMPARE(offscreen.Picture(), AsColour(picture.copy(8, 4, 8, 4)));
    render.ResizeGL(8, 4, QRectF(0, 0, 0.5, 0.5));
    render.PaintGL(pixels, 16, 8, 1);
    QCOMPARE(offscreen.Picture(), AsColour(picture.copy(0, 0, 8, 4)));
}

void TestGPUDrawRender::missingFrameIsLogged()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    const int lines = DebugLines().size();
    render.PaintGL(nullptr, 8, 4, 1);
    render.PaintGL(nullptr, 8, 4, 1);
    QCOMPARE(DebugLines().mid(lines), (QStringList{ "data NULL", "data NULL" }));
}

void TestGPUDrawRender::colourAfterGreyAllocatesAnew()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    render.ResizeGL(8, 4, wholePicture);
    const QImage grey = GreyPicture({ 8, 4 });
    render.PaintGL(grey.constBits(), 8, 4, 1);
    QVERIFY(offscreen.BindFrameTexture() != 0);
    QCOMPARE(offscreen.BoundTexture(textureInternalFormat), GLint(GL_LUMINANCE));

    const QImage colour = ColourPicture({ 8, 4 });
    render.PaintGL(colour.constBits(), 8, 4, 3);
    QVERIFY(offscreen.BindFrameTexture() != 0);
    QCOMPARE(offscreen.BoundTexture(textureInternalFormat), GLint(GL_RGB));
    QCOMPARE(offscreen.Picture(), colour);

    render.PaintGL(grey.constBits(), 8, 4, 1);
    QCOMPARE(offscreen.Picture(), AsColour(grey));
}

void TestGPUDrawRender::sameSizeReplacesTheContentsOnly()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    render.ResizeGL(8, 4, wholePicture);
    render.PaintGL(GreyPicture({ 8, 4 }).constBits(), 8, 4, 1);
    // Twice as wide behind the renderer's back: a new allocation would undo it.
    QVERIFY(offscreen.BindFrameTexture() != 0);
    offscreen.gl()->glTexImage2D(GL_TEXTURE_2D, 0, GL_LUMINANCE, 16, 4, 0, GL_LUMINANCE, GL_UNSIGNED_BYTE,
                                 nullptr);
    render.PaintGL(GreyPicture({ 8, 4 }, 1).constBits(), 8, 4, 1);
    offscreen.BindFrameTexture();
    QCOMPARE(offscreen.BoundTexture(textureWidth), 16);
}

void TestGPUDrawRender::otherSizeAllocatesAnew()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    render.ResizeGL(8, 4, wholePicture);
    render.PaintGL(GreyPicture({ 8, 4 }).constBits(), 8, 4, 1);
    render.PaintGL(GreyPicture({ 8, 5 }).constBits(), 8, 5, 1);
    const RawFrame odd(GreyPicture({ 7, 5 }, 3)); // rows that are no multiple of four bytes
    render.PaintGL(odd.Record()->buffer + odd.Record()->headerLength, 7, 5, 1);
    offscreen.BindFrameTexture();
    QCOMPARE(offscreen.BoundTexture(textureWidth), 7);
}

void TestGPUDrawRender::pendingErrorRebuildsEverything()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    render.ResizeGL(8, 4, wholePicture);
    render.PaintGL(GreyPicture({ 8, 4 }).constBits(), 8, 4, 1);
    const int lines = DebugLines().size();

    offscreen.LeaveErrorPending();
    const QImage next = GreyPicture({ 8, 4 }, 77);
    render.PaintGL(next.constBits(), 8, 4, 1);
    QCOMPARE(DebugLines().mid(lines), QStringList(QString("errcode :%1").arg(invalidEnum)) + initLines);
    QCOMPARE(offscreen.Picture(), AsColour(next));
}

void TestGPUDrawRender::pendingErrorWithoutRefreshGivesUpTheFrame()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.SetRefreshOnError(false);
    render.InitializeGL();
    render.ResizeGL(8, 4, wholePicture);
    const QImage shown = GreyPicture({ 8, 4 });
    render.PaintGL(shown.constBits(), 8, 4, 1);
    const int lines = DebugLines().size();

    offscreen.LeaveErrorPending();
    render.PaintGL(GreyPicture({ 8, 4 }, 77).constBits(), 8, 4, 1);
    QCOMPARE(DebugLines().mid(lines), (QStringList{ "errcode :1280", "errcode :1280, paintGL not refresh" }));
    QCOMPARE(offscreen.Picture(), AsColour(shown));
}

void TestGPUDrawRender::pendingErrorWhileComparingGivesUpTheFrame()
{
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    LxCamGPURender render;
    render.SetComparing(true);
    render.InitializeGL();
    render.ResizeGL(8, 4, wholePicture);
    const QImage shown = GreyPicture({ 8, 4 });
    render.PaintGL(shown.constBits(), 8, 4, 1);
    const int lines = DebugLines().size();

    offscreen.LeaveErrorPending();
    render.PaintGL(GreyPicture({ 8, 4 }, 77).constBits(), 8, 4, 1);
    QCOMPARE(DebugLines().mid(lines), QStringList("errcode :1280, paintGL isComparing = true"));
    QCOMPARE(offscreen.Picture(), AsColour(shown));

    const QImage next = GreyPicture({ 8, 4 }, 78);
    render.PaintGL(next.constBits(), 8, 4, 1);
    QCOMPARE(offscreen.Picture(), AsColour(next));
}

void TestGPUDrawRender::withoutInitialisationNothingIsDrawn()
{
    LxCamGPURender render;
    render.PaintGL(GreyPicture({ 8, 4 }).constBits(), 8, 4, 1);
    QCOMPARE(DebugLines(), QStringList());
}

void TestGPUDrawRender::aShaderThatFailsDrawsNothing_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("compiling") << QByteArray("void main(void) { nonsense }") << "QOpenGLShader::compile" << QStringList();
    QTest::newRow("linking") << QByteArray("attribute highp vec4 vertex;\nvarying mediump vec3 texc;\n"
                                           "void main(void) { gl_Position = vertex; texc = vec3(1.0); }\n")
                             << "QOpenGLShader::link" << QStringList(initLines.mid(0, 2));
}

void TestGPUDrawRender::aShaderThatFailsDrawsNothing()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, warning);
    QFETCH(QStringList, lines);
    OffscreenGL offscreen;
    QVERIFY(offscreen.IsValid());
    offscreen.gl()->glClearColor(0, 0, 1, 1);
    offscreen.gl()->glClear(GL_COLOR_BUFFER_BIT);
    BrokenRender render(source.constData());
    ExpectWarning(QRegularExpression(warning)); // the library's own
    if (lines.isEmpty())
        ExpectWarning(QRegularExpression("Problematic"));
    render.InitializeGL();
    QCOMPARE(DebugLines(), lines);
    render.ResizeGL(8, 4, wholePicture);
    render.PaintGL(GreyPicture({ 8, 4 }).constBits(), 8, 4, 1);
    QImage untouched(8, 4, QImage::Format_RGB888);
    untouched.fill(QColor(0, 0, 255));
    QCOMPARE(offscreen.Picture(), untouched);
    QCOMPARE(offscreen.gl()->glGetError(), GLenum(GL_NO_ERROR));
}

void TestGPUDrawRender::endOfTheContextReleasesEverything()
{
    auto offscreen = std::make_unique<OffscreenGL>();
    QVERIFY(offscreen->IsValid());
    LxCamGPURender render;
    render.InitializeGL();
    offscreen.reset();
    QVERIFY(!render.IsContextCurrent());
    // The guard fails this test if the texture is still there when the renderer goes.
}

GUARDED_TEST_MAIN(TestGPUDrawRender)
#include "tst_gpudrawrender.moc"
