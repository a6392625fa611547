// SPDX-License-Identifier: GPL-3.0-or-later
#include "runningworkbench.h"

#include "devicelist.h"
#include "shownframes.h"
#include "testchartscene.h"
#include "viewcodes.h"
#include "workspace.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTest>

namespace {
constexpr int WaitMs = 10000;
}

RunningWorkbench::RunningWorkbench(const QString &folder)
    : panelRoot(qputenv("GLOBALUI_PLUGIN_PATH", PANEL_ROOT))
    , settings(folder + "/workbench.ini")
    , services(settings.Settings(), &link)
    , window(&services, settings.Settings())
{
    link.SetScene(TestChartScene::SceneName());
    window.show();
    link.Open(SimulatedCameraInfo().id);
}

RunningWorkbench::~RunningWorkbench()
{
    link.Close();
}

bool RunningWorkbench::WaitForPicture()
{
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window, WaitMs) && WaitForNextPicture();
}

bool RunningWorkbench::WaitForNextPicture() const
{
    // The first one after the call may have been made before it.
    const quint64 wanted = window.Shown()->Count() + 2;
    return QTest::qWaitFor([&] { return window.Shown()->Count() >= wanted; }, WaitMs);
}

QGraphicsView *RunningWorkbench::View() const
{
    return services.GetWorkspace()->GetCameraScene()->views().first();
}

QWidget *RunningWorkbench::CameraPage() const
{
    return qobject_cast<QStackedWidget *>(window.centralWidget())->widget(CameraControlPage);
}

QScrollArea *RunningWorkbench::Frame() const
{
    return qobject_cast<QScrollArea *>(View()->parentWidget()->parentWidget());
}

double RunningWorkbench::Scale() const
{
    return View()->transform().m11();
}

QColor RunningWorkbench::OnScreen(const QPointF &scenePos) const
{
    return OnScreenAt(View()->viewport()->mapToGlobal(View()->mapFromScene(scenePos)));
}

QColor RunningWorkbench::OnScreenAt(const QPoint &place) const
{
    const QPixmap pixel = QGuiApplication::primaryScreen()->grabWindow(0, place.x(), place.y(), 1, 1);
    return pixel.toImage().pixelColor(0, 0);
}

bool RunningWorkbench::IsSeen(const QPointF &scenePos) const
{
    const QPoint place = View()->viewport()->mapToGlobal(View()->mapFromScene(scenePos));
    return QApplication::widgetAt(place) == View()->viewport();
}

QString RunningWorkbench::StatusText() const
{
    return window.statusBar()->currentMessage();
}

QAction *RunningWorkbench::Action(const QString &text) const
{
    QList<QAction *> actions = window.menuBar()->actions();
    for (int i = 0; i < actions.size(); ++i) {
        if (actions[i]->text().remove('&') == text)
            return actions[i];
        if (actions[i]->menu())
            actions << actions[i]->menu()->actions();
    }
    return nullptr;
}
