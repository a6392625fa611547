// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenariotest.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QOpenGLWidget>
#include <QGraphicsView>

/// The workbench on a display that offers no OpenGL at all.
class NoOpenGL : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() {} // there is no OpenGL whose threads could be started

    void choiceOfTheGpuIsTakenBackWithAWord()
    {
        ExpectOpenGLWarning();
        m_workbench->Action("GPU (OpenGL)")->trigger();
        QTRY_COMPARE(m_workbench->StatusText(), Sentence());
        CheckThatTheCpuDraws();
    }

    void startWithTheGpuStoredGoesOnWithTheCpuForGood()
    {
        Stop();
        {
            SettingsFile settings(m_folder->filePath("workbench.ini"));
            WorkspaceConfig(settings.Settings()).SetCPUDraw(false, false);
        }
        ExpectOpenGLWarning();
        Start();
        QCOMPARE(m_workbench->StatusText(), Sentence());
        CheckThatTheCpuDraws();

        // Not a word at the next start.
        Stop();
        Start();
        QCOMPARE(m_workbench->StatusText(), QString());
        CheckThatTheCpuDraws();
    }

private:
    static QString Sentence()
    {
        return "OpenGL can't be started: the display offers none. The picture is drawn by the CPU.";
    }

    /// The platform says it too.
    void ExpectOpenGLWarning() { ExpectWarning(QRegularExpression("Cannot create platform OpenGL context")); }

    void CheckThatTheCpuDraws()
    {
        QVERIFY(m_workbench->services.Config()->IsCPUDraw());
        QVERIFY(m_workbench->Action("CPU")->isChecked());
        QVERIFY(!m_workbench->Action("GPU (OpenGL)")->isChecked());
        QVERIFY(!qobject_cast<QOpenGLWidget *>(m_workbench->View()->viewport()));
        QVERIFY(m_workbench->WaitForNextPicture());
    }
};

int main(int argc, char **argv)
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication application(argc, argv);
    NoOpenGL test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_noopengl.moc"
