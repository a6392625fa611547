// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;

/// The large capture and preview buttons with their captions. Holds no state: what it shows is read
/// from the preview and frame-save managers at each update. The look comes from the application's
/// style sheet, which selects on the buttons' names; a button is renamed to show that it is active.
/// Disabled while no camera is open.
class CapturePreviewUI : public QWidget
{
    Q_OBJECT

public:
    explicit CapturePreviewUI(QWidget *parent = nullptr);

public slots:
    /// Reads the state anew; the camera panel asks for it too.
    void slotUpdateUI();

private slots:
    void on_pushButtonCapture_clicked();
    void on_pushButtonPreview_clicked();
    void onFrameSaveThreadRunningChanged(bool saveRunning);

private:
    void BuildForm();
    QPushButton *AddButtonOverCaption(QHBoxLayout *row, const char *layoutName, const char *buttonName, QLabel *caption);
    void ShowCaptureState(bool active);

    QPushButton *m_capture = nullptr;
    QPushButton *m_preview = nullptr;
    QLabel *m_live = nullptr;
};
