// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "globalnotify.h"
#include "globalui_export.h"

#include <QObject>
#include <QPointF>
#include <QPointer>

class CameraUI;
class CenterStackedWidget;
class CompareFrame;
class FileSystemView;
class FileThumbnail;
class ImageUI;
class MeasureUI;
class QMouseEvent;
class QStackedWidget;
class QTabWidget;
class QWidget;

/// The one entry point of the module: builds the four areas of the main window, hands them to the
/// host, and carries out view switches and commands by way of the services. GUI thread only.
///
/// A host installs the services, calls GetInstance() and InitMainUI(window), docks the four areas,
/// and deletes the instance when it closes. The areas belong to the window, the control panels and
/// the file and compare widgets to this object; either may go first.
class GLOBALUI_EXPORT GlobalUI : public QObject, public LxObserver
{
    Q_OBJECT

public:
    /// Creates the object on the first call.
    static GlobalUI *GetInstance();
    ~GlobalUI() override;

    /// Builds all four areas as children of `parent`, the main window. Call it once.
    void InitMainUI(QWidget *parent);
    /// Loads the panels of the camera, image and measure side.
    void LoadPluginUI(QWidget *parent);

    /// The getters give null before InitMainUI(); the versions with a parent fill the area and are
    /// called by it.
    QStackedWidget *GetCenterStackedWidget(QWidget *parent);
    QStackedWidget *GetCenterStackedWidget();
    /// Appends a camera page, an image page and the file system view to the left stack.
    QStackedWidget *GetLeftStackedWidget(QWidget *parent);
    QStackedWidget *GetLeftStackedWidget();
    QTabWidget *GetRightTabWidget(QWidget *parent);
    QTabWidget *GetRightTabWidget();
    QTabWidget *GetBottomTabWidget(QWidget *parent);
    QTabWidget *GetBottomTabWidget();

    /// A new widget with what is known of the camera; the caller owns it.
    QWidget *GetCameraInfoUI();
    /// New control pages; the caller owns them. The panels and the buttons above them move there from
    /// the page they were on, and are deleted with the new one.
    QWidget *GetCameraControlUIScrollArea();
    QWidget *GetImageControlUIScrollArea();

    /// The pages of the right tab widget.
    QWidget *GetSpectrumWidget();
    QWidget *GetDataAnalysisWidget();
    QWidget *GetToolPropertyWidget();
    QWidget *GetReportWidget();

    /// Let a panel add its bottom pages to `tabWidget`.
    void SetCameraBottomControlUIPanel(QTabWidget *tabWidget);
    void SetImageBottomControlUIPanel(QTabWidget *tabWidget);
    void SetMeasureBottomControlUIPanel(QTabWidget *tabWidget);

    /// Shows the state of the services again.
    void UpdateUI();
    void ActivateMeasureControlUI();

    void UpdateObserver(int id, void *data) override;

private slots:
    void slotRightTabWidgetCurrentChanged(int index);
    void slotBottomTabWidgetCurrentChanged(int index);
    void slotSwitchView();
    void slotMouseMoveEvent(QMouseEvent *event);
    void slotMousePressEvent(QMouseEvent *event, QPointF point);
    void slotMouseReleaseEvent(QMouseEvent *event);
    void slotMouseDoubleClickEvent(QMouseEvent *event);
    void slotUpdateUseArea();
    void slotUpdateImageCompareFrame();
    void slotDisplayModeChange();

private:
    GlobalUI();
    Q_DISABLE_COPY(GlobalUI)

    void ConnectImageViewMouseEvent(QObject *view, QObject *receiver);
    void StyleRightTabs(int tabCount);
    void UpdateFolderWatch(bool fileView);
    void UpdatePreview(int view);
    void UpdateOverlays();
    /// InitMainUI() was called, and the window and the control panels still live.
    bool IsBuilt() const;

    static GlobalUI *instance;

    QPointer<CenterStackedWidget> m_centerStackedWidget;
    QPointer<QStackedWidget> m_leftStackedWidget;
    QPointer<QTabWidget> m_rightTabWidget;
    QPointer<QTabWidget> m_bottomTabWidget;
    QPointer<FileSystemView> m_fileSystemView;
    QPointer<FileThumbnail> m_fileThumbnail;
    CameraUI *m_cameraUI = nullptr;
    ImageUI *m_imageUI = nullptr;
    MeasureUI *m_measureUI = nullptr;
    QPointer<CompareFrame> m_compareFrame;
    QObject *m_reserved1 = nullptr;
    QObject *m_reserved2 = nullptr;
    QObject *m_reserved3 = nullptr;
};
