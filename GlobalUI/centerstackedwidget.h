// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStackedWidget>

class QPushButton;

/// The centre of the main window: the camera, image and file pages, with small buttons floating
/// over the edges that fold the panels around it. Which panel is shown is kept by UIConfigManager;
/// the host follows signalUpdateDockWidget(). A child of the host's window.
class CenterStackedWidget : public QStackedWidget
{
    Q_OBJECT

public:
    explicit CenterStackedWidget(QWidget *parent);

    /// Keeps the floating buttons above whichever page is current.
    void RaiseFloatingButtons();

signals:
    /// The docks have to follow the flags of UIConfigManager.
    void signalUpdateDockWidget();

protected:
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void slotSetLeftPanelVisible(bool value);
    /// Folds the right panel.
    void slotSetRightPanelVisible();
    /// Unfolds the right panel.
    void slotSetAnalysisPanelVisible();
    void slotSetBottomPanelVisible(bool value);
    void slotUpdateUI();
    /// The host calls it when it changes the canvas colour.
    void slotSetBlackBackground(bool value);
    void slotCaptureClicked();
    void onFrameSaveThreadRunningChanged(bool saveRunning);

private:
    /// It shows an icon only: `name` is for those who do not see it.
    QPushButton *AddButton(const QString &objectName, const QString &name, bool checkable);
    void ConnectButtons();
    void UpdateCaptureButton();
    void ShowCaptureState(bool saving);

    QPushButton *m_leftButton;
    QPushButton *m_rightButton;
    QPushButton *m_analysisButton;
    QPushButton *m_bottomButton;
    QPushButton *m_captureButton;
};
