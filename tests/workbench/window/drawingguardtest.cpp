// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawingguard.h"
#include "guardedtest.h"
#include "workspaceconfig.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLWidget>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

/// Drawing by OpenGL that dies gives way to the CPU; drawing that lives is let alone.
class DrawingGuardTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The OpenGL driver starts threads with its first context and keeps them.
        QOffscreenSurface surface;
        surface.create();
        QOpenGLContext context;
        QVERIFY(context.create() && context.makeCurrent(&surface));
    }

    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<QSettings>(m_folder->filePath("settings.ini"), QSettings::IniFormat);
        m_config = std::make_unique<WorkspaceConfig>(m_settings.get());
        m_guard = std::make_unique<DrawingGuard>(m_config.get());
        m_messages = std::make_unique<QSignalSpy>(m_guard.get(), SIGNAL(signalMessage(QString)));
        m_view = std::make_unique<QGraphicsView>(&m_scene);
        m_gl = new QOpenGLWidget; // reparented by the view
        m_view->setViewport(m_gl);
        m_guard->Watch(m_view.get());
    }

    void cleanup() override
    {
        m_view.reset();
        m_messages.reset();
        m_guard.reset();
        m_config.reset();
        m_settings.reset();
        EndGuard();
    }

    void choiceIsStoredAndAnnounced()
    {
        QSignalSpy announced(m_config.get(), SIGNAL(signalSetCPUDraw(bool)));
        m_guard->slotSetCPUDraw(false);
        QCOMPARE(announced.count(), 1);
        QCOMPARE(announced.at(0).at(0).toBool(), false);
        QCOMPARE(m_settings->value("drawing/cpu").toBool(), false);
        m_guard->slotSetCPUDraw(true);
        QCOMPARE(announced.count(), 2);
        QCOMPARE(announced.at(1).at(0).toBool(), true);
        QCOMPARE(m_settings->value("drawing/cpu").toBool(), true);
        QCOMPARE(m_messages->count(), 0);
    }

    void soundDrawingGoesOn()
    {
        ShowWithOpenGL();
        Look(5);
        QVERIFY(!m_config->IsCPUDraw());
        QCOMPARE(m_messages->count(), 0);
    }

    void passingErrorsAreLetAlone()
    {
        ShowWithOpenGL();
        RaiseError();
        Look(2);
        RaiseError();
        Look(4);
        QVERIFY(!m_config->IsCPUDraw());
        QCOMPARE(m_messages->count(), 0);
    }

    void errorsInEveryFrameEndInCpuDrawingAndOneMessage()
    {
        ShowWithOpenGL();
        QSignalSpy announced(m_config.get(), SIGNAL(signalSetCPUDraw(bool)));
        for (int frame = 0; frame < 3; ++frame) {
            QVERIFY(!m_config->IsCPUDraw());
            RaiseError();
            Look();
        }
        QVERIFY(m_config->IsCPUDraw());
        QCOMPARE(announced.count(), 1);
        QTRY_COMPARE(m_messages->count(), 1);
        QCOMPARE(m_messages->at(0).at(0).toString(),
                 QString("OpenGL has failed. The picture is drawn by the CPU from here on."));
        QCoreApplication::processEvents();
        QCOMPARE(m_messages->count(), 1);
    }

    void aDriverWithoutShadersEndsInCpuDrawingAndOneMessage()
    {
        ExpectWarning(QRegularExpression("QOpenGLShader::compile")); // the library's own
        ExpectWarning(QRegularExpression("Problematic"));
        DrawingGuard guard(m_config.get(), nullptr,
                           [](QString *reason) { return OpenGLProbe::CanStartWith("void main(void) { nonsense }", reason); });
        QSignalSpy messages(&guard, SIGNAL(signalMessage(QString)));
        guard.slotSetCPUDraw(false);
        QVERIFY(m_config->IsCPUDraw());
        QTRY_COMPARE(messages.count(), 1);
        QCOMPARE(messages.at(0).at(0).toString(),
                 QString("OpenGL can't be started: the driver cannot build the program that draws. The picture is "
                         "drawn by the CPU."));
        QCOMPARE(m_settings->value("drawing/cpu").toBool(), true);
    }

    /// Here the guard looks by itself.
    void viewportWithoutOpenGLEndsInCpuDrawing()
    {
        m_view->setViewport(new QWidget); // as if OpenGL had never come
        ShowWithOpenGL();
        QVERIFY(m_messages->wait(6 * DrawingGuard::LookPeriodMs));
        QVERIFY(m_config->IsCPUDraw());
    }

    void hiddenViewIsNoFault()
    {
        m_guard->slotSetCPUDraw(false); // OpenGL starts when the view is shown
        Look(5);
        QVERIFY(!m_config->IsCPUDraw());
        QCOMPARE(m_messages->count(), 0);
    }

private:
    void ShowWithOpenGL()
    {
        m_guard->slotSetCPUDraw(false);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }

    /// An error as a drawing step leaves it behind.
    void RaiseError()
    {
        m_gl->makeCurrent();
        QOpenGLContext::currentContext()->functions()->glEnable(0xFFFF);
        m_gl->doneCurrent();
    }

    /// What the guard's timer does, without the wait for it.
    void Look() const { QVERIFY(QMetaObject::invokeMethod(m_guard.get(), "slotLook")); }
    void Look(int times) const
    {
        for (int i = 0; i < times; ++i)
            Look();
        QCoreApplication::processEvents();
    }

    QGraphicsScene m_scene;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<WorkspaceConfig> m_config;
    std::unique_ptr<DrawingGuard> m_guard;
    std::unique_ptr<QSignalSpy> m_messages;
    std::unique_ptr<QGraphicsView> m_view;
    QOpenGLWidget *m_gl = nullptr;
};

GUARDED_TEST_MAIN(DrawingGuardTest)
#include "drawingguardtest.moc"
