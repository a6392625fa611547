// SPDX-License-Identifier: GPL-3.0-or-later
#include "plotpicture.h"
#include "scenariotest.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QLabel>
#include <QOpenGLWidget>
#include <QGraphicsView>

#include <qcustomplot.h>

#include <algorithm>

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

    void thePageIn3DSaysSoAndTheCurveWorks()
    {
        m_workbench->Action("All Rows")->trigger();
        m_workbench->Action("Tracks in 3D")->trigger();
        const QString sentence = "The 3D plot can't be shown: this display offers no OpenGL.";
        QTRY_VERIFY(IsLabelSeen(sentence));
        m_workbench->Action("Curve")->trigger();
        QTRY_VERIFY(!IsLabelSeen(sentence));
        QTRY_VERIFY_WITH_TIMEOUT(Curve() && Curve()->graph(0)->dataCount() == 2048, 20000);
        m_workbench->Action("Picture")->trigger();
        QVERIFY(m_workbench->WaitForNextPicture());
    }

private:
    bool IsLabelSeen(const QString &text) const
    {
        const QList<QLabel *> labels = m_workbench->window.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel *label) { return label->isVisible() && label->text() == text && label->width() > 200; });
    }

    QCustomPlot *Curve() const { return qobject_cast<QCustomPlot *>(VisiblePlot(m_workbench->window.centralWidget())); }

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
