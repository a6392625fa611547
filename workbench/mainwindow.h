// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "globalnotify.h"

#include <QMainWindow>

class CameraFeatureTree;
class CameraFields;
class CountFields;
class DrawingGuard;
class PictureMenus;
class ProcessFields;
class QDockWidget;
class QSettings;
class QShortcut;
class QStackedWidget;
class RecordingFields;
class RecordingGuard;
class ShownFrames;
class RecordingStatus;
class StatusLine;
class UnsavedGuard;
class ViewMenu;
class WorkbenchServices;

/// The window of the workbench: builds the module, docks its four areas, and follows what the
/// workspace says of panels, full screen and background. The module goes with it. GUI thread.
class MainWindow : public QMainWindow, public LxObserver
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object; the services run already.
    MainWindow(WorkbenchServices *services, QSettings *settings);
    ~MainWindow() override;

    const ShownFrames *Shown() const { return m_shown; }
    void UpdateObserver(int id, void *data) override;

public slots:
    void slotShowMessage(QString text);
    void slotRestoreDefaultLayout();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void slotUpdateDockWidget();
    void slotLeaveFullScreen();
    void slotRecordingStateChanged();

private:
    /// Which panels were shown before the window filled the screen.
    struct PanelsShown
    {
        bool left = true;
        bool right = true;
        bool bottom = true;
    };

    void BuildAreas();
    QDockWidget *AddDock(const char *name, QWidget *area, Qt::DockWidgetArea where);
    PictureMenus *BuildPictureCommands();
    void AddAdjustment(const char *name, QObject *turned, const char *turnSlot);
    void BuildMenus();
    void RestoreLayout();
    void ArrangeDefault();
    void SetFullScreen(bool full);
    void SetPanels(const PanelsShown &panels);
    void SetBlackBackground(bool black);
    void AskToClose();

    WorkbenchServices *m_services;
    QSettings *m_settings;
    DrawingGuard *m_drawingGuard;
    RecordingGuard *m_recordingGuard;
    CameraFields *m_cameraFields;       ///< of the panels, which find them while the module is built
    CameraFeatureTree *m_cameraFeatures; ///< likewise
    RecordingFields *m_recordingFields; ///< likewise
    ProcessFields *m_processFields;     ///< likewise
    CountFields *m_countFields;         ///< likewise
    QStackedWidget *m_centre = nullptr;
    QDockWidget *m_leftDock = nullptr;
    QDockWidget *m_rightDock = nullptr;
    QDockWidget *m_bottomDock = nullptr;
    ViewMenu *m_viewMenu = nullptr;
    ShownFrames *m_shown = nullptr;
    RecordingStatus *m_recordingStatus = nullptr;
    StatusLine *m_statusLine = nullptr;
    UnsavedGuard *m_unsavedGuard = nullptr;
    bool m_mayLoseChanges = false; ///< the user said so; of the next closing
    PanelsShown m_panelsBeforeFullScreen;
    QShortcut *m_leaveFullScreen = nullptr;
    bool m_isFullScreen = false;
    bool m_isBlackBackground = false;
};
