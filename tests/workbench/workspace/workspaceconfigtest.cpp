// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "workspaceconfig.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

/// Which view follows a command, and what the next start remembers.
class WorkspaceConfigTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<QSettings>(m_folder->filePath("workbench.ini"), QSettings::IniFormat);
    }

    void startsWithTheCamera()
    {
        const WorkspaceConfig config(m_settings.get());
        QCOMPARE(config.GetCurrentView(), int(CameraView));
        QCOMPARE(config.GetLeftStackedWidgetIndex(), 0);
        QCOMPARE(config.GetCenterStackedWidgetIndex(), 0);
    }

    void viewShowsItsPage_data()
    {
        QTest::addColumn<int>("view");
        QTest::addColumn<int>("page");
        QTest::newRow("camera") << int(CameraView) << 0;
        QTest::newRow("image") << int(ImageView) << 1;
        QTest::newRow("files") << int(FileView) << 2;
        QTest::newRow("camera comparison") << int(CameraCompareView) << 0;
        QTest::newRow("image comparison") << int(ImageCompareView) << 1;
    }

    void viewShowsItsPage()
    {
        QFETCH(int, view);
        QFETCH(int, page);
        WorkspaceConfig config(m_settings.get());
        GoTo(config, view);
        QCOMPARE(config.GetCurrentView(), view);
        QCOMPARE(config.GetLeftStackedWidgetIndex(), page);
        QCOMPARE(config.GetCenterStackedWidgetIndex(), page);
    }

    void comparisonIsEnteredFromItsPageAndLeftToIt_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("camera") << int(CameraView) << int(CameraCompareView);
        QTest::newRow("image") << int(ImageView) << int(ImageCompareView);
        QTest::newRow("out of the camera's") << int(CameraCompareView) << int(CameraView);
        QTest::newRow("out of the image's") << int(ImageCompareView) << int(ImageView);
    }

    void comparisonIsEnteredFromItsPageAndLeftToIt()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        WorkspaceConfig config(m_settings.get());
        GoTo(config, from);
        config.SetCompareView();
        QCOMPARE(config.GetCurrentView(), to);
    }

    void fileBrowserReturnsToTheViewBefore_data()
    {
        QTest::addColumn<int>("before");
        for (const int view : {int(CameraView), int(ImageView), int(CameraCompareView), int(ImageCompareView)})
            QTest::addRow("view %d", view) << view;
    }

    void fileBrowserReturnsToTheViewBefore()
    {
        QFETCH(int, before);
        WorkspaceConfig config(m_settings.get());
        GoTo(config, before);
        config.slotSetFileView();
        config.SetFileView(); // a second time changes nothing
        QCOMPARE(config.GetCurrentView(), int(FileView));
        config.slotFileViewReturn();
        QCOMPARE(config.GetCurrentView(), before);
    }

    void returnOutsideTheFileBrowserDoesNothing()
    {
        WorkspaceConfig config(m_settings.get());
        QSignalSpy switched(&config, SIGNAL(signalSwitchView()));
        config.FileViewReturn();
        QCOMPARE(config.GetCurrentView(), int(CameraView));
        QCOMPARE(switched.count(), 0);
    }

    void everySwitchIsAnnouncedToViewsAndPanels()
    {
        WorkspaceConfig config(m_settings.get());
        QSignalSpy switched(&config, SIGNAL(signalSwitchView()));
        QSignalSpy camera(&config, SIGNAL(signalUpdateCameraControlUI()));
        QSignalSpy image(&config, SIGNAL(signalUpdateImageControlUI()));
        QSignalSpy measure(&config, SIGNAL(signalUpdateMeasureControlUI()));
        config.SetFileView();
        QCOMPARE(switched.count(), 1);
        QCOMPARE(camera.count(), 1);
        QCOMPARE(image.count(), 1);
        QCOMPARE(measure.count(), 1);
    }

    void rightPanelIsNotOfferedInTheFileBrowser()
    {
        WorkspaceConfig config(m_settings.get());
        QVERIFY(config.IsRightButtonsAvailable());
        config.SetFileView();
        QVERIFY(!config.IsRightButtonsAvailable());
        QVERIFY(config.IsLeftToggleVisible());
        QVERIFY(config.IsBottomToggleVisible());
    }

    void drawingChoiceIsAnnouncedWhenItChanges()
    {
        WorkspaceConfig config(m_settings.get());
        QSignalSpy drawing(&config, SIGNAL(signalSetCPUDraw(bool)));
        QVERIFY(config.IsCPUDraw());
        config.SetCPUDraw(true, false);
        QCOMPARE(drawing.count(), 0);
        config.SetCPUDraw(true, true);
        config.SetCPUDraw(false, false);
        QCOMPARE(drawing.count(), 2);
        QCOMPARE(drawing.at(0).at(0).toBool(), true);
        QCOMPARE(drawing.at(1).at(0).toBool(), false);
    }

    void nextStartRemembersPanelsTabsAndDrawing()
    {
        {
            WorkspaceConfig config(m_settings.get());
            config.SetLeftUIIndex(1);
            config.SetRightUIIndex(2);
            config.SetBottomUIIndex(3);
            config.SetCameraUIIndex(4);
            config.SetLeftUIChecked(false);
            config.SetRightUIChecked(true);
            config.SetBottomUIChecked(true);
            config.SetCPUDraw(false, false);
            config.SetFileView();
        }
        const WorkspaceConfig config(m_settings.get());
        QCOMPARE(config.GetLeftUIIndex(), 1);
        QCOMPARE(config.GetRightUIIndex(), 2);
        QCOMPARE(config.GetBottomUIIndex(), 3);
        QCOMPARE(config.GetCameraUIIndex(), 4);
        QCOMPARE(config.IsLeftUIChecked(), false);
        QCOMPARE(config.IsRightUIChecked(), true);
        QCOMPARE(config.IsBottomUIChecked(), true);
        QCOMPARE(config.IsCPUDraw(), false);
        QCOMPARE(config.GetCurrentView(), int(CameraView));
    }

    void defaultsComeBackWithoutLeavingTheView()
    {
        WorkspaceConfig config(m_settings.get());
        const bool leftShown = config.IsLeftUIChecked();
        config.SetLeftUIChecked(!leftShown);
        config.SetCPUDraw(false, false);
        config.SetBottomUIIndex(2);
        config.SetFileView();
        config.RestoreDefaults();
        QCOMPARE(config.IsLeftUIChecked(), leftShown);
        QCOMPARE(config.IsCPUDraw(), true);
        QCOMPARE(config.GetBottomUIIndex(), 0);
        QCOMPARE(config.GetCurrentView(), int(FileView));
    }

    void commandsOnAFileAreHandedOn()
    {
        WorkspaceConfig config(m_settings.get());
        QSignalSpy convert(&config, SIGNAL(signalConvertToCSVWanted()));
        QSignalSpy modify(&config, SIGNAL(signalModifyDPIWanted()));
        config.slotConvertToCSV();
        QCOMPARE(convert.count(), 1);
        QCOMPARE(modify.count(), 0);
        config.slotModifyDPI();
        QCOMPARE(modify.count(), 1);
    }

    void filesAreMergedOnTheFilePage()
    {
        WorkspaceConfig config(m_settings.get());
        QSignalSpy merge(&config, SIGNAL(signalSetMergeButtonVisible(bool)));
        config.SetFileView();
        QCOMPARE(merge.last().first().toBool(), true);
        config.SetImageView();
        QCOMPARE(merge.last().first().toBool(), false);
    }

private:
    static void GoTo(WorkspaceConfig &config, int view)
    {
        switch (view) {
        case CameraView:
            config.SetCameraView();
            break;
        case ImageView:
            config.SetImageView();
            break;
        case FileView:
            config.SetFileView();
            break;
        case CameraCompareView:
            config.SetCameraView();
            config.SetCompareView();
            break;
        case ImageCompareView:
            config.SetImageView();
            config.SetCompareView();
            break;
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
};

GUARDED_TEST_MAIN(WorkspaceConfigTest)
#include "workspaceconfigtest.moc"
