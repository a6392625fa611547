// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stackedwidgetbase.h"

#include <QPointF>

class AcquireProgressUI;
class FocusInfo;
class QGraphicsScene;

/// The live camera page: the preview with cover, region of interest, focus assistance, FVB band and
/// multi-track marks, and the progress of a recording over it.
class CameraStackedWidget : public StackedWidgetBase
{
    Q_OBJECT

public:
    explicit CameraStackedWidget(QWidget *parent);

    void UpdateViewOverlays() override;
    AcquireProgressUI *GetProgressPanel() const;

public slots:
    void SlotSpectralineAutoDetectFinish();
    void SlotAssitanceFocusClose();
    void SlotSpectralineFVB();
    /// Rows in picture pixels.
    void SlotTopBottomChanged(int top, int bottom);
    void SlotMultiTrackFlagChanged();
    void SlotFVBClose();
    void slotUpdateImageInfoUI() override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void ConnectPreview();
    void ConnectCamera();
    void ConnectSpectrum();
    void ConnectCropFrame();
    void ShowCameraCapabilities();

    QGraphicsScene *GetScene() const;
    /// Takes the marks out of the picture; the next request makes a new overlay.
    void ForgetOverlay(QPointer<FocusInfo> &overlay);
    void ConnectCrossLine();
    void ConnectFVBLine();
    void ShowFocusLines();

    AcquireProgressUI *m_progressPanel = nullptr;
    // The scene owns them.
    QPointer<FocusInfo> m_focusOverlay;
    QPointer<FocusInfo> m_fvbOverlay;
    QPointer<FocusInfo> m_multiTrackOverlay;
};
