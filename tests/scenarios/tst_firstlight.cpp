// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerasession.h"
#include "globalclass.h"
#include "livepreview.h"
#include "scenariotest.h"
#include "shownframes.h"
#include "stylesheet.h"
#include "testchartscene.h"
#include "viewcodes.h"
#include "workspaceconfig.h"

#include <QAction>
#include <QApplication>
#include <QGraphicsView>
#include <QLabel>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QWheelEvent>

#include <memory>

namespace {

constexpr int SensorSize = 2048;
constexpr int Patches = 8;
constexpr int PatchSize = SensorSize / Patches;

/// A point in each patch that the information bar at the bottom edge leaves free.
QPoint PatchPoint(int column, int row)
{
    return QPoint(column * PatchSize + PatchSize / 2, row * PatchSize + PatchSize / 3);
}

int ExpectedGrey(const QPoint &sensorPos)
{
    return TestChartScene::ExpectedValue(sensorPos.x(), sensorPos.y(), SensorSize, SensorSize, 8);
}

} // namespace

/// A person starts the workbench and works with the live picture.
class FirstLight : public ScenarioTest
{
    Q_OBJECT

private slots:
    void pictureOnTheScreenIsTheChart_data()
    {
        QTest::addColumn<PixelLayout>("layout");
        QTest::addColumn<bool>("cpuDraw");
        QTest::newRow("8 bit") << PixelLayout::Mono8 << true;
        QTest::newRow("12 bit") << PixelLayout::Mono12 << true;
        QTest::newRow("16 bit") << PixelLayout::Mono16 << true;
        QTest::newRow("RGB") << PixelLayout::Rgb8 << true;
        QTest::newRow("8 bit, drawn by OpenGL") << PixelLayout::Mono8 << false;
        QTest::newRow("RGB, drawn by OpenGL") << PixelLayout::Rgb8 << false;
    }

    void pictureOnTheScreenIsTheChart()
    {
        QFETCH(PixelLayout, layout);
        QFETCH(bool, cpuDraw);
        m_workbench->link.SetPixelLayout(layout);
        m_workbench->services.Config()->SetCPUDraw(cpuDraw, false);
        QTRY_COMPARE(m_workbench->services.Preview()->ShownFrame().layout, layout);
        QVERIFY(m_workbench->WaitForNextPicture());
        int seen = 0;
        for (int patch = 0; patch < Patches * Patches; ++patch) {
            const QPoint point = PatchPoint(patch % Patches, patch / Patches);
            if (!m_workbench->IsSeen(point))
                continue;
            ++seen;
            const QColor colour = m_workbench->OnScreen(point);
            QRgb expected = TestChartScene::ExpectedColour(point.x(), point.y(), SensorSize, SensorSize);
            if (layout != PixelLayout::Rgb8)
                expected = qRgb(ExpectedGrey(point), ExpectedGrey(point), ExpectedGrey(point));
            // Deep samples go through levels, which round.
            const int tolerance = BitDepth(layout) > 8 ? 1 : 0;
            const QByteArray place = QString("patch %1: %2").arg(patch).arg(colour.name()).toLatin1();
            QVERIFY2(qAbs(colour.red() - qRed(expected)) <= tolerance, place);
            QVERIFY2(qAbs(colour.green() - qGreen(expected)) <= tolerance, place);
            QVERIFY2(qAbs(colour.blue() - qBlue(expected)) <= tolerance, place);
        }
        QVERIFY2(seen >= 60, qPrintable(QString::number(seen)));
    }

    void startFitsThePictureAndSaysItsSize()
    {
        const QSize host = m_workbench->Frame()->parentWidget()->size();
        const double fit = qMin(host.width(), host.height()) / double(SensorSize);
        QVERIFY(qAbs(m_workbench->Scale() - fit) < 0.001);
        QTRY_COMPARE(StatusField("labelStatusCamera"), QString("Simulated Camera"));
        QTRY_COMPARE(StatusField("labelStatusSize"), QString("2048 x 2048"));
        QTRY_COMPARE(StatusField("labelStatusDepth"), QString("8 bit"));
        QTRY_VERIFY(StatusField("labelStatusRate").endsWith(" frames/s") && !StatusField("labelStatusRate").startsWith("0.0"));
        QTRY_VERIFY(StatusField("labelStatusCounts").endsWith("  lost 0"));
        QCOMPARE(PageLabel("labelSizeValue"), QString("2048x2048"));
    }

    void wheelZoomsAndTheChartStaysRight()
    {
        const double fit = m_workbench->Scale();
        Wheel(1);
        QCOMPARE(m_workbench->Scale(), 1.0);
        CompareVisiblePatches();
        Wheel(1);
        QCOMPARE(m_workbench->Scale(), 2.0);
        CompareVisiblePatches();
        Wheel(-1);
        Wheel(-1);
        QCOMPARE(m_workbench->Scale(), 0.5);
        PageButton("pushButtonFit")->click();
        QCOMPARE(m_workbench->Scale(), fit);
    }

    void dragPansThePicture()
    {
        Wheel(1);
        Wheel(1);
        QScrollBar *horizontal = m_workbench->Frame()->horizontalScrollBar();
        QScrollBar *vertical = m_workbench->Frame()->verticalScrollBar();
        const QPoint before(horizontal->value(), vertical->value());
        QVERIFY(before.x() > 100 && before.y() > 100);

        QWidget *viewport = m_workbench->View()->viewport();
        // On the screen: the view moves with the mouse, so its own coordinates change under it.
        const QPoint start = VisibleCentre();
        const QPoint end = start + QPoint(60, 50);
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, viewport->mapFromGlobal(start));
        Drag(viewport, start + QPoint(30, 20));
        Drag(viewport, end);
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, viewport->mapFromGlobal(end));

        QCOMPARE(QPoint(horizontal->value(), vertical->value()), before - QPoint(60, 50));
        CompareVisiblePatches();
    }

    void mouseOverThePictureReadsItsSamples()
    {
        const QPoint point = PatchPoint(5, 4);
        QTest::mouseMove(m_workbench->View()->viewport(), m_workbench->View()->mapFromScene(point));
        QTRY_COMPARE(PageLabel("labelGrayValue"), QString::number(ExpectedGrey(point)));
    }

    void toolBarTurnsAndFlipsThePicture()
    {
        const int topLeft = ExpectedGrey(PatchPoint(0, 0));
        const int topRight = ExpectedGrey(PatchPoint(7, 0));
        const int bottomLeft = ExpectedGrey(PatchPoint(0, 7));
        QPushButton *rotate = PageButton("pushButtonRotate90");
        rotate->click();
        QTRY_COMPARE(m_workbench->OnScreen(PatchPoint(0, 0)).red(), bottomLeft);
        QTRY_COMPARE(m_workbench->OnScreen(PatchPoint(7, 0)).red(), topLeft);
        QCOMPARE(PageLabel("labelRotateValue"), QString("90%1").arg(QChar(176)));
        for (int i = 0; i < 3; ++i)
            rotate->click();
        PageButton("pushButtonHorizontalMirror")->click();
        QTRY_COMPARE(m_workbench->OnScreen(PatchPoint(0, 0)).red(), topRight);
    }

    void aCoverDrawnByMouseHidesItsPartOnly_data()
    {
        QTest::addColumn<bool>("cpuDraw");
        QTest::newRow("CPU") << true;
        QTest::newRow("OpenGL") << false;
    }

    void aCoverDrawnByMouseHidesItsPartOnly()
    {
        QFETCH(bool, cpuDraw);
        m_workbench->services.Config()->SetCPUDraw(cpuDraw, false);
        QVERIFY(m_workbench->WaitForNextPicture());
        m_workbench->Action("100 % dark")->trigger();
        m_workbench->Action("Draw on Live Picture")->trigger();
        QWidget *frame = nullptr;
        for (QWidget *child : m_workbench->View()->findChildren<QWidget *>()) {
            if (child->inherits("CropFrame"))
                frame = child;
        }
        QVERIFY(frame && frame->isVisible());
        const QPoint from = frame->mapFromGlobal(GlobalPlace(QPointF(400, 400)));
        const QPoint to = frame->mapFromGlobal(GlobalPlace(QPointF(1000, 900)));
        QTest::mousePress(frame, Qt::LeftButton, Qt::NoModifier, from);
        QMouseEvent move(QEvent::MouseMove, to, frame->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(frame, &move);
        QTest::mouseRelease(frame, Qt::LeftButton, Qt::NoModifier, to);
        QTest::keyClick(frame, Qt::Key_Return);

        QVERIFY(!frame->isVisible());
        QVERIFY(m_workbench->WaitForNextPicture());
        QTRY_COMPARE(m_workbench->OnScreen(QPointF(700, 650)), QColor(Qt::black));
        const QPoint beside = PatchPoint(6, 2);
        QCOMPARE(m_workbench->OnScreen(beside).red(), ExpectedGrey(beside));
        m_workbench->Action("Remove")->trigger();
        const QPoint freed = PatchPoint(2, 2);
        QTRY_COMPARE(m_workbench->OnScreen(freed).red(), ExpectedGrey(freed));
    }

    void regionOfOddSizeInMidStreamIsShownRightly()
    {
        m_workbench->link.SetRegion(QRect(700, 300, 641, 479));
        QTRY_VERIFY(!m_workbench->link.Session()->IsSetting());
        const QRect region = m_workbench->link.Session()->Format().region;
        QTRY_COMPARE(PageLabel("labelSizeValue"), QString("%1x%2").arg(region.width()).arg(region.height()));
        QVERIFY(m_workbench->WaitForNextPicture());
        QCOMPARE(m_workbench->View()->sceneRect(), QRectF(QPointF(0, 0), QSizeF(region.size())));
        for (const QPoint &point : {QPoint(3, 3), QPoint(300, 100), QPoint(635, 100), QPoint(10, 400)})
            QCOMPARE(m_workbench->OnScreen(point).red(), ExpectedGrey(point + region.topLeft()));
    }

    void viewsAreSwitchedByKeys()
    {
        WorkspaceConfig *config = m_workbench->services.Config();
        QStackedWidget *centre = m_workbench->window.findChild<QStackedWidget *>("CenterStackedWidget");
        QTest::keyClick(&m_workbench->window, Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(config->GetCurrentView(), int(FileView));
        QCOMPARE(centre->currentIndex(), 2);
        QVERIFY(!m_workbench->services.Preview()->isRunning());
        QTest::keyClick(&m_workbench->window, Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(config->GetCurrentView(), int(CameraView));
        QCOMPARE(centre->currentIndex(), 0);
        QVERIFY(m_workbench->services.Preview()->isRunning());
        QVERIFY(m_workbench->WaitForNextPicture());
        CompareVisiblePatches();
    }

    void comparisonAndBack()
    {
        WorkspaceConfig *config = m_workbench->services.Config();
        config->SetCompareView();
        QCOMPARE(config->GetCurrentView(), int(CameraCompareView));
        QVERIFY(m_workbench->WaitForNextPicture());
        config->SetCompareView();
        QCOMPARE(config->GetCurrentView(), int(CameraView));
        QVERIFY(m_workbench->WaitForNextPicture());
        CompareVisiblePatches();
    }

    void panelsFoldAndUnfold_data()
    {
        QTest::addColumn<QString>("dock");
        QTest::addColumn<QString>("foldButton");
        QTest::addColumn<QString>("unfoldButton");
        QTest::newRow("left") << "DockLeft" << "pushButtonLeft" << "pushButtonRight";
        QTest::newRow("right") << "DockRight" << "pushButtonRight" << "analysisPushButton";
        QTest::newRow("bottom") << "DockBottom" << "pushButtonBottom" << "pushButtonTop";
    }

    void panelsFoldAndUnfold()
    {
        QFETCH(QString, dock);
        QFETCH(QString, foldButton);
        QFETCH(QString, unfoldButton);
        ShowAllPanels();
        QWidget *panel = m_workbench->window.findChild<QWidget *>(dock);
        QTRY_VERIFY(panel->isVisible());
        CentreButton(foldButton)->click();
        QTRY_VERIFY(!panel->isVisible());
        CentreButton(unfoldButton)->click();
        QTRY_VERIFY(panel->isVisible());
        QVERIFY(m_workbench->WaitForNextPicture());
    }

    void backgroundTurnsBlackAndBack()
    {
        QCOMPARE(Canvas(), QColor(68, 73, 86));
        QTest::keyClick(&m_workbench->window, Qt::Key_B, Qt::ControlModifier);
        QTRY_COMPARE(Canvas(), QColor(Qt::black));
        QTest::keyClick(&m_workbench->window, Qt::Key_B, Qt::ControlModifier);
        QTRY_COMPARE(Canvas(), QColor(68, 73, 86));
    }

    void pictureFillsTheScreenAndEscapeLeaves()
    {
        MainWindow &window = m_workbench->window;
        QWidget *left = window.findChild<QWidget *>("DockLeft");
        QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(window.isFullScreen());
        QVERIFY(!window.menuBar()->isVisible());
        QVERIFY(!window.statusBar()->isVisible());
        QTRY_VERIFY(!left->isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isFullScreen());
        QVERIFY(window.menuBar()->isVisible());
        QTRY_VERIFY(left->isVisible());
    }

    void lostCameraKeepsItsPictureAndComesBack()
    {
        const quint64 shownBefore = m_workbench->window.Shown()->Count();
        emit m_workbench->link.Session()->signalControlLost();
        QCOMPARE(m_workbench->StatusText(),
                 QString("Camera \"Simulated Camera\" was lost; trying again in 1 s (1 of 6)"));
        QCOMPARE(StatusField("labelStatusCamera"), QString("Simulated Camera (lost)"));
        QVERIFY(m_workbench->Action("Reconnect")->isEnabled());
        CompareVisiblePatches();
        QTRY_COMPARE(m_workbench->link.GetState(), CameraLink::State::Open);
        QTRY_COMPARE(StatusField("labelStatusCamera"), QString("Simulated Camera"));
        QVERIFY(!m_workbench->Action("Reconnect")->isEnabled());
        QTRY_VERIFY(m_workbench->window.Shown()->Count() > shownBefore + 2);
        CompareVisiblePatches();
    }

    void withoutACameraTheWindowSaysSo()
    {
        m_workbench->Action("Close Camera")->trigger();
        QTRY_COMPARE(StatusField("labelStatusCamera"), QString("No camera"));
        QLabel *notice = m_workbench->window.findChild<QLabel *>("labelCameraNotice");
        QVERIFY(notice->isVisible());
        QCOMPARE(notice->text(), QString("No camera is open.\nChoose one in the Camera menu."));
        QVERIFY(!m_workbench->services.Preview()->isRunning());
        QTRY_VERIFY(!m_workbench->window.findChild<QPushButton *>("pushButtonCapture")->isEnabled());
        m_workbench->Action("Simulated Camera")->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(m_workbench->link.GetState(), CameraLink::State::Open, 10000);
        QVERIFY(m_workbench->WaitForNextPicture());
        QTRY_VERIFY(!notice->isVisible());
    }

    void defaultLayoutBringsEverythingBack()
    {
        ShowAllPanels();
        CentreButton("pushButtonLeft")->click();
        QTest::keyClick(&m_workbench->window, Qt::Key_B, Qt::ControlModifier);
        m_workbench->window.resize(1000, 700);
        QTRY_COMPARE(Canvas(), QColor(Qt::black));

        m_workbench->Action("Restore Default Layout")->trigger();

        QTRY_VERIFY(m_workbench->window.findChild<QWidget *>("DockLeft")->isVisible());
        QTRY_VERIFY(!m_workbench->window.findChild<QWidget *>("DockRight")->isVisible());
        QTRY_VERIFY(!m_workbench->window.findChild<QWidget *>("DockBottom")->isVisible());
        QTRY_COMPARE(Canvas(), QColor(68, 73, 86));
        QTRY_COMPARE(m_workbench->window.size(),
                     QSize(GlobalClass::GetActualSize(1440), GlobalClass::GetActualSize(900)));
    }

    void nextStartHasTheSameLayout()
    {
        ShowAllPanels();
        CentreButton("pushButtonLeft")->click();
        m_workbench->window.resize(1300, 800);
        QTRY_COMPARE(m_workbench->window.size(), QSize(1300, 800));
        m_workbench->window.close();
        m_workbench.reset();

        m_workbench = std::make_unique<RunningWorkbench>(m_folder->path());
        QVERIFY(m_workbench->WaitForPicture());
        QCOMPARE(m_workbench->window.size(), QSize(1300, 800));
        QVERIFY(!m_workbench->window.findChild<QWidget *>("DockLeft")->isVisible());
        QVERIFY(m_workbench->window.findChild<QWidget *>("DockRight")->isVisible());
        QVERIFY(m_workbench->window.findChild<QWidget *>("DockBottom")->isVisible());
    }

private:
    /// On the screen, of a place of the picture.
    QPoint GlobalPlace(const QPointF &scenePos) const
    {
        const QGraphicsView *view = m_workbench->View();
        return view->viewport()->mapToGlobal(view->mapFromScene(scenePos));
    }

    QString StatusField(const char *name) const
    {
        return m_workbench->window.statusBar()->findChild<QLabel *>(name)->text();
    }
    QString PageLabel(const char *name) const { return m_workbench->CameraPage()->findChild<QLabel *>(name)->text(); }
    QPushButton *PageButton(const char *name) const
    {
        return m_workbench->CameraPage()->findChild<QPushButton *>(name);
    }

    /// Two of the buttons around the centre may have the same name; the one that is seen is meant.
    QPushButton *CentreButton(const QString &name) const
    {
        const QWidget *centre = m_workbench->window.centralWidget();
        for (QPushButton *button : centre->findChildren<QPushButton *>(name, Qt::FindDirectChildrenOnly)) {
            if (button->isVisible() && !(name == "pushButtonRight" && IsOtherSide(button)))
                return button;
        }
        qFatal("no button %s is seen", qPrintable(name));
    }

    /// "pushButtonRight" names the left toggle while its panel is folded, and the right fold button.
    bool IsOtherSide(const QPushButton *button) const
    {
        const bool isAtTheLeft = button->x() < m_workbench->window.centralWidget()->width() / 2;
        return isAtTheLeft == m_workbench->services.Config()->IsLeftUIChecked();
    }

    void ShowAllPanels() const
    {
        WorkspaceConfig *config = m_workbench->services.Config();
        config->SetLeftUIChecked(true);
        config->SetRightUIChecked(true);
        config->SetBottomUIChecked(true);
        config->UpdateCameraControlUI();
        QTRY_VERIFY(m_workbench->window.findChild<QWidget *>("DockBottom")->isVisible());
    }

    /// The middle of what is seen of the picture, on the screen.
    QPoint VisibleCentre() const
    {
        const QWidget *seen = m_workbench->Frame()->viewport();
        return seen->mapToGlobal(seen->rect().center());
    }

    void Wheel(int steps) const
    {
        QWidget *viewport = m_workbench->View()->viewport();
        const QPoint global = VisibleCentre();
        const QPoint local = viewport->mapFromGlobal(global);
        QWheelEvent event(local, global, QPoint(), QPoint(0, 120 * steps), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(viewport, &event);
    }

    static void Drag(QWidget *viewport, const QPoint &global)
    {
        QMouseEvent move(QEvent::MouseMove, viewport->mapFromGlobal(global), global, Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(viewport, &move);
    }

    /// Every patch point that is seen has the chart's grey.
    void CompareVisiblePatches() const
    {
        QApplication::processEvents();
        int seen = 0;
        for (int patch = 0; patch < Patches * Patches; ++patch) {
            const QPoint point = PatchPoint(patch % Patches, patch / Patches);
            if (!m_workbench->IsSeen(point))
                continue;
            ++seen;
            QTRY_COMPARE(m_workbench->OnScreen(point).red(), ExpectedGrey(point));
        }
        QVERIFY(seen >= 2);
    }

    /// The colour beside the picture.
    QColor Canvas() const
    {
        return m_workbench->OnScreenAt(m_workbench->Frame()->mapToGlobal(QPoint(20, 100)));
    }

};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    StyleSheet::Named("dark").Apply(application);
    FirstLight test;
    return GuardedTest::Run(&test, argc, argv);
}

#include "tst_firstlight.moc"
