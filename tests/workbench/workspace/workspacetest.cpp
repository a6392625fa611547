// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace.h"
#include "fakeservices.h"
#include "guardedtest.h"
#include "workspaceconfig.h"

#include <QGraphicsRectItem>
#include <QGraphicsView>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

namespace {

/// A workspace and the managers that it hands out.
struct Bench
{
    Bench()
        : settings(folder.filePath("workbench.ini"), QSettings::IniFormat)
        , config(&settings)
        , workspace({ &config, &live, &main, &compare, nullptr, nullptr })
    {
    }

    QTemporaryDir folder;
    QSettings settings;
    WorkspaceConfig config;
    FakeReportManager live;
    FakeImageManager main;
    FakeImageManager compare;
    Workspace workspace;
};

/// A picture of 200 x 100 pixels in its own size, with a mark that can be dragged in its left half.
struct Picture
{
    Picture()
        : scene(QRectF(0, 0, 200, 100))
        , view(&scene)
    {
        scene.addRect(10, 10, 80, 80)->setFlag(QGraphicsItem::ItemIsMovable);
        view.setFrameShape(QFrame::NoFrame);
        view.setFixedSize(200, 100);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
    }

    void Press(const QPoint &viewPos)
    {
        QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, viewPos);
    }
    void Release(const QPoint &viewPos)
    {
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, viewPos);
    }

    QGraphicsScene scene;
    QGraphicsView view;
};

} // namespace

/// Who has the focus and the mouse.
class WorkspaceTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void pictureStaysWhileAMarkIsDragged_data()
    {
        QTest::addColumn<int>("scene");
        QTest::newRow("live picture") << 0;
        QTest::newRow("opened picture") << 1;
        QTest::newRow("second picture") << 2;
    }

    void pictureStaysWhileAMarkIsDragged()
    {
        QFETCH(int, scene);
        Bench bench;
        Picture picture;
        if (scene == 0)
            bench.workspace.SetCameraGraphicsScene(&picture.scene);
        else if (scene == 1)
            bench.workspace.SetImageGraphicsScene(&picture.scene);
        else
            bench.workspace.SetImageGraphicsSceneEx(&picture.scene);
        QVERIFY(bench.workspace.IsDrawViewCanMove());

        const QPoint mark(50, 50);
        const QPoint beside(150, 50);
        picture.Press(beside);
        QVERIFY(bench.workspace.IsDrawViewCanMove());
        picture.Release(beside);
        picture.Press(mark);
        QVERIFY(!bench.workspace.IsDrawViewCanMove());
        picture.Release(mark);
        QVERIFY(bench.workspace.IsDrawViewCanMove());
    }

    void pictureStaysWhileMeasuring()
    {
        Bench bench;
        FakeMeasureManager measure;
        measure.measurementInProgress = true;
        QVERIFY(!bench.workspace.IsDrawViewCanMove());
        measure.measurementInProgress = false;
        QVERIFY(bench.workspace.IsDrawViewCanMove());
    }

    void scenesMayGoFirst()
    {
        Bench bench;
        {
            Picture picture;
            bench.workspace.SetCameraGraphicsScene(&picture.scene);
        }
        QVERIFY(bench.workspace.IsDrawViewCanMove());
        QVERIFY(!bench.workspace.GetCameraScene());
    }
};

GUARDED_TEST_MAIN(WorkspaceTest)
#include "workspacetest.moc"
