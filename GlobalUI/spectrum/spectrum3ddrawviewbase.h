// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tracklines.h"

#include <QWidget>

#include <memory>

class QLabel;
class Rosenbrock;
class SpectrumZoomUI;

namespace Qwt3D {
class Line3D;
class SurfacePlot;
} // namespace Qwt3D

/// The 3D plot of a multi-track acquisition: a line per track, pixel number across, counts upwards.
/// Where the display offers no OpenGL there is no plot, and the page says so.
class Spectrum3DDrawViewBase : public QWidget
{
    Q_OBJECT

public:
    explicit Spectrum3DDrawViewBase(QWidget *parent);
    ~Spectrum3DDrawViewBase() override;

public slots:
    /// A SpectrumLinePayload. A hidden view leaves it to the one that is seen.
    void SlotUpdateMultiTrack(void *param);
    void Slot3DViewRotationChanged(double x, double y, double z);
    void Slot3DZoomChanged(double zoom);
    void SlotZoomIn();
    void SlotZoomOut();
    void SlotZoomReset();
    void SlotHorizontalZoomIn();
    void SlotHorizontalZoomOut();
    void SlotSpectralPropertyChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void CreatePlot();
    void PlaceZoomBar();
    void ShowPlot();
    /// In place of the plot; a text that the host has put there stays.
    void ShowNotice(const QString &text);
    static QString NoTracksText();
    static QString SwitchedOffText();
    /// Box, axes and view, for tracks of this width and the values of this payload.
    void SetUpPlot(int trackCount, int width, const TrackSteps &steps, int minimum, int maximum);
    void SetUpAxes(int width, double depth, const TrackSteps &steps);
    /// What the numbers at the axes tell.
    void SetScales(const TrackSteps &steps);
    void SetScale(int axis, double factor, int mode);
    void ScalePlot(double xFactor, double zFactor);

    Qwt3D::SurfacePlot *m_plot = nullptr;
    std::unique_ptr<Rosenbrock> m_function; ///< null until the plot is set up
    Qwt3D::Line3D *m_lines = nullptr;       ///< the plot owns it
    TrackSteps m_steps{};                   ///< of the axes
    SpectrumZoomUI *m_zoomBar = nullptr;
    QLabel *m_noTracks = nullptr; ///< the notice; null without a plot
};
