// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "curvesamples.h"
#include "globalnotify.h"
#include "peakmarkers.h"
#include "rangehistory.h"
#include "tracerlabel.h"

#include <QPointF>
#include <QWidget>

#include <array>
#include <memory>
#include <vector>

class QCPItemRect;
class QCustomPlot;
class QMouseEvent;
class QScrollBar;
class SpectrumZoomUI;

/// The page with one spectrum, counts against calibrated x: of an FVB line, of a track, or of a row or
/// column of the picture. Its stack owns it and feeds it; payloads are shared with the spectrum pipeline.
class Spectrum2DDrawFrameBase : public QWidget, private LxObserver
{
    Q_OBJECT

public:
    explicit Spectrum2DDrawFrameBase(QWidget *parent);
    ~Spectrum2DDrawFrameBase() override;

    /// The page shows an opened picture instead of the live one.
    void SetStaticMode(bool staticMode) { m_staticMode = staticMode; }

signals:
    void sglUpdateCurve(void *param);
    void sglResetDisplayMode();
    void SignalDisplayModeUpdate();
    void SignalUpdateFVB(void *param);
    void SignalUpdateMultiTrack(void *param);

public slots:
    /// A SpectrumCurvePayload.
    void SlotUpdateCurve(void *param);
    void SlotDisplayModeUpdate();
    /// SpectrumLinePayloads.
    void SlotUpdateFVB(void *param);
    void SlotUpdateMultiTrack(void *param);
    void SlotZoomIn();
    void SlotZoomOut();
    void SlotZoomReset();
    void SlotHorizontalZoomIn();
    void SlotHorizontalZoomOut();
    /// The next curve sets the ranges of the axes.
    void SlotUpdateResetFlag(bool flag);
    void SlotMultitrackOnFlagChanged();
    void SlotCustomPlotMousePress(QMouseEvent *event);
    void SlotCustomPlotMouseMove(QMouseEvent *event);
    void SlotCustomPlotMouseRelease(QMouseEvent *event);
    void SlotUpdateImageHorizontalCurve(int *data, int size, int offset, int count);
    void SlotUpdateImageVerticalCurve(int *data, int size, int offset, int count);
    void SlotScrollValueChanged(int value);
    void SlotSpectralPropertyChanged();
    void SlotUpdateResetFlag();
    void SlotUpdateLevels(int low, int upper);
    void SlotConversationFormulaChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void UpdateObserver(int, void *) override {}

    void CreatePlot();
    void ConnectServices();
    void PlaceZoomBar();

    /// The curve's values are the data over `factor`.
    template <typename Sample>
    void DrawCurve(const Sample *data, int count, double factor = 1.0);
    void ClearCurve();
    /// The values of one column across the tracks.
    void DrawColumn(const unsigned int *tracks, int trackCount);
    double FactorOfImageCurves() const;
    void DrawImageCurve(const int *data, int size, int count);
    void FindPeaks(const unsigned int *data, int count);
    void FindPeaks(const int *data, int count);
    void UpdatePeakMarkers();
    void UpdateTracer();
    void SetRangesOfCurve();
    void ZoomValues(double zoom);
    /// The whole curve, with blank space above it.
    void AutoRange();
    /// The value axis is ranged: it gets its blank space, once.
    void LeaveBlankAbove();
    void ZoomByDrag();
    void EndDrag();
    /// Nothing is done of what it would have done.
    void DropDrag();
    void RemoveSelectionRect();

    QCustomPlot *m_plot = nullptr;
    SpectrumZoomUI *m_zoomBar = nullptr;
    QScrollBar *m_trackScroll = nullptr;
    std::unique_ptr<PeakMarkers> m_peakMarkers;
    std::unique_ptr<TracerLabel> m_tracerLabel;

    CurveSamples m_samples;
    std::vector<int> m_peaks; ///< indices of samples
    std::array<unsigned int, 20> m_trackColumn{};
    RangeHistory m_rangeHistory;
    QCPRange m_autoRange;        ///< the value axis as it was ranged last, not zoomed by the user
    QCPRange m_autoRangeOfCurve; ///< the same without the blank space

    // Plot pixels. The tracer stands where the mouse was released last.
    QPointF m_pressPoint;
    QPointF m_releasePoint;
    QCPItemRect *m_selectionRect = nullptr;
    bool m_pressed = false;
    bool m_dragging = false;

    bool m_resetFlag = true;
    bool m_staticMode = false;
};
