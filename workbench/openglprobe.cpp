// SPDX-License-Identifier: GPL-3.0-or-later
#include "openglprobe.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLShaderProgram>

namespace {

// What the drawing of pictures asks of the driver: the shaders of OpenGL 2 and OpenGL ES 2.
const char usualVertexShader[] = "attribute highp vec4 vertex;\n"
                                 "varying mediump vec2 place;\n"
                                 "uniform mediump mat4 matrix;\n"
                                 "void main(void) { gl_Position = matrix * vertex; place = vertex.xy; }\n";
const char fragmentShader[] = "varying mediump vec2 place;\n"
                              "uniform sampler2D picture;\n"
                              "void main(void) { gl_FragColor = texture2D(picture, place); }\n";

bool CanBuildProgram(const char *vertexShader)
{
    QOpenGLShaderProgram program;
    return program.addShaderFromSourceCode(QOpenGLShader::Vertex, vertexShader)
           && program.addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentShader) && program.link();
}

} // namespace

bool OpenGLProbe::CanStart(QString *reason) { return CanStartWith(usualVertexShader, reason); }

bool OpenGLProbe::CanStartWith(const char *vertexShader, QString *reason)
{
    QOpenGLContext context;
    if (!context.create()) {
        *reason = tr("the display offers none");
        return false;
    }
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface)) {
        *reason = tr("the driver gives no context");
        return false;
    }
    const bool canBuild = CanBuildProgram(vertexShader);
    if (!canBuild)
        *reason = tr("the driver cannot build the program that draws");
    context.doneCurrent();
    return canBuild;
}
